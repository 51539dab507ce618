// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"
#include "WindowTest.h"

#include <workbench/coordinates/CoordinateSystems.h>
#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MesherProcess.h>
#include <workbench/project/Project.h>
#include <workbench/project/RecentProjects.h>
#include <workbench/property/PropertyTable.h>
#include <workbench/selection/ProjectTree.h>
#include <workbench/selection/SelectionUndo.h>
#include <workbench/view/View3D.h>
#include <workbench/window/Language.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/MeshingDialog.h>
#include <workbench/window/MessagePanel.h>

#include <basemodule/SelectModel.h>
#include <configoption/ConfigManager.h>
#include <datamanager/frame/InteractionManager.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QAction>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QUndoStack>
#include <QVTKOpenGLNativeWidget.h>

using DataManager::InteractionManager;
using DataManager::SelectedDataManager;
using namespace Workbench;

class tst_MainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void treeShowsTheProject();
    void treeSelectsThroughTheStore();
    void treeFollowsTheSelection();
    void treeObeysADialog();
    void treeHides();
    void toolsFollowTheLibrary();
    void dialogLocksTheSelectModel();
    void undoOfSelection();
    void propertiesOfTheSelection_data();
    void propertiesOfTheSelection();
    void messages();
    void titleShowsChanges();
    void closingAsks_data();
    void closingAsks();
    void recentProjectsOpen();
    void languageChangesAtOnce();
    void meshingDialogChecks_data();
    void meshingDialogChecks();
    void fromGeometryToReopenedProject();

private:
    static void settle() { QTest::qWait(50); }
    QTreeWidget* tree() const { return m_window->findChild<ProjectTree*>()->findChild<QTreeWidget*>(); }
    QTreeWidgetItem* line(const QString& text) const;
    void clickLine(const QString& text, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QAction* action(const char* text) const;
    void press(const char* text) const;
    QStringList properties() const;
    /// Answers the next message box that opens.
    static void answer(QMessageBox::StandardButton button, int* asked = nullptr);

    std::unique_ptr<MainWindow> m_window;
    QTemporaryDir m_directory;
};

void tst_MainWindow::initTestCase()
{
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_MainWindow::init()
{
    QVERIFY(Project::instance()->create());
    InteractionManager::getInstance()->setInteractionMode(BaseModule::Select);
    SelectedDataManager::getInstance()->setSelectModelInMainWindow(BaseModule::GeometryComponent);
    QVERIFY(openMesh(samplePath("bearing-housing.msh")) > 0);
    QVERIFY(Project::instance()->saveAs(m_directory.filePath(QStringLiteral("start.wbproj"))));
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    settle();
}

void tst_MainWindow::cleanupTestCase()
{
    m_window.reset();
    Project::instance()->close();
}

QTreeWidgetItem* tst_MainWindow::line(const QString& text) const
{
    return tree()->findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
}

void tst_MainWindow::clickLine(const QString& text, Qt::KeyboardModifiers modifiers)
{
    QTreeWidgetItem* item = line(text);
    QVERIFY2(item != nullptr, qPrintable(text));
    for (QTreeWidgetItem* parent = item->parent(); parent != nullptr; parent = parent->parent()) {
        parent->setExpanded(true);
    }
    tree()->scrollToItem(item);
    const QPoint place = tree()->visualItemRect(item).center();
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, modifiers, place);
    settle();
}

QAction* tst_MainWindow::action(const char* text) const
{
    for (QAction* found : m_window->findChildren<QAction*>()) {
        if (found->text().remove(QLatin1Char('&')) == QString::fromUtf8(text)) {
            return found;
        }
    }
    return nullptr;
}

void tst_MainWindow::press(const char* text) const
{
    auto* button = qobject_cast<QToolButton*>(m_window->findChild<QToolBar*>()->widgetForAction(action(text)));
    QVERIFY2(button != nullptr, text);
    QTest::mouseClick(button, Qt::LeftButton);
}

