// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/MainWindow.h>

#include <workbench/mesh/MeshDisplay.h>
#include <workbench/mesh/MesherProcess.h>
#include <workbench/project/Project.h>
#include <workbench/project/RecentProjects.h>
#include <workbench/selection/NamedSelections.h>
#include <workbench/selection/SelectionUndo.h>
#include <workbench/view/ViewCommands.h>
#include <workbench/window/Icons.h>
#include <workbench/window/Language.h>

#include <basemodule/IBaseSignal.h>
#include <configoption/ConfigManager.h>
#include <datamanager/frame/InteractionManager.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QActionGroup>
#include <QInputDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QToolBar>
#include <QUndoStack>

using BaseModule::IBaseSignal;
using DataManager::InteractionManager;
using DataManager::SelectedDataManager;

namespace Workbench {

QMenu* MainWindow::addMenu(const char* source)
{
    QMenu* menu = menuBar()->addMenu(QString());
    m_texts.append({[menu](const QString& text) { menu->setTitle(text); }, source});
    return menu;
}

QAction* MainWindow::addAction(QMenu* menu, const char* source, const std::function<void()>& run)
{
    QAction* action = menu->addAction(QString());
    m_texts.append({[action](const QString& text) { action->setText(text); }, source});
    connect(action, &QAction::triggered, this, [run] { run(); });
    return action;
}

QAction* MainWindow::addModeAction(QMenu* menu, const char* source, QActionGroup* group, int value)
{
    QAction* action = addAction(menu, source, [] {});
    action->setCheckable(true);
    action->setData(value);
    group->addAction(action);
    return action;
}

void MainWindow::createMenus()
{
    createFileMenu();
    createEditMenu();
    createSelectMenu();
    createViewMenu();
    createMeshMenu();
    createSettingsMenu();
}

void MainWindow::createFileMenu()
{
    QMenu* menu = addMenu(QT_TR_NOOP("&File"));
    QAction* create = addAction(menu, QT_TR_NOOP("&New project"), [this] {
        if (mayLeave()) {
            Project::instance()->create();
        }
    });
    QAction* openAction = addAction(menu, QT_TR_NOOP("&Open…"), [this] { open(); });
    m_recentMenu = menu->addMenu(QString());
    m_texts.append({[this](const QString& text) { m_recentMenu->setTitle(text); }, QT_TR_NOOP("Recent projects")});
    menu->addSeparator();
    QAction* saveAction = addAction(menu, QT_TR_NOOP("&Save"), [this] { save(); });
    QAction* saveAsAction = addAction(menu, QT_TR_NOOP("Save &as…"), [this] { saveAs(); });
    menu->addSeparator();
    QAction* quit = addAction(menu, QT_TR_NOOP("&Quit"), [this] { close(); });
    create->setShortcut(QKeySequence::New);
    openAction->setShortcut(QKeySequence::Open);
    saveAction->setShortcut(QKeySequence::Save);
    saveAsAction->setShortcut(QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_S));
    quit->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_Q));
    create->setIcon(icon(IconName::New));
    openAction->setIcon(icon(IconName::Open));
    saveAction->setIcon(icon(IconName::Save));
    m_toolActions << create << openAction << saveAction << nullptr;
}

void MainWindow::createEditMenu()
{
    QMenu* menu = addMenu(QT_TR_NOOP("&Edit"));
    QUndoStack* stack = SelectionUndo::instance()->stack();
    QAction* undo = addAction(menu, QT_TR_NOOP("&Undo selection"), [stack] { stack->undo(); });
    QAction* redo = addAction(menu, QT_TR_NOOP("&Redo selection"), [stack] { stack->redo(); });
    undo->setShortcut(QKeySequence::Undo);
    redo->setShortcut(QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_Z));
    undo->setIcon(icon(IconName::Undo));
    redo->setIcon(icon(IconName::Redo));
    undo->setEnabled(false);
    redo->setEnabled(false);
    connect(stack, &QUndoStack::canUndoChanged, undo, &QAction::setEnabled);
    connect(stack, &QUndoStack::canRedoChanged, redo, &QAction::setEnabled);
    m_nameSelection = addAction(menu, QT_TR_NOOP("&Name the selection…"), [this] { nameSelection(); });
    m_nameSelection->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_G));
    m_clearSelection = addAction(menu, QT_TR_NOOP("&Clear selection"),
                                 [] { SelectedDataManager::getInstance()->clearAllSelectedTarget(); });
    m_clearSelection->setShortcut(QKeySequence(Qt::Key_Escape));
    m_toolActions << undo << redo << nullptr;
}

