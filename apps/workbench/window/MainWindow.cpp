// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/MainWindow.h>

#include <workbench/coordinates/CoordinateDock.h>
#include <workbench/material/MaterialDock.h>
#include <workbench/project/Project.h>
#include <workbench/property/PropertyTable.h>
#include <workbench/quality/QualityDock.h>
#include <workbench/selection/ProjectTree.h>
#include <workbench/view/View3D.h>
#include <workbench/window/MessagePanel.h>
#include <workbench/window/TaskBar.h>

#include <QDockWidget>
#include <QEvent>
#include <QMenu>
#include <QSettings>
#include <QStatusBar>

namespace Workbench {

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent)
{
    Project::instance();
    setObjectName(QStringLiteral("MainWindow"));
    resize(1500, 900);
    setAcceptDrops(true);
    setDockOptions(AnimatedDocks | AllowNestedDocks | AllowTabbedDocks);
    setTabPosition(Qt::RightDockWidgetArea, QTabWidget::North);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    setCentralWidget(new View3D(this));
    createMenus();
    createToolBars();
    createDocks();
    statusBar()->addPermanentWidget(new TaskBar(this));
    listen();
    retranslate();
    restoreLayout();
}

// What has the keyboard loses it here, while the window and its views are whole and can be told.
MainWindow::~MainWindow()
{
    for (QDockWidget* dock : findChildren<QDockWidget*>()) {
        dock->hide();
    }
    hide();
}

void MainWindow::createDocks()
{
    QDockWidget* tree = addDock(new ProjectTree(this), Qt::LeftDockWidgetArea);
    addDock(new PropertyTable(this), Qt::LeftDockWidgetArea, true);
    m_messages = addDock(new MessagePanel(this), Qt::BottomDockWidgetArea);
    addDock(new MaterialDock(this), Qt::RightDockWidgetArea);
    addDock(new CoordinateDock(this), Qt::RightDockWidgetArea);
    QDockWidget* quality = addDock(new QualityDock(this), Qt::RightDockWidgetArea);
    resizeDocks({m_messages}, {130}, Qt::Vertical);
    resizeDocks({tree, quality}, {300, 440}, Qt::Horizontal);
    quality->raise();
}

QDockWidget* MainWindow::addDock(QWidget* view, Qt::DockWidgetArea area, bool isBeside)
{
    QDockWidget* neighbour = nullptr;
    for (QDockWidget* other : findChildren<QDockWidget*>()) {
        neighbour = dockWidgetArea(other) == area ? other : neighbour;
    }
    auto* dock = new QDockWidget(view->windowTitle(), this);
    dock->setObjectName(QString::fromLatin1(view->metaObject()->className()));
    dock->setWidget(view);
    connect(view, &QWidget::windowTitleChanged, dock, &QDockWidget::setWindowTitle);
    addDockWidget(area, dock);
    if (neighbour != nullptr && !isBeside) {
        tabifyDockWidget(neighbour, dock);
        neighbour->raise();
    }
    m_docksMenu->addAction(dock->toggleViewAction());
    return dock;
}

void MainWindow::restoreLayout()
{
    const QSettings settings;
    restoreGeometry(settings.value(QStringLiteral("window/geometry")).toByteArray());
    restoreState(settings.value(QStringLiteral("window/docks")).toByteArray());
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::retranslate()
{
    for (const Text& text : qAsConst(m_texts)) {
        text.set(tr(text.source));
    }
    updateRecent();
    updateTitle();
}

// What went wrong is seen, even where the panel was closed.
void MainWindow::showMessage(int type, const QString& text)
{
    constexpr int errorType = 2;
    constexpr int duration = 10000;
    statusBar()->showMessage(text, duration);
    if (type == errorType) {
        m_messages->show();
        m_messages->raise();
    }
}

void MainWindow::updateTitle()
{
    setWindowTitle(QStringLiteral("%1[*] – %2").arg(Project::instance()->name(), tr("Workbench")));
    setWindowModified(Project::instance()->isModified());
}

} // namespace Workbench
