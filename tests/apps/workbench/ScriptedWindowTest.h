// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/window/MainWindow.h>

#include <QDockWidget>
#include <QImage>
#include <QTemporaryDir>

#include <memory>

class QVTKOpenGLNativeWidget;
class vtkCamera;
class vtkRenderer;

/// A test with the whole window, and the ways of its user: menus, dialogs, docks, and the mouse at a point of the
/// model.
class ScriptedWindowTest : public QObject
{
protected:
    void showWindow();
    void end();

    /// Lets all that is still to come follow, pictures too.
    static void settle();

    void choose(const char* text) const;
    /// In the dialog that asks for the element size.
    void mesh(const QString& size);
    void clickAt(double x, double y, double z) const;
    void drag(const QPoint& from, const QPoint& to) const;
    /// Brings the dock of a view to the front.
    template <class View>
    View& raised() const
    {
        auto* view = m_window->findChild<View*>();
        auto* dock = qobject_cast<QDockWidget*>(view->parentWidget());
        dock->show();
        dock->raise();
        settle();
        return *view;
    }
    /// Types a path into the dialog of that action and confirms it.
    void saveAs(const QString& path);

    vtkRenderer& renderer() const;
    vtkCamera& camera() const;
    /// Where a point of the model is seen, as the mouse counts.
    QPointF placeOf(double x, double y, double z) const;
    QImage picture() const;
    /// "1 Copper; 3 Steel": what the dock shows.
    QString projectMaterials() const;

    QTemporaryDir m_directory;
    std::unique_ptr<Workbench::MainWindow> m_window;
    QVTKOpenGLNativeWidget* m_canvas = nullptr;
};
