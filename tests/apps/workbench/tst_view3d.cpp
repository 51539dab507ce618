// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"
#include "ViewFixture.h"
#include "WindowTest.h"

#include <workbench/geometry/GeometryManager.h>
#include <workbench/selection/SelectionUndo.h>

#include <basemodule/SelectModel.h>
#include <datamanager/frame/InteractionManager.h>
#include <datamanager/selection/SelectedDataManager.h>
#include <datamodel/SelectedDataBase.h>

#include <QLineEdit>
#include <QUndoStack>

using DataManager::InteractionManager;
using DataManager::SelectedDataManager;
using namespace Workbench;

/// Mouse and keys in the view of a unit cube, seen from the front: its near side fills most of the view.
class tst_View3D : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase() { m_fixture.reset(); }

    void clickSelects_data();
    void clickSelects();
    void clickReplacesAndControlAdds();
    void heldControlAdds();
    void clickBesideDeselects();
    void boxSelectsWhatIsSeen();
    void mouseMakesOneStepOfUndo_data();
    void mouseMakesOneStepOfUndo();
    void hiddenIsNotPicked();
    void keysChangeTheMode();
    void tabLeavesTheView();
    void lostFocusReleasesKeys();
    void dragMovesTheCamera_data();
    void dragMovesTheCamera();
    void measuresInDrawMode();

private:
    QImage picture() const { return m_fixture->picture(); }
    QPoint centre() const { return m_canvas->rect().center(); }
    void drag(const QPoint& from, const QPoint& to, Qt::MouseButton button = Qt::LeftButton,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void settle() { QTest::qWait(60); }
    static int countOf(BaseModule::SelectModel model)
    {
        return SelectedDataManager::getInstance()->getSelectedDataBySelectedModel(model).size();
    }

    std::unique_ptr<ViewFixture> m_fixture;
    QLineEdit* m_field = nullptr;
    QVTKOpenGLNativeWidget* m_canvas = nullptr;
    int m_kernel = 0;
};

void tst_View3D::initTestCase()
{
    m_fixture = std::make_unique<ViewFixture>(QSize(600, 480));
    m_field = new QLineEdit(&m_fixture->window());
    m_fixture->window().layout()->addWidget(m_field);
    m_canvas = m_fixture->canvas;
    QVERIFY(m_fixture->isReady());
    m_kernel = openMesh(samplePath("graded-block.msh"));
    QVERIFY(m_kernel > 0);
}

void tst_View3D::init()
{
    m_fixture->window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_fixture->window()));
    m_canvas->setFocus();
    SelectedDataManager::getInstance()->clearAllSelectedTarget();
    SelectedDataManager::getInstance()->setSelectModelInMainWindow(BaseModule::GeometryFace);
    InteractionManager::getInstance()->setInteractionMode(BaseModule::Select);
    ViewCommands::instance()->lookFrom(ViewCommands::Direction::Front);
    settle();
}

void tst_View3D::drag(const QPoint& from, const QPoint& to, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    QTest::mousePress(m_canvas, button, modifiers, from);
    for (int step = 1; step <= 4; ++step) {
        QMouseEvent move(QEvent::MouseMove, from + (to - from) * step / 4, Qt::NoButton, button, modifiers);
        QApplication::sendEvent(m_canvas, &move);
    }
    QTest::mouseRelease(m_canvas, button, modifiers, to);
}

void tst_View3D::clickSelects_data()
{
    QTest::addColumn<int>("model");
    QTest::newRow("volume") << static_cast<int>(BaseModule::GeometryComponent);
    QTest::newRow("face") << static_cast<int>(BaseModule::GeometryFace);
    QTest::newRow("node") << static_cast<int>(BaseModule::MeshNode);
    QTest::newRow("element") << static_cast<int>(BaseModule::MeshElement);
    QTest::newRow("group") << static_cast<int>(BaseModule::MeshGroup);
}

void tst_View3D::clickSelects()
{
    QFETCH(int, model);
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    selection->setSelectModelInMainWindow(static_cast<BaseModule::SelectModel>(model));
    QTest::mouseClick(m_canvas, Qt::LeftButton, Qt::NoModifier, centre());
    QCOMPARE(selection->getDataCount(), 1);
    const DataModel::SelectedDataBase* item = selection->getSelectedDataList().first();
    QCOMPARE(static_cast<int>(item->getSelectModel()), model);
    QVERIFY(item->getFirstID() > 0);
    // The same place again deselects.
    QTest::mouseClick(m_canvas, Qt::LeftButton, Qt::NoModifier, centre());
    QCOMPARE(selection->getDataCount(), 0);
}

