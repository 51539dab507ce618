// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"
#include "ViewFixture.h"
#include "WindowTest.h"

#include <workbench/coordinates/CoordinateDock.h>
#include <workbench/coordinates/CoordinateSystems.h>

#include <basemodule/SelectModel.h>
#include <basewidget/FixedPixelSizeAxesActor.h>
#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>
#include <datamanager/frame/InteractionManager.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QMouseEvent>
#include <QTreeWidget>

#include <vtkCamera.h>

using DataManager::SelectedDataManager;
using namespace Workbench;
using Items = QList<QPair<int, int>>;

// Systems are chosen by their axes. The sample block is 4 long and is seen from the front: X to the right, Z upwards.
class tst_ViewAxes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void clickSelects_data();
    void clickSelects();
    void hiddenIsNotPicked();
    void boxSelects();
    void otherModelsPassThem();
    void dockFollows();

private:
    /// `right` and `up` are pixels from where a point of the model is seen.
    QPoint beside(double x, double z, double right, double up) const;
    static Items selected()
    {
        return SelectedDataManager::getInstance()->getSelectedDataBySelectedModel(BaseModule::CoordinateAxes);
    }

    std::unique_ptr<ViewFixture> m_view;
    std::unique_ptr<CoordinateDock> m_dock;
};

void tst_ViewAxes::initTestCase()
{
    m_view = std::make_unique<ViewFixture>(QSize(600, 400));
    QVERIFY(m_view->isReady());
    m_dock = std::make_unique<CoordinateDock>();
    QVERIFY(openMesh(samplePath("graded-block.msh")) > 0);
}

void tst_ViewAxes::init()
{
    CoordinateSystems* systems = CoordinateSystems::instance();
    systems->clearProject();
    // One and three lengths to the right of the global one; the second's X axis points down, its Z axis to the right.
    systems->create(0, {QStringLiteral("near"), BaseModule::Cartesian, {1.5, 0, 0}, {0, 0, 0}});
    systems->create(0, {QStringLiteral("far"), BaseModule::Cartesian, {3, 0, 0.25}, {0, 1.5707963267948966, 0}});
    systems->showAxes(true);
    DataManager::InteractionManager::getInstance()->setInteractionMode(BaseModule::Select);
    SelectedDataManager::getInstance()->clearAllSelectedTarget();
    SelectedDataManager::getInstance()->setSelectModelInMainWindow(BaseModule::CoordinateAxes);
    ViewCommands::instance()->lookFrom(ViewCommands::Direction::Front);
    QTest::qWait(60);
}

void tst_ViewAxes::cleanupTestCase()
{
    CoordinateSystems::instance()->clearProject();
    m_dock.reset();
    m_view.reset();
}

// The camera looks along Y, so a length of the model is seen as many pixels as the window's height is to what is seen.
QPoint tst_ViewAxes::beside(double x, double z, double right, double up) const
{
    vtkCamera& camera = *m_view->renderer().GetActiveCamera();
    const double pixels = m_view->canvas->height() / (2 * camera.GetParallelScale());
    const double* focus = camera.GetFocalPoint();
    return QPointF(m_view->canvas->width() / 2.0 + (x - focus[0]) * pixels + right,
                   m_view->canvas->height() / 2.0 - (z - focus[2]) * pixels - up)
        .toPoint();
}

void tst_ViewAxes::clickSelects_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("z");
    QTest::addColumn<double>("right");
    QTest::addColumn<double>("up");
    QTest::addColumn<Items>("expected");
    const Items none;
    const Items global = {{0, -1}};
    const Items near = {{1, -1}};
    const Items far = {{2, -1}};
    // Axes are 80 pixels long.
    QTest::newRow("origin") << 1.5 << 0.0 << 0.0 << 0.0 << near;
    QTest::newRow("along X") << 1.5 << 0.0 << 60.0 << 0.0 << near;
    QTest::newRow("along Z") << 1.5 << 0.0 << 0.0 << 75.0 << near;
    QTest::newRow("beyond Z") << 1.5 << 0.0 << 0.0 << 90.0 << none;
    QTest::newRow("beside Z") << 1.5 << 0.0 << 5.0 << 40.0 << near;
    QTest::newRow("farther beside Z") << 1.5 << 0.0 << 12.0 << 40.0 << none;
    QTest::newRow("against Z") << 1.5 << 0.0 << 0.0 << -20.0 << none;
    QTest::newRow("global") << 0.0 << 0.0 << 0.0 << 40.0 << global;
    QTest::newRow("turned, its X") << 3.0 << 0.25 << 0.0 << -50.0 << far;
    QTest::newRow("turned, its Z") << 3.0 << 0.25 << 50.0 << 0.0 << far;
    QTest::newRow("turned, against its X") << 3.0 << 0.25 << 0.0 << 50.0 << none;
}