QStringList tst_MainWindow::properties() const
{
    const auto* table = m_window->findChild<PropertyTable*>()->findChild<QTableWidget*>();
    QStringList rows;
    for (int row = 0; row < table->rowCount(); ++row) {
        rows.append(table->item(row, 0)->text() + QLatin1Char('=') + table->item(row, 1)->text());
    }
    return rows;
}

void tst_MainWindow::answer(QMessageBox::StandardButton button, int* asked)
{
    QTimer::singleShot(100, [button, asked] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box != nullptr) {
            *asked += 1;
            QTest::mouseClick(box->button(button), Qt::LeftButton);
        }
    });
}

void tst_MainWindow::treeShowsTheProject()
{
    QStringList headings;
    for (int i = 0; i < tree()->topLevelItemCount(); ++i) {
        headings.append(
            QStringLiteral("%1 %2").arg(tree()->topLevelItem(i)->text(0)).arg(tree()->topLevelItem(i)->childCount()));
    }
    QCOMPARE(headings, (QStringList{QStringLiteral("Volumes 3"), QStringLiteral("Meshes 1"),
                                    QStringLiteral("Materials 0"), QStringLiteral("Coordinate systems 1")}));
    QCOMPARE(line(QStringLiteral("bearing-housing"))->text(1), QStringLiteral("6811 elements"));
    QCOMPARE(line(QStringLiteral("mounting face"))->text(1), QStringLiteral("504 triangles"));
}

void tst_MainWindow::treeSelectsThroughTheStore()
{
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    clickLine(QStringLiteral("foot"));
    QCOMPARE(selection->getSelectedDataBySelectedModel(BaseModule::GeometryComponent),
             (QList<QPair<int, int>>{{1, -1}}));
    clickLine(QStringLiteral("ring"), Qt::ControlModifier);
    QCOMPARE(selection->getDataCount(), 2);
    // A line of another kind switches what is being selected.
    clickLine(QStringLiteral("mounting face"));
    QCOMPARE(selection->getSelectModel(), BaseModule::GeometryFace);
    QCOMPARE(selection->getDataCount(), 1);
    QCOMPARE(tree()->selectedItems().size(), 1);
}

void tst_MainWindow::treeFollowsTheSelection()
{
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    selection->setSelectModelInMainWindow(BaseModule::MeshGroup);
    const int kernel = MeshManager::instance()->findKernels(QString()).first();
    selection->addSelectedTargetList(BaseModule::MeshGroup, {{kernel, 1}, {kernel, 3}});
    settle();
    QCOMPARE(tree()->selectedItems().size(), 2);
    selection->clearAllSelectedTarget();
    settle();
    QCOMPARE(tree()->selectedItems().size(), 0);
}

void tst_MainWindow::treeObeysADialog()
{
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    selection->setSelectModelInDialog(BaseModule::GeometryFace);
    clickLine(QStringLiteral("foot"));
    QCOMPARE(selection->getDataCount(), 0);
    selection->setSwitchSelectModelEnable(true);
    clickLine(QStringLiteral("bush"));
    QCOMPARE(selection->getDataCount(), 1);
}

void tst_MainWindow::treeHides()
{
    QVERIFY(!Project::instance()->isModified());
    line(QStringLiteral("bush"))->setCheckState(0, Qt::Unchecked);
    const int bush = GeometryManager::instance()->findComponents(QStringLiteral("bush")).first();
    QVERIFY(!GeometryManager::instance()->isComponentShown(bush));
    settle();
    QCOMPARE(line(QStringLiteral("bush"))->checkState(0), Qt::Unchecked);
    line(QStringLiteral("bush"))->setCheckState(0, Qt::Checked);
    QVERIFY(GeometryManager::instance()->isComponentShown(bush));
    QVERIFY(Project::instance()->isModified());
}

