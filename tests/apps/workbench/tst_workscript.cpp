// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "PictureComparison.h"
#include "Samples.h"
#include "ScriptedWindowTest.h"
#include "Widgets.h"
#include "WindowTest.h"

#include <workbench/coordinates/CoordinateDock.h>
#include <workbench/coordinates/CoordinateSystems.h>
#include <workbench/geometry/GeometryManager.h>
#include <workbench/material/MaterialDock.h>
#include <workbench/project/Project.h>
#include <workbench/quality/ScoreHistory.h>
#include <workbench/selection/ProjectTree.h>

#include <basemodule/SelectModel.h>
#include <datamanager/frame/InteractionManager.h>
#include <datamanager/meshquality/MeshQualityPredict.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QTreeView>
#include <QTreeWidget>
#include <QVTKOpenGLNativeWidget.h>

#include <vtkCamera.h>

#include <cmath>
#include <set>

using DataManager::InteractionManager;
using DataManager::MeshQualityPredict;
using DataManager::SelectedDataManager;
using namespace Workbench;
using Items = QList<QPair<int, int>>;

namespace {

SelectedDataManager& selection()
{
    return *SelectedDataManager::getInstance();
}

Items selectedItems(BaseModule::SelectModel model)
{
    return selection().getSelectedDataBySelectedModel(model);
}

// By the model alone, which enters nothing in the history.
float scoreOfMesh(int kernelID)
{
    DataManager::QualityModelCard::Features means = MeshManager::instance()->mesh(kernelID)->report.features();
    return MeshQualityPredict::getinstance()->inferFigure(means.data());
}

QString fileWithProject(const QTemporaryDir& directory)
{
    return directory.filePath(QStringLiteral("plate.wbproj"));
}

} // namespace

// One sitting in the whole window, from the geometry to the project that is opened again: each function goes on where
// the one before it ended. The plate is 0.2 long, 0.1 wide and 0.012 high, with a hole left of its middle.
class tst_WorkScript : public ScriptedWindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { end(); }

    void meshes();
    void clicksFaces();
    void boxesElements();
    void selectsByTree();
    void keysMoveTheModel();
    void losesTheFocus();
    void meshesAgain();
    void createsAMaterial();
    void assignsTheMaterial();
    void createsACoordinateSystem();
    void savesAndReopens();

private:
    /// Whether all nodes of a face lie at that coordinate.
    bool liesAt(const QPair<int, int>& face, std::size_t axis, double coordinate) const;
    static bool isCornerThere();
    static int kernel() { return MeshManager::instance()->findKernels(QString()).value(0); }
};

void tst_WorkScript::initTestCase()
{
    QFile::remove(ScoreHistory::modelPath());
    QVERIFY(QFile::copy(QStringLiteral(DATAMANAGER_SOURCE_DIR "/model/mesh.onnx"), ScoreHistory::modelPath()));
    showWindow();
}

bool tst_WorkScript::liesAt(const QPair<int, int>& face, std::size_t axis, double coordinate) const
{
    const auto mesh = MeshManager::instance()->mesh(kernel());
    int count = 0;
    for (const BoundaryFace& triangle : mesh->faces) {
        if (mesh->patches[static_cast<std::size_t>(triangle.patch)].faceID != face.second) {
            continue;
        }
        for (int node : triangle.nodes) {
            ++count;
            if (std::abs(mesh->report.node(node)[axis] - coordinate) > 1e-9) {
                return false;
            }
        }
    }
    return count > 0;
}

bool tst_WorkScript::isCornerThere()
{
    const CoordinateDefinition corner = CoordinateSystems::definition(1);
    const Vector3 offset = {0.2, 0.1, 0.012};
    const Vector3 angles = {0, 0, std::acos(-1.0) / 2};
    return corner.name == QLatin1String("corner") && corner.type == BaseModule::Cartesian && corner.offset == offset &&
           corner.angles == angles;
}

