// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/View3D.h>

#include <workbench/selection/SelectionUndo.h>
#include <workbench/view/CameraMotion.h>
#include <workbench/view/HighlightState.h>
#include <workbench/view/Scene.h>

#include <datamanager/frame/InteractionManager.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRubberBand>
#include <QVTKOpenGLNativeWidget.h>
#include <QWheelEvent>

#include <vtkGenericOpenGLRenderWindow.h>

#include <cmath>

using DataManager::InteractionManager;
using DataManager::SelectedDataManager;

namespace Workbench {

namespace {

// Goes on to the next widget, where every widget leaves it to.
bool isTab(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
}

} // namespace

bool View3D::eventFilter(QObject* watched, QEvent* event)
{
    return watched == m_canvas ? handle(event) : QWidget::eventFilter(watched, event);
}

bool View3D::handle(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        press(static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseMove:
        move(static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseButtonRelease:
        release(static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseButtonDblClick:
        return true;
    case QEvent::Wheel:
        wheel(static_cast<QWheelEvent*>(event));
        return true;
    case QEvent::KeyPress:
        InteractionManager::getInstance()->onKeyPress(static_cast<QKeyEvent*>(event));
        return !isTab(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
        InteractionManager::getInstance()->onKeyRelease(static_cast<QKeyEvent*>(event));
        return true;
    case QEvent::Enter:
        enter();
        return false;
    case QEvent::FocusOut:
        giveUpKeys();
        return false;
    default:
        return false;
    }
}

// Modifier keys go to the widget with the focus: the view takes it when the mouse comes, but not from who is typing.
void View3D::enter()
{
    const QWidget* focus = QApplication::focusWidget();
    const bool isTyping = focus != nullptr && focus->testAttribute(Qt::WA_InputMethodEnabled);
    if (isActiveWindow() && !isTyping) {
        m_canvas->setFocus(Qt::MouseFocusReason);
    }
}

// The release of a key that is held while the focus goes will not be told here.
void View3D::giveUpKeys()
{
    stopDragging();
    InteractionManager::getInstance()->restoreInteractionMode();
}

QPoint View3D::pixel(const QPoint& position) const
{
    const double ratio = m_canvas->devicePixelRatioF();
    return {static_cast<int>(std::lround(position.x() * ratio)),
            static_cast<int>(std::lround((m_canvas->height() - 1 - position.y()) * ratio))};
}

void View3D::press(QMouseEvent* event)
{
    if (m_button != Qt::NoButton) {
        return;
    }
    m_button = event->button();
    m_pressed = event->pos();
    m_last = event->pos();
    m_isDragging = false;
    if (m_button == Qt::LeftButton &&
        InteractionManager::getInstance()->getInteractionMode() == BaseModule::MouseDraw) {
        startMeasuring(event->pos());
    }
}

void View3D::move(QMouseEvent* event)
{
    if (m_button == Qt::NoButton) {
        return;
    }
    m_isDragging = m_isDragging || (event->pos() - m_pressed).manhattanLength() >= QApplication::startDragDistance();
    if (!m_isDragging) {
        return;
    }
    const QPoint step = pixel(event->pos()) - pixel(m_last);
    m_last = event->pos();
    CameraMotion camera(m_scene->renderer());
    const BaseModule::InteractionMode mode = InteractionManager::getInstance()->getInteractionMode();
    if (m_button == Qt::MiddleButton || (m_button == Qt::LeftButton && mode == BaseModule::Translate)) {
        camera.translate(step.x(), step.y());
    } else if (m_button == Qt::RightButton || (m_button == Qt::LeftButton && mode == BaseModule::Rotate)) {
        camera.rotate(step.x(), step.y());
    } else if (mode == BaseModule::Select) {
        m_band->setGeometry(QRect(m_pressed, event->pos()).normalized());
        m_band->show();
        return;
    } else if (m_isMeasuring) {
        measureTo(event->pos());
    }
    m_canvas->renderWindow()->Render();
}

void View3D::release(QMouseEvent* event)
{
    if (event->button() != m_button) {
        return;
    }
    const bool isSelecting =
        m_button == Qt::LeftButton && InteractionManager::getInstance()->getInteractionMode() == BaseModule::Select;
    // The press of the key went to another widget when that had the focus.
    const bool isAdding =
        InteractionManager::getInstance()->isActiveMultipleSelect() || event->modifiers().testFlag(Qt::ControlModifier);
    const bool wasDragging = m_isDragging;
    stopDragging();
    if (isSelecting && wasDragging) {
        selectIn(QRect(pixel(m_pressed), pixel(event->pos())).normalized(), isAdding);
    } else if (isSelecting) {
        click(pixel(event->pos()), isAdding);
    }
}

void View3D::stopDragging()
{
    m_button = Qt::NoButton;
    m_isDragging = false;
    m_isMeasuring = false;
    m_band->hide();
}

void View3D::wheel(QWheelEvent* event)
{
    const QPoint position = pixel(event->position().toPoint());
    CameraMotion(m_scene->renderer()).zoom(std::pow(1.2, event->angleDelta().y() / 120.0), position.x(), position.y());
    m_canvas->renderWindow()->Render();
}

// Without Ctrl a click selects one thing alone; with it, things come and go one by one.
void View3D::click(const QPoint& position, bool isAdding)
{
    update3D();
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    const BaseModule::SelectModel model = selection->getSelectModel();
    const Picking picking(m_scene->renderer(), m_scene->skins());
    Picking::Item item;
    if (!picking.itemAt(position.x(), position.y(), model, item)) {
        if (!isAdding && selection->getDataCount() > 0) {
            selection->clearAllSelectedTarget();
        }
        return;
    }
    const SelectionUndo::Burst oneStep;
    const bool isOnlyOne =
        selection->getDataCount() == 1 && selection->getSelectedDataBySelectedModel(model).contains(item);
    if (!isAdding && selection->getDataCount() > 0 && !isOnlyOne) {
        selection->clearAllSelectedTarget();
    }
    selection->clickViewObject(item.first, item.second);
}

void View3D::selectIn(const QRect& rectangle, bool isAdding)
{
    update3D();
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    const BaseModule::SelectModel model = selection->getSelectModel();
    const Picking picking(m_scene->renderer(), m_scene->skins());
    const QList<Picking::Item> items =
        picking.itemsIn(rectangle.left(), rectangle.top(), rectangle.right(), rectangle.bottom(), model);
    const SelectionUndo::Burst oneStep;
    if (!isAdding && selection->getDataCount() > 0) {
        selection->clearAllSelectedTarget();
    }
    selection->addSelectedTargetList(model, items);
}

void View3D::startMeasuring(const QPoint& position)
{
    update3D();
    const QPoint point = pixel(position);
    m_isMeasuring = Picking(m_scene->renderer(), m_scene->skins()).positionAt(point.x(), point.y(), m_measured);
    m_scene->measuringLine().hide();
    m_canvas->renderWindow()->Render();
}

void View3D::measureTo(const QPoint& position)
{
    const QPoint point = pixel(position);
    double end[3];
    if (Picking(m_scene->renderer(), m_scene->skins()).positionAt(point.x(), point.y(), end)) {
        m_scene->measuringLine().set(m_measured, end);
    }
}

void View3D::updateCursor()
{
    switch (InteractionManager::getInstance()->getInteractionMode()) {
    case BaseModule::Rotate:
        m_canvas->setCursor(Qt::ClosedHandCursor);
        break;
    case BaseModule::Translate:
        m_canvas->setCursor(Qt::SizeAllCursor);
        break;
    case BaseModule::MouseDraw:
        m_canvas->setCursor(Qt::CrossCursor);
        break;
    default:
        m_canvas->setCursor(Qt::ArrowCursor);
    }
}

} // namespace Workbench