void tst_MainWindow::toolsFollowTheLibrary()
{
    press("Faces");
    QCOMPARE(SelectedDataManager::getInstance()->getSelectModel(), BaseModule::GeometryFace);
    press("Rotate (hold Alt)");
    QCOMPARE(InteractionManager::getInstance()->getInteractionMode(), BaseModule::Rotate);
    InteractionManager::getInstance()->setInteractionModeTemp(BaseModule::Translate);
    QVERIFY(action("Translate (hold Shift)")->isChecked());
    InteractionManager::getInstance()->restoreInteractionMode();
    QVERIFY(action("Rotate (hold Alt)")->isChecked());
    QVERIFY(!action("Clear selection")->isEnabled());
    SelectedDataManager::getInstance()->clickViewObject(1, 4);
    QVERIFY(action("Clear selection")->isEnabled());
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    QCOMPARE(SelectedDataManager::getInstance()->getDataCount(), 0);
}

void tst_MainWindow::dialogLocksTheSelectModel()
{
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    selection->setSelectModelInDialog(BaseModule::MeshNode);
    QVERIFY(!action("Faces")->isEnabled());
    QVERIFY(action("Nodes")->isChecked());
    selection->setSwitchSelectModelEnable(true);
    QVERIFY(action("Faces")->isEnabled());
    QVERIFY(action("Volumes")->isChecked());
}

void tst_MainWindow::undoOfSelection()
{
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    SelectionUndo::instance()->forget();
    QVERIFY(!action("Undo selection")->isEnabled());
    selection->clickViewObject(1, -1);
    selection->clickViewObject(2, -1);
    selection->clearAllSelectedTarget();
    press("Undo selection");
    QCOMPARE(selection->getSelectedDataBySelectedModel(BaseModule::GeometryComponent),
             (QList<QPair<int, int>>{{1, -1}, {2, -1}}));
    press("Undo selection");
    QCOMPARE(selection->getSelectedDataBySelectedModel(BaseModule::GeometryComponent),
             (QList<QPair<int, int>>{{1, -1}}));
    press("Redo selection");
    QCOMPARE(selection->getDataCount(), 2);
    press("Undo selection");
    press("Undo selection");
    QCOMPARE(selection->getDataCount(), 0);
    QVERIFY(!action("Undo selection")->isEnabled());
    QCOMPARE(SelectionUndo::instance()->stack()->count(), 3);
    // What was hidden meanwhile does not come back.
    selection->clickViewObject(1, -1);
    GeometryManager::instance()->showComponents({1}, false);
    press("Undo selection");
    QCOMPARE(selection->getDataCount(), 0);
    GeometryManager::instance()->showComponents({1}, true);
    // Another mesh leaves nothing to go back to.
    openMesh(samplePath("slivers.msh"));
    QVERIFY(!action("Redo selection")->isEnabled());
}

void tst_MainWindow::propertiesOfTheSelection_data()
{
    QTest::addColumn<int>("model");
    QTest::addColumn<int>("second");
    QTest::addColumn<QString>("row");
    QTest::newRow("nothing") << -1 << 0 << QStringLiteral("elements=6811");
    QTest::newRow("volume") << static_cast<int>(BaseModule::GeometryComponent) << -1 << QStringLiteral("volume=foot");
    QTest::newRow("face") << static_cast<int>(BaseModule::GeometryFace) << 4 << QStringLiteral("triangles=504");
    QTest::newRow("node") << static_cast<int>(BaseModule::MeshNode) << 1 << QStringLiteral("node=1");
    QTest::newRow("group") << static_cast<int>(BaseModule::MeshGroup) << 2 << QStringLiteral("elements=928");
    // The first tetrahedron of the file, "793 4 2 1 1 771 765 754 1701".
    const int element = static_cast<int>(BaseModule::MeshElement);
    QTest::newRow("element") << element << 793 << QStringLiteral("nodes=771, 765, 754, 1701");
    QTest::newRow("element's group") << element << 793 << QStringLiteral("physical group=1");
    const int axes = static_cast<int>(BaseModule::CoordinateAxes);
    QTest::newRow("axes") << axes << -1 << QStringLiteral("Name=corner");
    QTest::newRow("place of axes") << axes << -1 << QStringLiteral("Coordinate=(1,2,3)");
}

