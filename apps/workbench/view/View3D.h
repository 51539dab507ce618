// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/view/CameraAim.h>

#include <basemodule/SelectModel.h>

#include <QPoint>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <optional>

class QKeyEvent;
class QMouseEvent;
class QRubberBand;
class QVTKOpenGLNativeWidget;
class QWheelEvent;

namespace Workbench {

class HighlightState;
class Scene;

/// The 3-D view: shows the meshes, and turns the mouse and the keys into calls of the interaction and the selection
/// manager. What is highlighted comes back through the signals of the hub.
class View3D : public QWidget
{
    Q_OBJECT

public:
    explicit View3D(QWidget* parent = nullptr);
    ~View3D() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// What has to be drawn anew; done once for all signals that come together.
    enum Change : unsigned
    {
        Kernels = 1,
        Visibility = 2,
        Colours = 4,
        Look = 8,
        Highlight = 16,
        Axes = 32
    };

    void listenToManagers();
    void listenToHub();
    void listenToCommands();
    void note(unsigned changes);
    void update3D();
    void aimCamera();
    void chooseSmoothing();

    bool handle(QEvent* event);
    void press(QMouseEvent* event);
    void move(QMouseEvent* event);
    void release(QMouseEvent* event);
    void wheel(QWheelEvent* event);
    void enter();
    void giveUpKeys();
    void stopDragging();
    void click(const QPoint& position, bool isAdding);
    void selectIn(const QRect& rectangle, bool isAdding);
    void startMeasuring(const QPoint& position);
    void measureTo(const QPoint& position);
    void updateCursor();
    QPoint pixel(const QPoint& position) const;
    void saveScreenshot(const QString& path);

    std::unique_ptr<Scene> m_scene;
    HighlightState* m_highlight;
    QVTKOpenGLNativeWidget* m_canvas;
    QRubberBand* m_band;
    QTimer m_timer;
    unsigned m_changes = 0;
    /// Of a pixel, as the graphics came with them.
    int m_samples = 0;
    /// That of the meshes that are shown; none without meshes.
    std::optional<Box> m_box;

    QPoint m_pressed;
    QPoint m_last;
    Qt::MouseButton m_button = Qt::NoButton;
    bool m_isDragging = false;
    bool m_isMeasuring = false;
    double m_measured[3] = {0, 0, 0};
};

} // namespace Workbench
