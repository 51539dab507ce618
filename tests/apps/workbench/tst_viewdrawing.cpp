// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"
#include "ViewFixture.h"
#include "WindowTest.h"

#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MeshDisplay.h>
#include <workbench/view/HighlightState.h>

#include <basemodule/IBaseSignal.h>
#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QSignalBlocker>

using DataManager::SelectedDataManager;
using namespace Workbench;

namespace {

int pixelsNear(const QImage& image, const QColor& colour)
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

} // namespace

/// What the view draws of selection, colours and settings, of a unit cube seen from the front.
class tst_ViewDrawing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase() { m_fixture.reset(); }

    void hiddenGroupIsNotDrawn();
    void highlightFollowsTheHub();
    void highlightIsDrawn();
    void transparencyFollowsTheHub();
    void coloursByMetric();
    void screenshotFailure();

private:
    QImage picture() const { return m_fixture->picture(); }

    std::unique_ptr<ViewFixture> m_fixture;
    int m_kernel = 0;
};

void tst_ViewDrawing::initTestCase()
{
    m_fixture = std::make_unique<ViewFixture>(QSize(600, 480));
    QVERIFY(m_fixture->isReady());
    m_kernel = openMesh(samplePath("graded-block.msh"));
    QVERIFY(m_kernel > 0);
}

void tst_ViewDrawing::init()
{
    SelectedDataManager::getInstance()->clearAllSelectedTarget();
    SelectedDataManager::getInstance()->setSelectModelInMainWindow(BaseModule::GeometryFace);
    MeshDisplay::instance()->colourByFace();
    ViewCommands::instance()->lookFrom(ViewCommands::Direction::Front);
}

// Whether it is still selected or, in the tree, selected while it is hidden.
void tst_ViewDrawing::hiddenGroupIsNotDrawn()
{
    const QColor highlight(255, 140, 0);
    MeshManager* meshes = MeshManager::instance();
    GeometryManager* geometry = GeometryManager::instance();
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    const int before = pixelsNear(picture(), highlight);
    geometry->showComponents(geometry->findComponents(QString()), false);
    const int empty = pixelsNear(picture(), highlight); // the axes
    QVERIFY(empty < 100);
    geometry->showComponents(geometry->findComponents(QString()), true);
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
    QCOMPARE(pixelsNear(picture(), highlight), empty);
    geometry->showComponents(geometry->findComponents(QString()), true);
    QVERIFY(pixelsNear(picture(), highlight) > before + 10000);
    meshes->showGroups(groups, false);
    QCOMPARE(selection->getDataCount(), 0);
    selection->addSelectedTargetList(BaseModule::MeshGroup, pairs);
    QCOMPARE(pixelsNear(picture(), highlight), empty);
    meshes->showGroups(groups, true);
    QVERIFY(pixelsNear(picture(), highlight) > before + 10000);
}

void tst_ViewDrawing::highlightFollowsTheHub()
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

void tst_ViewDrawing::highlightIsDrawn()
{
    const QColor highlight(255, 140, 0);
    const int before = pixelsNear(picture(), highlight);
    QTest::mouseClick(m_fixture->canvas, Qt::LeftButton, Qt::NoModifier, m_fixture->canvas->rect().center());
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
void tst_ViewDrawing::transparencyFollowsTheHub()
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

void tst_ViewDrawing::coloursByMetric()
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

void tst_ViewDrawing::screenshotFailure()
{
    const QTemporaryDir directory;
    Messages messages;
    ViewCommands::instance()->saveScreenshot(directory.filePath(QStringLiteral("no/such/place.png")));
    QCOMPARE(messages.list.size(), 1);
    QVERIFY(messages.list.first().contains(QStringLiteral("cannot be saved")));
}

WORKBENCH_TEST_MAIN(tst_ViewDrawing)
#include "tst_viewdrawing.moc"