void tst_MainWindow::propertiesOfTheSelection()
{
    QFETCH(int, model);
    QFETCH(int, second);
    QFETCH(QString, row);
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    if (model >= 0) {
        CoordinateSystems::instance()->create(0, {QStringLiteral("corner"), BaseModule::Cartesian, {1, 2, 3}, {}});
        const bool isOfMesh = model > 6 && model != BaseModule::CoordinateAxes;
        const int first = isOfMesh ? MeshManager::instance()->findKernels(QString()).first() : 1;
        selection->setSelectModelInMainWindow(static_cast<BaseModule::SelectModel>(model));
        selection->clickViewObject(first, second);
        QCOMPARE(selection->getDataCount(), 1);
    }
    settle();
    QVERIFY2(properties().contains(row), qPrintable(properties().join(QLatin1Char('\n'))));
}

void tst_MainWindow::messages()
{
    const auto* list = m_window->findChild<MessagePanel*>()->findChild<QTreeWidget*>();
    const int before = list->topLevelItemCount();
    Q_EMIT BaseModule::IBaseSignal::getInstance()->signal_showMessageType(2, QStringLiteral("something is wrong"));
    QCOMPARE(list->topLevelItemCount(), before + 1);
    QCOMPARE(list->topLevelItem(before)->text(1), QStringLiteral("something is wrong"));
    for (int i = 0; i < 1100; ++i) {
        Q_EMIT BaseModule::IBaseSignal::getInstance()->signal_showMessageType(0, QString::number(i));
    }
    QCOMPARE(list->topLevelItemCount(), 1000);
    QCOMPARE(list->topLevelItem(999)->text(1), QStringLiteral("1099"));
}

void tst_MainWindow::titleShowsChanges()
{
    QCOMPARE(m_window->windowTitle(), QStringLiteral("start[*] – Workbench"));
    QVERIFY(!m_window->isWindowModified());
    GeometryManager::instance()->setMaterialID({1}, 1);
    QVERIFY(m_window->isWindowModified());
    QVERIFY(Project::instance()->save());
    QVERIFY(!m_window->isWindowModified());
    QVERIFY(Project::instance()->create());
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Untitled[*] – Workbench"));
}

void tst_MainWindow::closingAsks_data()
{
    QTest::addColumn<bool>("isModified");
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("asked");
    QTest::addColumn<bool>("isClosed");
    QTest::addColumn<bool>("isSaved");
    QTest::newRow("nothing to save") << false << 0 << 0 << true << true;
    QTest::newRow("cancel") << true << static_cast<int>(QMessageBox::Cancel) << 1 << false << false;
    QTest::newRow("discard") << true << static_cast<int>(QMessageBox::Discard) << 1 << true << false;
    QTest::newRow("save") << true << static_cast<int>(QMessageBox::Save) << 1 << true << true;
}

void tst_MainWindow::closingAsks()
{
    QFETCH(bool, isModified);
    QFETCH(int, button);
    QFETCH(int, asked);
    QFETCH(bool, isClosed);
    QFETCH(bool, isSaved);
    if (isModified) {
        GeometryManager::instance()->setMaterialID({1}, 1);
    }
    int count = 0;
    answer(static_cast<QMessageBox::StandardButton>(button), &count);
    QCOMPARE(m_window->close(), isClosed);
    QTest::qWait(150);
    QCOMPARE(count, asked);
    QCOMPARE(!Project::instance()->isModified(), isSaved);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_MainWindow::recentProjectsOpen()
{
    QVERIFY(Project::instance()->create());
    const QString path = m_directory.filePath(QStringLiteral("start.wbproj"));
    QAction* entry = action(qPrintable(path));
    QVERIFY(entry != nullptr);
    entry->trigger();
    QVERIFY(QTest::qWaitFor([] { return !MeshManager::instance()->isLoading(); }, 30000));
    QCOMPARE(Project::instance()->path(), path);
    QCOMPARE(MeshManager::instance()->getKernelCount(), 1);
}

void tst_MainWindow::languageChangesAtOnce()
{
    action("中文")->trigger();
    settle();
    QCOMPARE(ConfigOption::ConfigManager::getInstance()->getLanguage(), QStringLiteral("Chinese"));
    QVERIFY(m_window->menuBar()->actions().first()->text().startsWith(QStringLiteral("文件")));
    QCOMPARE(m_window->findChild<ProjectTree*>()->windowTitle(), QStringLiteral("工程"));
    QCOMPARE(line(QStringLiteral("体"))->childCount(), 3);
    Language::instance()->choose(QStringLiteral("Klingon"));
    QCOMPARE(ConfigOption::ConfigManager::getInstance()->getLanguage(), QStringLiteral("Chinese"));
    action("English")->trigger();
    settle();
    QCOMPARE(ConfigOption::ConfigManager::getInstance()->getLanguage(), QStringLiteral("English"));
    QVERIFY(action("File") != nullptr);
}

void tst_MainWindow::meshingDialogChecks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("nothing") << QString() << true;
    QTest::newRow("a number") << QStringLiteral("2.5e-3") << true;
    QTest::newRow("a comma") << QStringLiteral("2,5") << false;
    QTest::newRow("thousands") << QStringLiteral("2,500") << false;
    QTest::newRow("negative") << QStringLiteral("-1") << false;
    QTest::newRow("zero") << QStringLiteral("0") << false;
    QTest::newRow("infinite") << QStringLiteral("inf") << false;
    QTest::newRow("a word") << QStringLiteral("small") << false;
}