void tst_ViewAxes::clickSelects()
{
    QFETCH(double, x);
    QFETCH(double, z);
    QFETCH(double, right);
    QFETCH(double, up);
    QFETCH(Items, expected);
    QTest::mouseClick(m_view->canvas, Qt::LeftButton, Qt::NoModifier, beside(x, z, right, up));
    QCOMPARE(selected(), expected);
    // The size on the screen stays, also when the camera comes nearer.
    SelectedDataManager::getInstance()->clearAllSelectedTarget();
    m_view->renderer().GetActiveCamera()->Zoom(1.3);
    QTest::mouseClick(m_view->canvas, Qt::LeftButton, Qt::NoModifier, beside(x, z, right, up));
    QCOMPARE(selected(), expected);
}

void tst_ViewAxes::hiddenIsNotPicked()
{
    CoordinateSystems::instance()->showAxes(1, false);
    QTest::mouseClick(m_view->canvas, Qt::LeftButton, Qt::NoModifier, beside(1.5, 0, 0, 60));
    QCOMPARE(selected(), Items());
    CoordinateSystems::instance()->showAxes(1, true);
    QTest::mouseClick(m_view->canvas, Qt::LeftButton, Qt::NoModifier, beside(1.5, 0, 0, 60));
    QCOMPARE(selected(), (Items{{1, -1}}));
}

void tst_ViewAxes::boxSelects()
{
    const QPoint from = beside(-0.5, 0, 0, 30);
    const QPoint to = beside(2, 0, 0, -30);
    QTest::mousePress(m_view->canvas, Qt::LeftButton, Qt::NoModifier, from);
    QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_view->canvas, &move);
    QTest::mouseRelease(m_view->canvas, Qt::LeftButton, Qt::NoModifier, to);
    QCOMPARE(selected(), (Items{{0, -1}, {1, -1}}));
}

void tst_ViewAxes::otherModelsPassThem()
{
    SelectedDataManager::getInstance()->setSelectModelInMainWindow(BaseModule::GeometryFace);
    QTest::mouseClick(m_view->canvas, Qt::LeftButton, Qt::NoModifier, beside(3, 0.25, 0, -10));
    QCOMPARE(SelectedDataManager::getInstance()->getSelectedDataBySelectedModel(BaseModule::GeometryFace).size(), 1);
    QCOMPARE(selected(), Items());
}

void tst_ViewAxes::dockFollows()
{
    const auto chosen = [this] { return m_dock->findChild<QTreeWidget*>()->currentItem()->text(0); };
    QTest::mouseClick(m_view->canvas, Qt::LeftButton, Qt::NoModifier, beside(3, 0.25, 50, 0));
    QCOMPARE(chosen(), QStringLiteral("far"));
    QTest::mouseClick(m_view->canvas, Qt::LeftButton, Qt::NoModifier, beside(1.5, 0, 0, 60));
    QCOMPARE(chosen(), QStringLiteral("near"));
    // Several, or something else, choose none.
    SelectedDataManager::getInstance()->addSelectedTargetList(BaseModule::CoordinateAxes, {{2, -1}});
    QCOMPARE(chosen(), QStringLiteral("near"));
    SelectedDataManager::getInstance()->setSelectModelInMainWindow(BaseModule::MeshNode);
    SelectedDataManager::getInstance()->addSelectedTargetList(BaseModule::MeshNode, {{2, 2}});
    QCOMPARE(chosen(), QStringLiteral("near"));
}

WORKBENCH_TEST_MAIN(tst_ViewAxes)
#include "tst_viewaxes.moc"
