// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QList>
#include <QObject>
#include <QPair>
#include <QString>

namespace DataModel {
class SelectedDataBase;
}

namespace BaseModule {

class IBaseSignal : public QObject
{
    Q_OBJECT

public:
    static IBaseSignal* getInstance();

Q_SIGNALS:
    void signal_updateInteraction();
    void signal_updateMenuActionState();
    void signal_refreshActionOnInteractionChanged();
    void signal_refreshActionOnSelectDataChanged();
    void signal_updateIsCanSwitchSelectModel();
    void signal_updateGeomrtryActorTransparency(QList<DataModel::SelectedDataBase*> list);
    void signal_updateViewObjectState(int model, int first, int second, bool isShow);
    void signal_setViewObjectListState(int model, QList<QPair<int, int>> list, bool isShow);
    void signal_checkHighLight(bool& isAllowed, int model, int first, int second);
    void signal_clearAllHighLight();
    void signal_updateWindowTitle();
    void signal_delMatUpdateGeometryData(int id);
    void signal_showMessageType(int type, QString text);
};

} // namespace BaseModule