void MainWindow::createSelectMenu()
{
    QMenu* menu = addMenu(QT_TR_NOOP("&Select"));
    m_interactionModes = new QActionGroup(this);
    m_selectModels = new QActionGroup(this);
    const auto add = [this, menu](QActionGroup* group, const char* source, int value, IconName name, int key) {
        QAction* action = addModeAction(menu, source, group, value);
        action->setIcon(icon(name));
        action->setShortcut(QKeySequence(key));
        m_toolActions << action;
    };
    add(m_interactionModes, QT_TR_NOOP("Select (hold Ctrl for several)"), BaseModule::Select, IconName::SelectMode,
        Qt::Key_S);
    add(m_interactionModes, QT_TR_NOOP("Rotate (hold Alt)"), BaseModule::Rotate, IconName::RotateMode, Qt::Key_R);
    add(m_interactionModes, QT_TR_NOOP("Translate (hold Shift)"), BaseModule::Translate, IconName::TranslateMode,
        Qt::Key_T);
    add(m_interactionModes, QT_TR_NOOP("Draw a measuring line"), BaseModule::MouseDraw, IconName::DrawMode, Qt::Key_D);
    menu->addSeparator();
    m_toolActions << nullptr;
    add(m_selectModels, QT_TR_NOOP("Volumes"), BaseModule::GeometryComponent, IconName::Volumes, Qt::Key_1);
    add(m_selectModels, QT_TR_NOOP("Faces"), BaseModule::GeometryFace, IconName::Faces, Qt::Key_2);
    add(m_selectModels, QT_TR_NOOP("Nodes"), BaseModule::MeshNode, IconName::Nodes, Qt::Key_3);
    add(m_selectModels, QT_TR_NOOP("Elements"), BaseModule::MeshElement, IconName::Elements, Qt::Key_4);
    add(m_selectModels, QT_TR_NOOP("Element groups"), BaseModule::MeshGroup, IconName::Groups, Qt::Key_5);
    add(m_selectModels, QT_TR_NOOP("Coordinate axes"), BaseModule::CoordinateAxes, IconName::Axes, Qt::Key_6);
    m_toolActions << nullptr;
    connect(m_interactionModes, &QActionGroup::triggered, this, [](const QAction* action) {
        const auto mode = static_cast<BaseModule::InteractionMode>(action->data().toInt());
        InteractionManager::getInstance()->setInteractionMode(mode);
    });
    connect(m_selectModels, &QActionGroup::triggered, this, [](const QAction* action) {
        const auto model = static_cast<BaseModule::SelectModel>(action->data().toInt());
        SelectedDataManager::getInstance()->setSelectModelInMainWindow(model);
    });
}

void MainWindow::createViewMenu()
{
    using Direction = ViewCommands::Direction;
    QMenu* menu = addMenu(QT_TR_NOOP("&View"));
    const auto look = [this, menu](const char* source, Direction direction, int key) {
        QAction* action = addAction(menu, source, [direction] { ViewCommands::instance()->lookFrom(direction); });
        action->setShortcut(QKeySequence(key));
        return action;
    };
    QAction* fit = addAction(menu, QT_TR_NOOP("&Fit"), [] { ViewCommands::instance()->fit(); });
    fit->setShortcut(QKeySequence(Qt::Key_F));
    fit->setIcon(icon(IconName::Fit));
    QAction* isometric = look(QT_TR_NOOP("&Isometric"), Direction::Isometric, Qt::CTRL + Qt::Key_0);
    QAction* front = look(QT_TR_NOOP("F&ront"), Direction::Front, Qt::CTRL + Qt::Key_1);
    look(QT_TR_NOOP("&Back"), Direction::Back, Qt::CTRL + Qt::Key_2);
    look(QT_TR_NOOP("&Left"), Direction::Left, Qt::CTRL + Qt::Key_3);
    QAction* right = look(QT_TR_NOOP("Ri&ght"), Direction::Right, Qt::CTRL + Qt::Key_4);
    QAction* top = look(QT_TR_NOOP("&Top"), Direction::Top, Qt::CTRL + Qt::Key_5);
    look(QT_TR_NOOP("B&ottom"), Direction::Bottom, Qt::CTRL + Qt::Key_6);
    isometric->setIcon(icon(IconName::Isometric));
    front->setIcon(icon(IconName::Front));
    right->setIcon(icon(IconName::Right));
    top->setIcon(icon(IconName::Top));
    menu->addSeparator();
    createDisplayActions(menu);
    QAction* screenshot = addAction(menu, QT_TR_NOOP("Save &picture…"), [this] { saveScreenshot(); });
    screenshot->setIcon(icon(IconName::Screenshot));
    menu->addSeparator();
    m_docksMenu = menu->addMenu(QString());
    m_texts.append({[this](const QString& text) { m_docksMenu->setTitle(text); }, QT_TR_NOOP("Panels")});
    m_toolActions << fit << isometric << front << right << top << m_edges << nullptr << screenshot;
}

void MainWindow::createDisplayActions(QMenu* menu)
{
    MeshDisplay* display = MeshDisplay::instance();
    m_edges = addAction(menu, QT_TR_NOOP("&Edges"), [display] { display->showEdges(!display->areEdgesShown()); });
    m_edges->setCheckable(true);
    m_edges->setIcon(icon(IconName::Edges));
    m_transparent = addAction(menu, QT_TR_NOOP("Tra&nsparent"),
                              [display] { display->setTransparency(display->transparency() > 0 ? 0 : 0.6); });
    m_transparent->setCheckable(true);
    m_transparent->setShortcut(QKeySequence(Qt::Key_X));
}

