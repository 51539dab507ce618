// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/basemodule_export.h>

#include <QList>
#include <QObject>
#include <QPair>
#include <QString>

namespace DataModel {
class SelectedDataBase;
}

namespace BaseModule {

/// The process-wide signal hub: libraries emit on it by plain member calls, the user interface connects to it.
/// All signals are delivered synchronously on the calling thread.
class BASEMODULE_EXPORT IBaseSignal : public QObject
{
    Q_OBJECT

public:
    /// The hub, created on first use and never destroyed.
    static IBaseSignal* getInstance();

Q_SIGNALS:
    /// The effective interaction mode or the select model changed: read both again.
    void signal_updateInteraction();
    /// Menu actions may have to be enabled or disabled.
    void signal_updateMenuActionState();
    /// The user chose a new persistent interaction mode.
    void signal_refreshActionOnInteractionChanged();
    /// The selection changed.
    void signal_refreshActionOnSelectDataChanged();
    /// Whether the select model may be switched changed.
    void signal_updateIsCanSwitchSelectModel();
    /// Apply transparency to the actors of these selected items. The records stay owned by the selection store.
    void signal_updateGeomrtryActorTransparency(QList<DataModel::SelectedDataBase*> selectedDataList);
    /// Show (true) or hide one view object: select model, first and second identifier.
    void signal_updateViewObjectState(int selectModel, int firstID, int secondID, bool isShow);
    /// Show (true) or hide a list of view objects, given as (first, second) identifiers.
    void signal_setViewObjectListState(int selectModel, QList<QPair<int, int>> objectList, bool isShow);
    /// May the clicked object be highlighted? The answer arrives true; a listener sets it to false to refuse.
    void signal_checkHighLight(bool& isAllowed, int selectModel, int firstID, int secondID);
    /// Clear every highlight in the view.
    void signal_clearAllHighLight();
    /// The project's content changed: refresh the title of the main window.
    void signal_updateWindowTitle();
    /// A project material was deleted: geometry that uses this identifier must drop it.
    void signal_delMatUpdateGeometryData(int materialID);
    /// Show a message to the user. Type code 2 is an error.
    void signal_showMessageType(int type, QString text);

private:
    IBaseSignal() = default;
    ~IBaseSignal() override = default;
};

} // namespace BaseModule