void tst_MainWindow::meshingDialogChecks()
{
    QFETCH(QString, text);
    QFETCH(bool, isGood);
    MeshingDialog dialog;
    QTest::keyClicks(dialog.findChild<QLineEdit*>(), text);
    bool isEnabled = false;
    for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
        isEnabled = button->text() == QStringLiteral("Mesh") ? button->isEnabled() : isEnabled;
    }
    QCOMPARE(isEnabled, isGood);
}

// What an engineer does: mesh a geometry, select, save, and go on the next day.
void tst_MainWindow::fromGeometryToReopenedProject()
{
    QVERIFY(Project::instance()->create());
    QVERIFY(!action("Mesh the geometry…")->isEnabled());
    QSignalSpy loaded(MeshManager::instance(), &MeshManager::signal_loadFinished);
    m_window->openFile(samplePath("plate-with-hole.geo"));
    auto* dialog = m_window->findChild<MeshingDialog*>();
    QVERIFY(dialog != nullptr && QTest::qWaitForWindowExposed(dialog));
    QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("0.01"));
    QTest::keyClick(dialog->findChild<QLineEdit*>(), Qt::Key_Return);
    QVERIFY(MesherProcess::instance()->isRunning());
    QVERIFY(loaded.wait(60000));
    settle();
    QVERIFY(line(QStringLiteral("hole")) != nullptr);
    const int elements = MeshManager::instance()->getElementCount(loaded.last().at(0).toInt());
    auto* canvas = m_window->findChild<View3D*>()->findChild<QVTKOpenGLNativeWidget*>();
    press("Volumes");
    QTest::mouseClick(canvas, Qt::LeftButton, Qt::NoModifier, canvas->rect().center() + QPoint(40, 0));
    QCOMPARE(SelectedDataManager::getInstance()->getDataCount(), 1);
    GeometryManager::instance()->setMaterialID({1}, 4);

    const QString path = m_directory.filePath(QStringLiteral("plate.wbproj"));
    QVERIFY(Project::instance()->saveAs(path));
    QVERIFY(Project::instance()->create());
    QCOMPARE(SelectedDataManager::getInstance()->getDataCount(), 0);
    m_window->openFile(path);
    QVERIFY(QTest::qWaitFor([] { return !MeshManager::instance()->isLoading(); }, 30000));
    settle();
    QCOMPARE(MeshManager::instance()->getElementCount(1), elements);
    QCOMPARE(GeometryManager::instance()->getMaterialID(1), 4);
    QVERIFY(action("Mesh the geometry…")->isEnabled());
    QVERIFY(!m_window->isWindowModified());
    QVERIFY(line(QStringLiteral("hole")) != nullptr);
}

WORKBENCH_TEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