void tst_WorkScript::meshes()
{
    m_window->openFile(samplePath("plate-with-hole.geo"));
    mesh(QStringLiteral("0.01"));
    QCOMPARE(MeshManager::instance()->getKernelCount(), 1);
    QCOMPARE(GeometryManager::instance()->findComponents(QString()).size(), 1);
    // The library's predictor has kept one score, this mesh's.
    QCOMPARE(ScoreHistory::instance()->outcome(), ScoreHistory::Outcome::Scored);
    QCOMPARE(ScoreHistory::instance()->given(), 1);
    std::vector<float> scores(10, 0.0F);
    scores.back() = scoreOfMesh(kernel());
    QVERIFY(scores.back() > 0 && scores.back() <= 1);
    QCOMPARE(MeshQualityPredict::getinstance()->getOutput(), scores);
}

void tst_WorkScript::clicksFaces()
{
    choose("Faces");
    choose("Top");
    clickAt(0.15, 0.05, 0.012);
    QCOMPARE(selection().getDataCount(), 1);
    const QPair<int, int> top = selectedItems(BaseModule::GeometryFace).value(0);
    QVERIFY(liesAt(top, 2, 0.012));
    // Nothing is found in the hole.
    clickAt(0.07, 0.045, 0.012);
    QCOMPARE(selection().getDataCount(), 0);
    clickAt(0.15, 0.05, 0.012);
    choose("Front");
    QTest::keyPress(m_canvas, Qt::Key_Control);
    clickAt(0.1, 0, 0.006);
    QTest::keyRelease(m_canvas, Qt::Key_Control);
    const Items two = selectedItems(BaseModule::GeometryFace);
    QCOMPARE(two.size(), 2);
    QCOMPARE(two.value(0), top);
    QVERIFY(liesAt(two.value(1), 1, 0));
    QCOMPARE(m_window->findChild<ProjectTree*>()->findChild<QTreeWidget*>()->selectedItems().size(), 2);
}

// Those of which a triangle on top is in the box, by the camera's own scale.
void tst_WorkScript::boxesElements()
{
    choose("Elements");
    QCOMPARE(selection().getDataCount(), 0); // faces and elements are not selected together
    choose("Top");
    const QPoint from = placeOf(0.11, 0.08, 0.012).toPoint();
    const QPoint to = placeOf(0.16, 0.03, 0.012).toPoint();
    drag(from, to);
    const auto mesh = MeshManager::instance()->mesh(kernel());
    std::set<int> inside;
    std::set<int> touched;
    for (const BoundaryFace& triangle : mesh->faces) {
        QRectF extent;
        QPointF centre;
        for (int node : triangle.nodes) {
            const std::array<double, 3>& position = mesh->report.node(node);
            const QPointF place = placeOf(position[0], position[1], position[2]);
            extent =
                extent.isNull() ? QRectF(place, QSizeF(1e-9, 1e-9)) : extent.united(QRectF(place, QSizeF(1e-9, 1e-9)));
            centre += place / 3;
        }
        const bool isOnTop = std::all_of(triangle.nodes.begin(), triangle.nodes.end(), [&mesh](int node) {
            return std::abs(mesh->report.node(node)[2] - 0.012) < 1e-9;
        });
        const int number = mesh->elementNumbers.number(triangle.element);
        if (isOnTop && QRectF(from, to).adjusted(2, 2, -2, -2).contains(centre)) {
            inside.insert(number);
        }
        if (isOnTop && QRectF(from, to).adjusted(-2, -2, 2, 2).intersects(extent)) {
            touched.insert(number);
        }
    }
    std::set<int> found;
    for (const QPair<int, int>& element : selectedItems(BaseModule::MeshElement)) {
        QCOMPARE(element.first, kernel());
        found.insert(element.second);
    }
    QVERIFY(inside.size() > 20);
    QVERIFY(std::includes(found.begin(), found.end(), inside.begin(), inside.end()));
    QVERIFY(std::includes(touched.begin(), touched.end(), found.begin(), found.end()));
    // With Ctrl held a box adds; without, it replaces.
    const int count = selection().getDataCount();
    QTest::keyPress(m_canvas, Qt::Key_Control);
    drag(placeOf(0.17, 0.08, 0.012).toPoint(), placeOf(0.19, 0.03, 0.012).toPoint());
    QTest::keyRelease(m_canvas, Qt::Key_Control);
    const int more = selection().getDataCount();
    QVERIFY(more > count);
    drag(placeOf(0.17, 0.08, 0.012).toPoint(), placeOf(0.19, 0.03, 0.012).toPoint());
    QVERIFY(selection().getDataCount() < more);
}