void MainWindow::createMeshMenu()
{
    QMenu* menu = addMenu(QT_TR_NOOP("&Mesh"));
    m_mesh = addAction(menu, QT_TR_NOOP("&Mesh the geometry…"), [this] { mesh(); });
    m_mesh->setIcon(icon(IconName::Mesh));
    m_mesh->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_M));
    m_toolActions << m_mesh;
}

void MainWindow::createSettingsMenu()
{
    QMenu* menu = addMenu(QT_TR_NOOP("&Language"));
    // Each language is named in itself, so that whoever is lost finds back.
    menu->addAction(QStringLiteral("English"), this, [] { Language::instance()->choose(QStringLiteral("English")); });
    menu->addAction(QString::fromUtf8("中文"), this, [] { Language::instance()->choose(QStringLiteral("Chinese")); });
    QMenu* help = addMenu(QT_TR_NOOP("&Help"));
    addAction(help, QT_TR_NOOP("&About"), [this] {
        QMessageBox::about(this, tr("Workbench"),
                           tr("Prepares geometry, materials and meshes for simulation.\nVersion %1")
                               .arg(QStringLiteral(WORKBENCH_VERSION)));
    });
}

void MainWindow::createToolBars()
{
    QToolBar* bar = addToolBar(QString());
    bar->setObjectName(QStringLiteral("tools"));
    bar->setIconSize(QSize(24, 24));
    m_texts.append({[bar](const QString& text) { bar->setWindowTitle(text); }, QT_TR_NOOP("Tools")});
    for (QAction* action : qAsConst(m_toolActions)) {
        if (action == nullptr) {
            bar->addSeparator();
        } else {
            bar->addAction(action);
        }
    }
}

void MainWindow::listen()
{
    const IBaseSignal* hub = IBaseSignal::getInstance();
    connect(hub, &IBaseSignal::signal_updateInteraction, this, &MainWindow::updateActions);
    connect(hub, &IBaseSignal::signal_updateMenuActionState, this, &MainWindow::updateActions);
    connect(hub, &IBaseSignal::signal_refreshActionOnInteractionChanged, this, &MainWindow::updateActions);
    connect(hub, &IBaseSignal::signal_refreshActionOnSelectDataChanged, this, &MainWindow::updateActions);
    connect(hub, &IBaseSignal::signal_updateIsCanSwitchSelectModel, this, &MainWindow::updateActions);
    connect(hub, &IBaseSignal::signal_updateWindowTitle, this, &MainWindow::updateTitle);
    connect(Project::instance(), &Project::signal_changed, this, [this] {
        updateTitle();
        updateActions();
    });
    connect(hub, &IBaseSignal::signal_showMessageType, this, &MainWindow::showMessage);
    connect(m_recentMenu, &QMenu::aboutToShow, this, &MainWindow::updateRecent);
    connect(RecentProjects::instance(), &RecentProjects::signal_changed, this, &MainWindow::updateRecent);
    connect(MeshDisplay::instance(), &MeshDisplay::signal_edgesChanged, this, &MainWindow::updateActions);
    connect(MeshDisplay::instance(), &MeshDisplay::signal_transparencyChanged, this, &MainWindow::updateActions);
    connect(MesherProcess::instance(), &MesherProcess::signal_started, this, &MainWindow::updateActions);
    connect(MesherProcess::instance(), &MesherProcess::signal_finished, this, &MainWindow::updateActions);
    updateActions();
}

void MainWindow::updateActions()
{
    const SelectedDataManager* selection = SelectedDataManager::getInstance();
    for (QAction* action : m_interactionModes->actions()) {
        action->setChecked(action->data().toInt() == InteractionManager::getInstance()->getInteractionMode());
    }
    m_selectModels->setEnabled(selection->canSwitchSelectModel());
    for (QAction* action : m_selectModels->actions()) {
        action->setChecked(action->data().toInt() == selection->getSelectModel());
    }
    m_edges->setChecked(MeshDisplay::instance()->areEdgesShown());
    m_transparent->setChecked(MeshDisplay::instance()->transparency() > 0);
    m_clearSelection->setEnabled(selection->getDataCount() > 0);
    m_nameSelection->setEnabled(NamedSelections::canName());
    m_mesh->setEnabled(!Project::instance()->geometryPath().isEmpty() && !MesherProcess::instance()->isRunning());
}

void MainWindow::nameSelection()
{
    bool isConfirmed = false;
    const QString name = QInputDialog::getText(this, tr("Name the selection"), tr("Name of the set or group:"),
                                               QLineEdit::Normal, NamedSelections::proposedName(), &isConfirmed);
    if (isConfirmed) {
        NamedSelections::create(name.trimmed());
    }
}

void MainWindow::updateRecent()
{
    m_recentMenu->clear();
    for (const QString& path : RecentProjects::instance()->paths()) {
        m_recentMenu->addAction(path, this, [this, path] { openFile(path); });
    }
    m_recentMenu->setEnabled(!m_recentMenu->isEmpty());
}

} // namespace Workbench
