// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"
#include "WindowTest.h"

#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MeshDisplay.h>
#include <workbench/project/Project.h>
#include <workbench/selection/SelectionUndo.h>
#include <workbench/view/HighlightState.h>
#include <workbench/view/View3D.h>
#include <workbench/view/ViewCommands.h>

#include <basemodule/IBaseSignal.h>
#include <basemodule/SelectModel.h>
#include <datamanager/frame/InteractionManager.h>
#include <datamanager/selection/SelectedDataManager.h>
#include <datamodel/SelectedDataBase.h>

#include <QImage>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTemporaryDir>
#include <QUndoStack>
#include <QVBoxLayout>
#include <QVTKOpenGLNativeWidget.h>

using DataManager::InteractionManager;
using DataManager::SelectedDataManager;
using namespace Workbench;

// A unit cube, seen from the front: its near side fills most of the view.
class tst_View3D : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void clickSelects_data();
    void clickSelects();
    void clickReplacesAndControlAdds();
    void heldControlAdds();
    void clickBesideDeselects();
    void boxSelectsWhatIsSeen();
    void mouseMakesOneStepOfUndo_data();
    void mouseMakesOneStepOfUndo();
    void hiddenIsNotPicked();
    void hiddenGroupIsNotDrawn();
    void keysChangeTheMode();
    void tabLeavesTheView();
    void lostFocusReleasesKeys();
    void dragMovesTheCamera_data();
    void dragMovesTheCamera();
    void measuresInDrawMode();
    void highlightFollowsTheHub();
    void highlightIsDrawn();
    void transparencyFollowsTheHub();
    void coloursByMetric();
    void screenshotFailure();

private:
    QImage picture();
    QPoint centre() const { return m_canvas->rect().center(); }
    void drag(const QPoint& from, const QPoint& to, Qt::MouseButton button = Qt::LeftButton,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void settle() { QTest::qWait(60); }
    static int countOf(BaseModule::SelectModel model)
    {
        return SelectedDataManager::getInstance()->getSelectedDataBySelectedModel(model).size();
    }
    static int pixelsNear(const QImage& image, const QColor& colour);

    QTemporaryDir m_directory;
    std::unique_ptr<QWidget> m_window;
    View3D* m_view = nullptr;
    QLineEdit* m_field = nullptr;
    QVTKOpenGLNativeWidget* m_canvas = nullptr;
    int m_kernel = 0;
};

void tst_View3D::initTestCase()
{
    Project::instance();
    m_window = std::make_unique<QWidget>();
    m_window->resize(600, 480);
    auto* layout = new QVBoxLayout(m_window.get());
    m_field = new QLineEdit(m_window.get());
    m_view = new View3D(m_window.get());
    layout->addWidget(m_field);
    layout->addWidget(m_view);
    m_canvas = m_view->findChild<QVTKOpenGLNativeWidget*>();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_kernel = openMesh(samplePath("graded-block.msh"));
    QVERIFY(m_kernel > 0);
}

void tst_View3D::init()
{
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_canvas->setFocus();
    SelectedDataManager::getInstance()->clearAllSelectedTarget();
    SelectedDataManager::getInstance()->setSelectModelInMainWindow(BaseModule::GeometryFace);
    InteractionManager::getInstance()->setInteractionMode(BaseModule::Select);
    MeshDisplay::instance()->colourByFace();
    ViewCommands::instance()->lookFrom(ViewCommands::Direction::Front);
    settle();
}

void tst_View3D::cleanupTestCase()
{
    m_window.reset();
    Project::instance()->close();
}

QImage tst_View3D::picture()
{
    settle();
    const QString path = m_directory.filePath(QStringLiteral("picture.png"));
    ViewCommands::instance()->saveScreenshot(path);
    return QImage(path);
}

int tst_View3D::pixelsNear(const QImage& image, const QColor& colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            const int turn = qAbs(pixel.hsvHue() - colour.hsvHue());
            const int distance = qMin(turn, 360 - turn);
            count += pixel.hsvSaturation() > 120 && distance < 12 ? 1 : 0;
        }
    }
    return count;
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

