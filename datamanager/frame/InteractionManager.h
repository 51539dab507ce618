// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/datamanager_export.h>

#include <basemodule/InteractionMode.h>

#include <QObject>
#include <QString>

class QKeyEvent;

namespace DataManager {

/// What the mouse does in the 3-D view: the mode that the user chose, and the mode in effect while a modifier key is
/// held. "To announce" means to emit signal_updateInteraction and then signal_updateMenuActionState on the hub.
/// User-interface thread only.
class DATAMANAGER_EXPORT InteractionManager : public QObject
{
    Q_OBJECT

public:
    /// The manager, created by the first call and never destroyed.
    static InteractionManager* getInstance();

    /// The mode in effect, which a held modifier key may have replaced for a moment.
    BaseModule::InteractionMode getInteractionMode();
    /// The user chose a mode: it becomes both the persistent mode and the one in effect. MouseDraw first clears the
    /// whole selection. Announces, then emits signal_refreshActionOnInteractionChanged. Multiple selection stays as
    /// it is.
    void setInteractionMode(BaseModule::InteractionMode mode);
    /// Replaces the mode in effect only, and announces.
    void setInteractionModeTemp(BaseModule::InteractionMode mode);
    /// Returns to the mode that the user chose, ends multiple selection, and announces.
    void restoreInteractionMode();
    /// True while Ctrl is held outside MouseDraw.
    bool isActiveMultipleSelect();
    /// Forwarded key events of the view; null and auto-repeated ones are ignored. Shift translates and Alt rotates,
    /// also while drawing; Ctrl selects several objects, but not while drawing.
    void onKeyPress(QKeyEvent* event);
    /// A released Shift or Alt restores the mode that the user chose, and so does Ctrl, but while drawing Ctrl only
    /// ends multiple selection, without a signal. Null and auto-repeated events are ignored.
    void onKeyRelease(QKeyEvent* event);

private:
    InteractionManager() = default;
    ~InteractionManager() override = default;

    void updateInteractionMode();
    QString getInteractionModeStr(BaseModule::InteractionMode mode);
    void printInfo();

    static InteractionManager* m_instance;

    BaseModule::InteractionMode m_mode = BaseModule::Select;
    BaseModule::InteractionMode m_currentMode = BaseModule::Select;
    bool m_isMultipleSelect = false;
};

} // namespace DataManager