void tst_WorkScript::selectsByTree()
{
    auto* tree = m_window->findChild<ProjectTree*>()->findChild<QTreeWidget*>();
    QTreeWidgetItem* line = tree->findItems(QStringLiteral("hole"), Qt::MatchExactly | Qt::MatchRecursive).value(0);
    QVERIFY(line != nullptr);
    line->parent()->setExpanded(true);
    tree->scrollToItem(line);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, tree->visualItemRect(line).center());
    settle();
    QCOMPARE(selection().getSelectModel(), BaseModule::GeometryFace);
    const Items items = selectedItems(BaseModule::GeometryFace);
    QCOMPARE(items.size(), 1);
    QCOMPARE(GeometryManager::instance()->getFaceName(items[0].first, items[0].second), QStringLiteral("hole"));
    QCOMPARE(selection().getDataCount(), 1);
}

void tst_WorkScript::keysMoveTheModel()
{
    choose("Isometric");
    m_canvas->setFocus();
    const Items before = selectedItems(BaseModule::GeometryFace);
    const QPoint centre = m_canvas->rect().center();
    const std::array<double, 3> direction = [this] {
        std::array<double, 3> now{};
        camera().GetDirectionOfProjection(now.data());
        return now;
    }();
    // With Shift held the model goes along with the mouse and is not turned.
    const QPointF corner = placeOf(0, 0, 0);
    QTest::keyPress(m_canvas, Qt::Key_Shift);
    drag(centre, centre + QPoint(50, -30));
    QTest::keyRelease(m_canvas, Qt::Key_Shift);
    const QPointF moved = placeOf(0, 0, 0) - corner;
    QVERIFY2(std::hypot(moved.x() - 50, moved.y() + 30) < 1e-6,
             qPrintable(QStringLiteral("%1 %2").arg(moved.x()).arg(moved.y())));
    std::array<double, 3> now{};
    camera().GetDirectionOfProjection(now.data());
    QVERIFY(std::hypot(now[0] - direction[0], now[1] - direction[1], now[2] - direction[2]) < 1e-12);
    // With Alt held it is turned.
    QTest::keyPress(m_canvas, Qt::Key_Alt);
    drag(centre, centre + QPoint(50, -30));
    QTest::keyRelease(m_canvas, Qt::Key_Alt);
    camera().GetDirectionOfProjection(now.data());
    QVERIFY(std::hypot(now[0] - direction[0], now[1] - direction[1], now[2] - direction[2]) > 0.05);
    QCOMPARE(selectedItems(BaseModule::GeometryFace), before);
    QCOMPARE(InteractionManager::getInstance()->getInteractionMode(), BaseModule::Select);
}

void tst_WorkScript::losesTheFocus()
{
    choose("Top");
    m_canvas->setFocus();
    QTest::keyPress(m_canvas, Qt::Key_Control);
    QVERIFY(InteractionManager::getInstance()->isActiveMultipleSelect());
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QVERIFY(!InteractionManager::getInstance()->isActiveMultipleSelect());
    other.close();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    // The key's release was never told, and yet a click selects one thing alone.
    clickAt(0.15, 0.05, 0.012);
    QCOMPARE(selection().getDataCount(), 1);
    QVERIFY(liesAt(selectedItems(BaseModule::GeometryFace).value(0), 2, 0.012));
}

void tst_WorkScript::meshesAgain()
{
    camera().Azimuth(12);
    camera().SetParallelScale(0.02); // a detail
    std::array<double, 3> before{};
    camera().GetPosition(before.data());
    const int elements = MeshManager::instance()->getElementCount(kernel());
    choose("Mesh the geometry…");
    mesh(QStringLiteral("0.006"));
    QVERIFY(MeshManager::instance()->getElementCount(kernel()) > elements);
    QCOMPARE(selection().getDataCount(), 0); // what was selected is gone with the mesh
    std::array<double, 3> now{};
    camera().GetPosition(now.data());
    QCOMPARE(now, before);
    QCOMPARE(camera().GetParallelScale(), 0.02);
}

void tst_WorkScript::createsAMaterial()
{
    click(raised<MaterialDock>(), "createProject");
    QWidget* dialog = windowNamed("materialDialog");
    QVERIFY(dialog != nullptr);
    type(*dialog, "englishName", QStringLiteral("Mica"));
    type(*dialog, "chineseName", QStringLiteral("云母"));
    press(*dialog, QDialogButtonBox::Ok);
    finishClosing();
    QCOMPARE(projectMaterials(), QStringLiteral("1 Mica"));
}