// Whether it is still selected or, in the tree, selected while it is hidden.
void tst_View3D::hiddenGroupIsNotDrawn()
{
    const QColor highlight(255, 140, 0);
    MeshManager* meshes = MeshManager::instance();
    GeometryManager* geometry = GeometryManager::instance();
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    const int before = pixelsNear(picture(), highlight);
    selection->setSelectModelInMainWindow(BaseModule::MeshGroup);
    QMultiMap<int, int> groups;
    QList<QPair<int, int>> pairs;
    for (const int group : meshes->findGroups(m_kernel, QString())) {
        groups.insert(m_kernel, group);
        pairs.append({m_kernel, group});
    }
    selection->addSelectedTargetList(BaseModule::MeshGroup, pairs);
    QVERIFY(pixelsNear(picture(), highlight) > before + 10000);
    geometry->showComponents(geometry->findComponents(QString()), false);
    QCOMPARE(pixelsNear(picture(), highlight), 0);
    geometry->showComponents(geometry->findComponents(QString()), true);
    QVERIFY(pixelsNear(picture(), highlight) > before + 10000);
    meshes->showGroups(groups, false);
    QCOMPARE(selection->getDataCount(), 0);
    selection->addSelectedTargetList(BaseModule::MeshGroup, pairs);
    QCOMPARE(pixelsNear(picture(), highlight), 0);
    meshes->showGroups(groups, true);
    QVERIFY(pixelsNear(picture(), highlight) > before + 10000);
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

void tst_View3D::highlightFollowsTheHub()
{
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    const HighlightState state;
    const auto isSame = [&] {
        for (int model = 0; model <= 10; ++model) {
            const auto pairs = selection->getSelectedDataBySelectedModel(static_cast<BaseModule::SelectModel>(model));
            const ItemSet& items = state.items(model);
            const auto isThere = [&items](const QPair<int, int>& pair) { return items.contains(pair); };
            const QSet<QPair<int, int>> once(pairs.begin(), pairs.end());
            if (static_cast<int>(items.count()) != once.size() || !std::all_of(once.begin(), once.end(), isThere)) {
                return false;
            }
        }
        return true;
    };
    selection->setSelectModelInMainWindow(BaseModule::MeshNode);
    selection->addSelectedTargetList(BaseModule::MeshNode, {{m_kernel, 1}, {m_kernel, 2}, {m_kernel, 3}, {9, 4}});
    QVERIFY(isSame() && !state.isEmpty());
    selection->removeSelectedTargetList(BaseModule::MeshNode, {{m_kernel, 2}});
    QVERIFY(isSame());
    selection->removeSelectedTargetList(BaseModule::MeshNode, {{m_kernel, -1}});
    QVERIFY(isSame());
    selection->removeSelectedTargets(BaseModule::MeshNode, {9});
    QVERIFY(isSame() && !state.isEmpty());
    selection->setSelectModelInMainWindow(BaseModule::GeometryComponent);
    QVERIFY(isSame() && state.isEmpty());
    selection->clickViewObject(1, -1);
    QVERIFY(isSame() && !state.isEmpty());
    selection->clearAllSelectedTarget();
    QVERIFY(isSame() && state.isEmpty());
}

void tst_View3D::highlightIsDrawn()
{
    const QColor highlight(255, 140, 0);
    const int before = pixelsNear(picture(), highlight);
    QTest::mouseClick(m_canvas, Qt::LeftButton, Qt::NoModifier, centre());
    const int selected = pixelsNear(picture(), highlight);
    QVERIFY2(selected > before + 10000, qPrintable(QStringLiteral("%1, %2").arg(before).arg(selected)));
    SelectedDataManager::getInstance()->clearAllSelectedTarget();
    QCOMPARE(pixelsNear(picture(), highlight), before);
    // An element inside is seen, too.
    MeshManager* meshes = MeshManager::instance();
    const auto mesh = meshes->mesh(m_kernel);
    std::vector<char> isAtSkin(static_cast<std::size_t>(mesh->report.elementCount()), 0);
    for (const BoundaryFace& face : mesh->faces) {
        isAtSkin[static_cast<std::size_t>(face.element)] = 1;
    }
    const auto inside = std::find(isAtSkin.begin(), isAtSkin.end(), '\0') - isAtSkin.begin();
    const int element = mesh->elementNumbers.number(static_cast<int>(inside));
    MeshDisplay::instance()->focusElement(m_kernel, element);
    SelectedDataManager::getInstance()->setSelectModelInMainWindow(BaseModule::MeshElement);
    const int focused = pixelsNear(picture(), QColor(214, 39, 40));
    QVERIFY2(focused > 300, qPrintable(QString::number(focused)));
}

// The hub's signal alone: what the settings say of themselves is kept from the view.
void tst_View3D::transparencyFollowsTheHub()
{
    MeshDisplay* display = MeshDisplay::instance();
    const auto setUnheard = [display](double transparency) {
        const QSignalBlocker silence(display);
        display->setTransparency(transparency);
    };
    const QImage opaque = picture();
    setUnheard(0.6);
    QCOMPARE(picture(), opaque);
    Q_EMIT BaseModule::IBaseSignal::getInstance()->signal_updateGeomrtryActorTransparency({});
    const QImage transparent = picture();
    QVERIFY(transparent != opaque);
    setUnheard(0);
    QCOMPARE(picture(), transparent);
    Q_EMIT BaseModule::IBaseSignal::getInstance()->signal_updateGeomrtryActorTransparency({});
    QCOMPARE(picture(), opaque);
}

void tst_View3D::coloursByMetric()
{
    const QImage plain = picture();
    MeshDisplay::instance()->colourByMetric(DataManager::MeshQualityReport::Metric::Shape);
    const QImage shape = picture();
    QVERIFY(shape != plain);
    MeshDisplay::instance()->colourByMetric(DataManager::MeshQualityReport::Metric::Volume);
    QVERIFY(picture() != shape);
    MeshDisplay::instance()->colourByFace();
    QCOMPARE(picture(), plain);
    MeshDisplay::instance()->setTransparency(0.6);
    QVERIFY(picture() != plain);
    MeshDisplay::instance()->setTransparency(-3);
    QCOMPARE(MeshDisplay::instance()->transparency(), 0.0);
    MeshDisplay::instance()->showEdges(false);
    QVERIFY(picture() != plain);
    MeshDisplay::instance()->showEdges(true);
    QCOMPARE(picture(), plain);
}

void tst_View3D::screenshotFailure()
{
    Messages messages;
    ViewCommands::instance()->saveScreenshot(m_directory.filePath(QStringLiteral("no/such/place.png")));
    QCOMPARE(messages.list.size(), 1);
    QVERIFY(messages.list.first().contains(QStringLiteral("cannot be saved")));
}

WORKBENCH_TEST_MAIN(tst_View3D)
#include "tst_view3d.moc"
