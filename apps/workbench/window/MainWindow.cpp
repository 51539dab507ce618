// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/MainWindow.h>

#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>

namespace Workbench {

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent)
{
    setWindowTitle(QStringLiteral("Workbench"));
    resize(1500, 900);
    setDockOptions(AnimatedDocks | AllowNestedDocks | AllowTabbedDocks);
    m_viewMenu = menuBar()->addMenu(tr("&View"));
    createDocks();
}

MainWindow::~MainWindow() = default;

void MainWindow::createDocks()
{
    // A room is added by one line: addDock(new View(this), Qt::RightDockWidgetArea);
}

void MainWindow::addDock(QWidget* view, Qt::DockWidgetArea area)
{
    auto* dock = new QDockWidget(view->windowTitle(), this);
    dock->setObjectName(QString::fromLatin1(view->metaObject()->className()));
    dock->setWidget(view);
    connect(view, &QWidget::windowTitleChanged, dock, &QDockWidget::setWindowTitle);
    const QList<QDockWidget*> others = findChildren<QDockWidget*>();
    addDockWidget(area, dock);
    for (QDockWidget* other : others) {
        if (other != dock && dockWidgetArea(other) == area) {
            tabifyDockWidget(other, dock);
        }
    }
    m_viewMenu->addAction(dock->toggleViewAction());
}

} // namespace Workbench