void tst_View3D::clickReplacesAndControlAdds()
{
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    selection->setSelectModelInMainWindow(BaseModule::MeshElement);
    QTest::mouseClick(m_canvas, Qt::LeftButton, Qt::NoModifier, centre());
    QTest::mouseClick(m_canvas, Qt::LeftButton, Qt::NoModifier, centre() + QPoint(60, 20));
    QCOMPARE(selection->getDataCount(), 1);
    QTest::keyPress(m_canvas, Qt::Key_Control);
    QTest::mouseClick(m_canvas, Qt::LeftButton, Qt::ControlModifier, centre());
    QTest::keyRelease(m_canvas, Qt::Key_Control);
    QCOMPARE(selection->getDataCount(), 2);
}

// The key was pressed while somebody typed, so the view was not told.
void tst_View3D::heldControlAdds()
{
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    selection->setSelectModelInMainWindow(BaseModule::MeshElement);
    QTest::mouseClick(m_canvas, Qt::LeftButton, Qt::NoModifier, centre());
    QTest::mouseClick(m_canvas, Qt::LeftButton, Qt::ControlModifier, centre() + QPoint(60, 20));
    QCOMPARE(selection->getDataCount(), 2);
    QTest::mouseClick(m_canvas, Qt::LeftButton, Qt::ControlModifier, QPoint(4, 4));
    QCOMPARE(selection->getDataCount(), 2);
    drag(centre() - QPoint(100, 40), centre() - QPoint(60, 10), Qt::LeftButton, Qt::ControlModifier);
    QVERIFY(selection->getDataCount() > 2);
    QVERIFY(!InteractionManager::getInstance()->isActiveMultipleSelect());
    QTest::mouseClick(m_canvas, Qt::LeftButton, Qt::NoModifier, centre());
    QCOMPARE(selection->getDataCount(), 1);
}

void tst_View3D::clickBesideDeselects()
{
    QTest::mouseClick(m_canvas, Qt::LeftButton, Qt::NoModifier, centre());
    QCOMPARE(countOf(BaseModule::GeometryFace), 1);
    QTest::mouseClick(m_canvas, Qt::LeftButton, Qt::NoModifier, QPoint(4, 4));
    QCOMPARE(countOf(BaseModule::GeometryFace), 0);
}

void tst_View3D::boxSelectsWhatIsSeen()
{
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    drag(QPoint(5, 5), m_canvas->rect().bottomRight() - QPoint(5, 5));
    // From the front one face of each volume is seen.
    QCOMPARE(selection->getSelectedDataBySelectedModel(BaseModule::GeometryFace),
             (QList<QPair<int, int>>{{1, 6}, {2, 6}}));
    selection->setSelectModelInMainWindow(BaseModule::MeshNode);
    drag(centre() - QPoint(40, 40), centre() + QPoint(40, 40));
    const int few = countOf(BaseModule::MeshNode);
    QVERIFY(few > 0);
    MeshManager* meshes = MeshManager::instance();
    const QVector<double> box = meshes->getBoundingBox({m_kernel});
    for (const QPair<int, int>& node : selection->getSelectedDataBySelectedModel(BaseModule::MeshNode)) {
        QVERIFY(qAbs(meshes->getNodePosition(m_kernel, node.second).at(1) - box[2]) < 1e-9);
    }
    drag(QPoint(5, 5), m_canvas->rect().bottomRight() - QPoint(5, 5));
    QVERIFY(countOf(BaseModule::MeshNode) > few);
    // What is added with Ctrl held keeps what was there.
    const int all = countOf(BaseModule::MeshNode);
    QTest::keyPress(m_canvas, Qt::Key_Control);
    drag(centre() - QPoint(20, 20), centre() + QPoint(20, 20));
    QTest::keyRelease(m_canvas, Qt::Key_Control);
    QCOMPARE(countOf(BaseModule::MeshNode), all);
}

void tst_View3D::mouseMakesOneStepOfUndo_data()
{
    QTest::addColumn<bool>("isBox");
    QTest::addColumn<bool>("isAdding");
    QTest::newRow("box") << true << false;
    QTest::newRow("box that adds") << true << true;
    QTest::newRow("click") << false << false;
    QTest::newRow("click that adds") << false << true;
}

// Also where it takes the place of what was selected: deselecting that is no step of its own.
void tst_View3D::mouseMakesOneStepOfUndo()
{
    QFETCH(bool, isBox);
    QFETCH(bool, isAdding);
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    selection->setSelectModelInMainWindow(BaseModule::MeshElement);
    const auto selected = [selection] { return selection->getSelectedDataBySelectedModel(BaseModule::MeshElement); };
    QTest::mouseClick(m_canvas, Qt::LeftButton, Qt::NoModifier, centre() + QPoint(60, 20));
    const QList<QPair<int, int>> before = selected();
    QCOMPARE(before.size(), 1);
    SelectionUndo::instance()->forget();
    if (isAdding) {
        QTest::keyPress(m_canvas, Qt::Key_Control);
    }
    if (isBox) {
        drag(centre() - QPoint(40, 40), centre() + QPoint(40, 40));
    } else {
        QTest::mouseClick(m_canvas, Qt::LeftButton, Qt::NoModifier, centre());
    }
    if (isAdding) {
        QTest::keyRelease(m_canvas, Qt::Key_Control);
    }
    const QList<QPair<int, int>> after = selected();
    QVERIFY(after != before && !after.isEmpty());
    QUndoStack* steps = SelectionUndo::instance()->stack();
    QCOMPARE(steps->count(), 1);
    steps->undo();
    QCOMPARE(selected(), before);
    steps->redo();
    QCOMPARE(selected().size(), after.size());
}

