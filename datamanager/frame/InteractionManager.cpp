// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/frame/InteractionManager.h>

#include <datamanager/frame/Singleton.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <basemodule/IBaseSignal.h>

#include <QKeyEvent>

namespace DataManager {

InteractionManager* InteractionManager::m_instance = nullptr;

InteractionManager* InteractionManager::getInstance()
{
    return singleton(m_instance, [] { return new InteractionManager; });
}

BaseModule::InteractionMode InteractionManager::getInteractionMode()
{
    return m_currentMode;
}

void InteractionManager::setInteractionMode(BaseModule::InteractionMode mode)
{
    SelectedDataManager* const selection = SelectedDataManager::getInstance();
    if (mode == BaseModule::MouseDraw) {
        selection->clearAllSelectedTarget();
    }
    m_currentMode = mode;
    m_mode = mode;
    updateInteractionMode();
    static_cast<void>(selection->canSwitchSelectModel());
    static_cast<void>(selection->getSelectedDataList());
    Q_EMIT BaseModule::IBaseSignal::getInstance()->signal_refreshActionOnInteractionChanged();
}

void InteractionManager::setInteractionModeTemp(BaseModule::InteractionMode mode)
{
    m_currentMode = mode;
    updateInteractionMode();
}

void InteractionManager::restoreInteractionMode()
{
    m_currentMode = m_mode;
    m_isMultipleSelect = false;
    updateInteractionMode();
}

bool InteractionManager::isActiveMultipleSelect()
{
    return m_isMultipleSelect;
}

void InteractionManager::onKeyPress(QKeyEvent* event)
{
    if (event == nullptr || event->isAutoRepeat()) {
        return;
    }
    if (event->key() == Qt::Key_Shift) {
        setInteractionModeTemp(BaseModule::Translate);
    } else if (event->key() == Qt::Key_Alt) {
        setInteractionModeTemp(BaseModule::Rotate);
    } else if (event->key() == Qt::Key_Control && m_currentMode != BaseModule::MouseDraw) {
        m_isMultipleSelect = true;
        setInteractionModeTemp(BaseModule::Select);
    }
}

void InteractionManager::onKeyRelease(QKeyEvent* event)
{
    if (event == nullptr || event->isAutoRepeat()) {
        return;
    }
    if (event->key() == Qt::Key_Control) {
        m_isMultipleSelect = false;
        // Drawing ignored the press, so there is nothing to restore.
        if (m_currentMode != BaseModule::MouseDraw) {
            restoreInteractionMode();
        }
    } else if (event->key() == Qt::Key_Shift || event->key() == Qt::Key_Alt) {
        restoreInteractionMode();
    }
}

void InteractionManager::updateInteractionMode()
{
    BaseModule::IBaseSignal* const hub = BaseModule::IBaseSignal::getInstance();
    Q_EMIT hub->signal_updateInteraction();
    Q_EMIT hub->signal_updateMenuActionState();
}

QString InteractionManager::getInteractionModeStr(BaseModule::InteractionMode mode)
{
    switch (mode) {
    case BaseModule::Select:
        return QStringLiteral("Select");
    case BaseModule::Rotate:
        return QStringLiteral("Rotate");
    case BaseModule::Translate:
        return QStringLiteral("Translate");
    case BaseModule::MouseDraw:
        return QStringLiteral("MouseDraw");
    default:
        return QStringLiteral("Undefine");
    }
}

void InteractionManager::printInfo() {}

} // namespace DataManager