void tst_WorkScript::assignsTheMaterial()
{
    choose("Volumes");
    auto* tree = raised<ProjectTree>().findChild<QTreeWidget*>();
    const QString volume = GeometryManager::instance()->getComponentName(1);
    QTreeWidgetItem* line = tree->findItems(volume, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    QVERIFY(line != nullptr);
    tree->scrollToItem(line);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, tree->visualItemRect(line).center());
    settle();
    QCOMPARE(selectedItems(BaseModule::GeometryComponent), (Items{{1, -1}}));
    auto& view = part<QTreeView>(raised<MaterialDock>(), "materialsProject");
    const QPoint mica = view.visualRect(view.model()->index(0, 1)).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, mica);
    click(raised<MaterialDock>(), "assign");
    QCOMPARE(GeometryManager::instance()->getMaterialID(1), 1);
}

void tst_WorkScript::createsACoordinateSystem()
{
    click(raised<CoordinateDock>(), "createSystem");
    QWidget* dialog = windowNamed("coordinateDialog");
    QVERIFY(dialog != nullptr);
    type(*dialog, "name", QStringLiteral("corner"));
    type(*dialog, "offsetX", QStringLiteral("0.2"));
    type(*dialog, "offsetY", QStringLiteral("0.1"));
    type(*dialog, "offsetZ", QStringLiteral("0.012"));
    type(*dialog, "angleZ", QStringLiteral("90"));
    press(*dialog, QDialogButtonBox::Ok);
    finishClosing();
    QVERIFY(isCornerThere());
}

void tst_WorkScript::savesAndReopens()
{
    GeometryManager* geometry = GeometryManager::instance();
    choose("Isometric");
    choose("Elements");
    const QImage plain = picture();
    Items some;
    for (int place = 0; place < 600; ++place) {
        some.append({kernel(), MeshManager::instance()->mesh(kernel())->elementNumbers.number(place)});
    }
    selection().addSelectedTargetList(BaseModule::MeshElement, some);
    settle();
    const QImage selected = picture();
    QVERIFY(!differenceOf(plain, selected).isSmall());
    const int elements = MeshManager::instance()->getElementCount(kernel());
    const QList<int> faces = geometry->getFaces(1);

    const std::vector<float> scores = MeshQualityPredict::getinstance()->getOutput();
    const float score = ScoreHistory::instance()->score();

    saveAs(fileWithProject(m_directory));
    QVERIFY(Project::instance()->create());
    settle();
    QCOMPARE(selection().getDataCount(), 0);
    QCOMPARE(projectMaterials(), QString());
    QVERIFY(!isCornerThere());
    QVERIFY(!differenceOf(plain, picture()).isSmall());
    m_window->openFile(fileWithProject(m_directory));
    QVERIFY(QTest::qWaitFor([] { return !MeshManager::instance()->isLoading(); }, 30000));
    settle();
    QCOMPARE(MeshManager::instance()->getElementCount(kernel()), elements);
    QCOMPARE(projectMaterials(), QStringLiteral("1 Mica"));
    QCOMPARE(geometry->getMaterialID(1), 1);
    QCOMPARE(geometry->getFaces(1), faces);
    QVERIFY(isCornerThere());
    // It is the mesh that was scored last.
    QCOMPARE(ScoreHistory::instance()->outcome(), ScoreHistory::Outcome::Unchanged);
    QCOMPARE(ScoreHistory::instance()->score(), score);
    QCOMPARE(MeshQualityPredict::getinstance()->getOutput(), scores);
    choose("Isometric");
    QVERIFY2(differenceOf(plain, picture()).isSmall(), qPrintable(differenceOf(plain, picture()).text()));
    for (QPair<int, int>& element : some) {
        element.first = kernel();
    }
    selection().addSelectedTargetList(BaseModule::MeshElement, some);
    settle();
    QVERIFY2(differenceOf(selected, picture()).isSmall(), qPrintable(differenceOf(selected, picture()).text()));
}

WORKBENCH_TEST_MAIN(tst_WorkScript)
#include "tst_workscript.moc"