void tst_View3D::hiddenIsNotPicked()
{
    GeometryManager* geometry = GeometryManager::instance();
    geometry->showComponents(geometry->findComponents(QString()), false);
    settle();
    QTest::mouseClick(m_canvas, Qt::LeftButton, Qt::NoModifier, centre());
    drag(QPoint(5, 5), m_canvas->rect().bottomRight() - QPoint(5, 5));
    QCOMPARE(SelectedDataManager::getInstance()->getDataCount(), 0);
    geometry->showComponents(geometry->findComponents(QString()), true);
    settle();
    QTest::mouseClick(m_canvas, Qt::LeftButton, Qt::NoModifier, centre());
    QCOMPARE(SelectedDataManager::getInstance()->getDataCount(), 1);
}

// Going on with the keyboard, as from any other widget.
void tst_View3D::tabLeavesTheView()
{
    QVERIFY(m_canvas->hasFocus());
    QTest::keyClick(m_canvas, Qt::Key_Tab);
    QVERIFY(m_field->hasFocus());
    m_canvas->setFocus();
    QTest::keyClick(m_canvas, Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(m_field->hasFocus());
}

void tst_View3D::keysChangeTheMode()
{
    InteractionManager* interaction = InteractionManager::getInstance();
    const QList<QPair<Qt::Key, BaseModule::InteractionMode>> keys = {{Qt::Key_Shift, BaseModule::Translate},
                                                                     {Qt::Key_Alt, BaseModule::Rotate},
                                                                     {Qt::Key_Control, BaseModule::Select}};
    interaction->setInteractionMode(BaseModule::Rotate);
    for (const auto& key : keys) {
        QTest::keyPress(m_canvas, key.first);
        QCOMPARE(interaction->getInteractionMode(), key.second);
        QCOMPARE(interaction->isActiveMultipleSelect(), key.first == Qt::Key_Control);
        QTest::keyRelease(m_canvas, key.first);
        QCOMPARE(interaction->getInteractionMode(), BaseModule::Rotate);
        QVERIFY(!interaction->isActiveMultipleSelect());
    }
}

void tst_View3D::lostFocusReleasesKeys()
{
    InteractionManager* interaction = InteractionManager::getInstance();
    QTest::keyPress(m_canvas, Qt::Key_Control);
    QVERIFY(interaction->isActiveMultipleSelect());
    m_field->setFocus();
    QVERIFY(!interaction->isActiveMultipleSelect());
    m_canvas->setFocus();
    QTest::keyPress(m_canvas, Qt::Key_Shift);
    QCOMPARE(interaction->getInteractionMode(), BaseModule::Translate);
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QCOMPARE(interaction->getInteractionMode(), BaseModule::Select);
}

void tst_View3D::dragMovesTheCamera_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("button");
    QTest::newRow("rotate") << static_cast<int>(BaseModule::Rotate) << static_cast<int>(Qt::LeftButton);
    QTest::newRow("translate") << static_cast<int>(BaseModule::Translate) << static_cast<int>(Qt::LeftButton);
    QTest::newRow("middle button") << static_cast<int>(BaseModule::Select) << static_cast<int>(Qt::MiddleButton);
    QTest::newRow("right button") << static_cast<int>(BaseModule::Select) << static_cast<int>(Qt::RightButton);
}

void tst_View3D::dragMovesTheCamera()
{
    QFETCH(int, mode);
    QFETCH(int, button);
    InteractionManager::getInstance()->setInteractionMode(static_cast<BaseModule::InteractionMode>(mode));
    const QImage before = picture();
    drag(centre(), centre() + QPoint(80, 30), static_cast<Qt::MouseButton>(button));
    QVERIFY(picture() != before);
    QCOMPARE(SelectedDataManager::getInstance()->getDataCount(), 0);
    ViewCommands::instance()->lookFrom(ViewCommands::Direction::Front);
    QCOMPARE(picture(), before);
}

void tst_View3D::measuresInDrawMode()
{
    InteractionManager::getInstance()->setInteractionMode(BaseModule::MouseDraw);
    const QImage before = picture();
    drag(centre() - QPoint(60, 0), centre() + QPoint(60, 10));
    QVERIFY(picture() != before);
    QCOMPARE(SelectedDataManager::getInstance()->getDataCount(), 0);
    drag(QPoint(3, 3), QPoint(20, 20)); // beside the model nothing is measured
    QCOMPARE(picture(), before);
}

WORKBENCH_TEST_MAIN(tst_View3D)
#include "tst_view3d.moc"
