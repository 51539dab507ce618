// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "CoordinateViewFixture.h"

#include <basemodule/IBaseSignal.h>
#include <basemodule/SelectModel.h>
#include <basewidget/FixedPixelSizeAxesActor.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QPointer>
#include <QSignalSpy>
#include <QtMath>

#include <vtkMatrix4x4.h>
#include <vtkSmartPointer.h>

#include <cmath>
#include <cstring>
#include <memory>

using BaseModule::GlobalHelper;
using Workbench::CoordinateDefinition;
using Workbench::CoordinateSystems;
using Workbench::Vector3;
using Fixture = CoordinateViewFixture;

namespace {

/// A point carried by the matrix that the system refers to.
Vector3 carried(int id, const Vector3& point)
{
    const double given[4] = {point[0], point[1], point[2], 1};
    double result[4];
    Fixture::system(id).getActorMatrix()->MultiplyPoint(given, result);
    return {result[0], result[1], result[2]};
}

bool isNear(const Vector3& a, const Vector3& b)
{
    return std::abs(a[0] - b[0]) + std::abs(a[1] - b[1]) + std::abs(a[2] - b[2]) < 1e-13;
}

QString offsetChain(int id)
{
    QStringList texts;
    for (const auto& level : Fixture::system(id).getOffsetCoordinateListPairList()) {
        texts.append(
            QStringLiteral("%1:%2").arg(level.first).arg(GlobalHelper::convertDoubleListToQString(level.second)));
    }
    return texts.join(QLatin1Char(';'));
}

} // namespace

/// Creating, changing and removing systems, their axes and the file.
class tst_CoordinateSystems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { m_fixture = std::make_unique<CoordinateViewFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void createsRelativeToAnyOther();
    void refusesAMissingBasicSystem();
    void placesAxes();
    void agreesWithTheLibrarysComposition();
    void keepsEveryBit();
    void changesASystemAndThoseBelow();
    void leavesTheGlobalSystemAlone();
    void removesWithWhatIsBelow();
    void removesSharedDependentsOnce();
    void deselectsWhatGoes();
    void destroysWhatItRemoved();
    void destroysWhatOthersRemoved();
    void takesCareOfSystemsOfOthers();
    void survivesAListenerThatPlacesAgain();
    void makesCurrent();
    void showsAndHidesAxes();
    void labelsAxes();
    void loadsAProject();
    void loadsLoopsAndOrphans();
    void clearsAProject();
    void writesSteps_data();
    void writesSteps();

private:
    std::unique_ptr<CoordinateViewFixture> m_fixture;
};

/// The first access gives the registry the global system, and leaves alone what the project's file holds.
void tst_CoordinateSystems::initTestCase()
{
    const QTemporaryDir project;
    const QString path = project.path() + QStringLiteral("/RelativeCoordinateSystemDate.json");
    GlobalHelper::setProjectTempIODir(project.path());
    writeContent(path, "kept");
    CoordinateSystems::instance();
    QCOMPARE(Fixture::ids(), text("[0]"));
    QCOMPARE(Fixture::system(0).getName(), text("Global"));
    QCOMPARE(offsetChain(0), text("0:0,0,0"));
    QCOMPARE(contentOf(path), QByteArray("kept"));
    QCOMPARE(GlobalHelper::getProjectTempIODir(), project.path());
    QVERIFY(Fixture::system(0).getActor() != nullptr);
    GlobalHelper::setProjectTempIODir(QString());
}

void tst_CoordinateSystems::createsRelativeToAnyOther()
{
    RegistryLog log;
    QCOMPARE(Fixture::systems().create(0, {text("Table"), BaseModule::Cylindrical, {1, 2, 3}, {0, 0, 0.5}}), 1);
    QCOMPARE(log.take(), QStringList({text("updateWindowTitle | [0,1] at 0"), text("changed [0,1] | [0,1] at 0")}));
    QCOMPARE(Fixture::create(1, text("Tool"), {0.1, 0, 0}), 2);
    QCOMPARE(offsetChain(2), text("0:0,0,0;1:1,2,3;2:0.1,0,0"));
    QCOMPARE(Fixture::system(2).getBasicCoordinateSystemID(), 1);
    QCOMPARE(Fixture::system(1).getType(), BaseModule::Cylindrical);
    QCOMPARE(Fixture::system(1).getRotateDirectionListPairList().last().second, QList<double>({0, 0, 0.5}));
    const CoordinateDefinition table = CoordinateSystems::definition(1);
    QCOMPARE(table.name, text("Table"));
    QVERIFY(table.offset == Vector3({1, 2, 3}) && table.angles == Vector3({0, 0, 0.5}));
    QVERIFY(m_fixture->file().contains("0:0,0,0;1:1,2,3;2:0.1,0,0"));
}

void tst_CoordinateSystems::refusesAMissingBasicSystem()
{
    RegistryLog log;
    QCOMPARE(Fixture::create(7, text("Tool")), 0);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(CoordinateSystems::definition(7).name, QString());
}

void tst_CoordinateSystems::placesAxes()
{
    Fixture::create(0, text("Table"), {10, 20, 30}, {0, 0, M_PI / 2});
    Fixture::create(1, text("Tool"), {1, 0, 0}, {M_PI / 2, 0, 0});
    // Table's x points along the global y.
    QVERIFY(isNear(carried(1, {1, 0, 0}), {10, 21, 30}));
    QVERIFY(isNear(carried(2, {0, 0, 0}), {10, 21, 30}));
    // Tool's y is Table's z; Tool's z is Table's -y, which is the global x.
    QVERIFY(isNear(carried(2, {0, 1, 0}), {10, 21, 31}));
    QVERIFY(isNear(carried(2, {0, 0, 1}), {11, 21, 30}));
    QVERIFY(Fixture::system(2).getActor()->GetUserMatrix() == Fixture::system(2).getActorMatrix());
    const double* const quaternion = Fixture::system(1).getActorQuaternion();
    QVERIFY(std::abs(quaternion[0] - M_SQRT1_2) < 1e-15 && std::abs(quaternion[3] - M_SQRT1_2) < 1e-15);
    QVERIFY(std::abs(quaternion[1]) < 1e-15 && std::abs(quaternion[2]) < 1e-15);
    const double* const origin = Fixture::system(2).getOffsetCoordinate();
    QVERIFY(isNear({origin[0], origin[1], origin[2]}, {10, 21, 30}));
}

void tst_CoordinateSystems::agreesWithTheLibrarysComposition()
{
    for (std::size_t axis = 0; axis < 3; ++axis) {
        Vector3 angles = {0, 0, 0};
        angles[axis] = 0.7;
        const int id = Fixture::create(0, QString::number(axis), {0, 0, 0}, angles);
        double vector[3] = {0.3, -1.2, 2.5};
        Fixture::Registry::getInstance()->getCSRotateDirection(vector, id);
        QVERIFY(isNear(carried(id, {0.3, -1.2, 2.5}), {vector[0], vector[1], vector[2]}));
    }
}

void tst_CoordinateSystems::keepsEveryBit()
{
    const Vector3 offset = {1e-300, 0.1 + 0.2, -0.0};
    const Vector3 angles = {0, 1.0 / 3, 5e-324};
    Fixture::create(0, text("a"), offset, angles);
    Fixture::systems().loadProject();
    const CoordinateDefinition read = CoordinateSystems::definition(1);
    QCOMPARE(std::memcmp(read.offset.data(), offset.data(), sizeof offset), 0);
    QCOMPARE(std::memcmp(read.angles.data(), angles.data(), sizeof angles), 0);
}

void tst_CoordinateSystems::changesASystemAndThoseBelow()
{
    Fixture::create(0, text("Table"), {1, 0, 0});
    Fixture::create(1, text("Tool"), {0, 1, 0});
    Fixture::create(0, text("Other"), {5, 5, 5});
    RegistryLog log;
    Fixture::systems().change(1, {text("Desk"), BaseModule::Spherical, {7, 8, 9}, {0, 0, M_PI / 2}});
    QCOMPARE(log.take(),
             QStringList({text("updateWindowTitle | [0,1,2,3] at 0"), text("changed [0,1,2,3] | [0,1,2,3] at 0")}));
    QCOMPARE(Fixture::system(1).getName(), text("Desk"));
    QCOMPARE(Fixture::system(1).getType(), BaseModule::Spherical);
    QCOMPARE(offsetChain(2), text("0:0,0,0;1:7,8,9;2:0,1,0"));
    QCOMPARE(offsetChain(3), text("0:0,0,0;3:5,5,5"));
    QVERIFY(isNear(carried(2, {0, 0, 0}), {6, 8, 9}));
    QVERIFY(m_fixture->file().contains("0:0,0,0;1:7,8,9;2:0,1,0"));
    QVERIFY(m_fixture->file().contains("Desk"));
}

void tst_CoordinateSystems::leavesTheGlobalSystemAlone()
{
    RegistryLog log;
    Fixture::systems().change(0, {text("Mine"), BaseModule::Cartesian, {1, 1, 1}, {0, 0, 0}});
    Fixture::systems().change(9, {text("Mine"), BaseModule::Cartesian, {1, 1, 1}, {0, 0, 0}});
    Fixture::systems().remove({0, 9});
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(Fixture::system(0).getName(), text("Global"));
}

void tst_CoordinateSystems::removesWithWhatIsBelow()
{
    Fixture::create(0, text("Table"));
    Fixture::create(1, text("Tool"));
    Fixture::create(0, text("Other"));
    Fixture::create(2, text("Tip"));
    Fixture::systems().setCurrent(4);
    RegistryLog log;
    Fixture::systems().remove({1});
    QCOMPARE(log.take(), QStringList({text("deleted [1,2,4] | [0,1,2,3,4] at 4"),
                                      text("updateWindowTitle | [0,3] at 4"), text("changed [0,3] | [0,3] at 0")}));
    QVERIFY(!m_fixture->file().contains("Tool"));
}

void tst_CoordinateSystems::removesSharedDependentsOnce()
{
    Fixture::create(0, text("Table"));
    Fixture::create(1, text("Tool"));
    RegistryLog log;
    Fixture::systems().remove({2, 1, 1});
    QCOMPARE(log.take().first(), text("deleted [1,2] | [0,1,2] at 0"));
}

// Another system may get its identifier, and must not be selected from the start.
void tst_CoordinateSystems::deselectsWhatGoes()
{
    Fixture::create(0, text("Table"));
    Fixture::create(0, text("Other"));
    const auto isAllowed = [](int selectModel, int id) {
        bool isPickable = true;
        Q_EMIT BaseModule::IBaseSignal::getInstance()->signal_checkHighLight(isPickable, selectModel, id, -1);
        return isPickable;
    };
    auto* const selection = DataManager::SelectedDataManager::getInstance();
    using Pairs = QList<QPair<int, int>>;
    selection->addSelectedTargetList(BaseModule::CoordinateAxes, {{0, -1}, {1, -1}, {2, -1}});
    selection->addSelectedTargetList(BaseModule::MeshNode, {{2, 7}});
    QVERIFY(isAllowed(BaseModule::CoordinateAxes, 2));
    Fixture::systems().remove({2});
    QCOMPARE(selection->getSelectedDataBySelectedModel(BaseModule::CoordinateAxes), (Pairs{{0, -1}, {1, -1}}));
    QVERIFY(!isAllowed(BaseModule::CoordinateAxes, 2));
    Fixture::Registry::getInstance()->removeCoordinateSystemByIndex(1);
    QCOMPARE(selection->getSelectedDataBySelectedModel(BaseModule::CoordinateAxes), (Pairs{{0, -1}}));
    QVERIFY(isAllowed(BaseModule::CoordinateAxes, 0));
    // Things of other kinds have other identifiers.
    QVERIFY(isAllowed(BaseModule::GeometryBody, 2));
    QCOMPARE(selection->getSelectedDataBySelectedModel(BaseModule::MeshNode), (Pairs{{2, 7}}));
    selection->clearAllSelectedTarget();
}

void tst_CoordinateSystems::destroysWhatItRemoved()
{
    Fixture::create(0, text("Table"));
    const QPointer<Fixture::System> table = &Fixture::system(1);
    const vtkSmartPointer<BaseWidget::FixedPixelSizeAxesActor> actor = table->getActor();
    // A view that hears of it still finds the axes that it has to take away.
    BaseWidget::FixedPixelSizeAxesActor* found = nullptr;
    const auto connection =
        connect(Fixture::Registry::getInstance(), &Fixture::Registry::signal_dataDeleted, this,
                [&found](const QList<int>& ids) { found = Fixture::system(ids.first()).getActor(); });
    Fixture::systems().remove({1});
    disconnect(connection);
    QVERIFY(found == actor);
    QVERIFY(!table.isNull());
    QTRY_VERIFY(table.isNull());
    QCOMPARE(actor->GetReferenceCount(), 1);
}

void tst_CoordinateSystems::destroysWhatOthersRemoved()
{
    Fixture::create(0, text("Table"));
    Fixture::create(0, text("Other"));
    const QPointer<Fixture::System> table = &Fixture::system(1);
    Fixture::Registry::getInstance()->removeCoordinateSystemByID({1, 77});
    QTRY_VERIFY(table.isNull());
    const QPointer<Fixture::System> other = &Fixture::system(2);
    Fixture::Registry::getInstance()->removeCoordinateSystemByIndex(1);
    QVERIFY(other.isNull());
    QCoreApplication::processEvents();
    QCOMPARE(Fixture::ids(), text("[0]"));
}

void tst_CoordinateSystems::takesCareOfSystemsOfOthers()
{
    auto* const foreign = new Fixture::System;
    foreign->setID(5);
    foreign->setName(text("Foreign"));
    double offset[3] = {4, 0, 0};
    foreign->setOffsetCoordinate(offset, 5, 0, -1);
    Fixture::Registry::getInstance()->appendCoordinateSystem(foreign);
    QVERIFY(foreign->getActor() == nullptr);
    QTRY_VERIFY(foreign->getActor() != nullptr);
    QVERIFY(isNear(carried(5, {0, 0, 0}), {4, 0, 0}));
    // Once they all have their axes nothing more is told.
    RegistryLog log;
    QCoreApplication::processEvents();
    QCOMPARE(log.take(), QStringList());
}

void tst_CoordinateSystems::survivesAListenerThatPlacesAgain()
{
    Fixture::create(0, text("Table"));
    Fixture::create(0, text("Other"));
    const QPointer<Fixture::System> table = &Fixture::system(1);
    const auto connection = connect(Fixture::Registry::getInstance(), &Fixture::Registry::signal_dataDeleted, this,
                                    [] { Fixture::systems().setCurrent(2); });
    Fixture::systems().remove({1});
    disconnect(connection);
    QTRY_VERIFY(table.isNull());
    // Told of, and then not taken out: it keeps axes.
    const vtkSmartPointer<BaseWidget::FixedPixelSizeAxesActor> before = Fixture::system(2).getActor();
    Q_EMIT Fixture::Registry::getInstance()->signal_dataDeleted({2});
    QTRY_VERIFY(Fixture::system(2).getActor() != nullptr && Fixture::system(2).getActor() != before);
    QVERIFY(Fixture::system(2).getActor()->GetUserMatrix() == Fixture::system(2).getActorMatrix());
    Fixture::systems().showAxes(2, false);
    QVERIFY(!Fixture::system(2).getActor()->GetVisibility());
}

void tst_CoordinateSystems::makesCurrent()
{
    Fixture::create(0, text("Table"));
    bool isSwitching = false;
    const auto connection =
        connect(Fixture::Registry::getInstance(), &Fixture::Registry::signal_dataChanged, this,
                [&isSwitching] { isSwitching = Fixture::Registry::getInstance()->getSwitchCoordinateSystemSign(); });
    RegistryLog log;
    Fixture::systems().setCurrent(1);
    disconnect(connection);
    QCOMPARE(log.take(), QStringList({text("changed [0,1] | [0,1] at 1")}));
    QVERIFY(isSwitching);
    QVERIFY(!Fixture::Registry::getInstance()->getSwitchCoordinateSystemSign());
}

void tst_CoordinateSystems::showsAndHidesAxes()
{
    Fixture::create(0, text("Table"));
    const auto isSeen = [](int id) { return Fixture::system(id).getActor()->GetVisibility() != 0; };
    QVERIFY(isSeen(0) && isSeen(1));
    const QSignalSpy told(&Fixture::systems(), &CoordinateSystems::signal_displayChanged);
    RegistryLog log;
    Fixture::systems().showAxes(1, false);
    QCOMPARE(log.take(), QStringList({text("changed [0,1] | [0,1] at 0")}));
    QVERIFY(isSeen(0) && !isSeen(1));
    Fixture::systems().showAxes(false);
    QVERIFY(!isSeen(0) && !isSeen(1));
    QVERIFY(!Fixture::systems().areAxesShown());
    Fixture::systems().showAxes(true);
    QVERIFY(isSeen(0) && !isSeen(1));
    QVERIFY(Fixture::systems().areAxesShown(0) && !Fixture::systems().areAxesShown(1));
    QCOMPARE(told.size(), 3);
    // What is hidden stays hidden when it changes; a later system of its identifier is seen.
    Fixture::systems().change(1, {text("Desk"), BaseModule::Cartesian, {1, 0, 0}, {0, 0, 0}});
    QVERIFY(!isSeen(1));
    QCOMPARE(told.size(), 3);
    Fixture::systems().remove({1});
    QCOMPARE(told.size(), 4);
    auto* const later = new Fixture::System;
    later->setID(1);
    Fixture::Registry::getInstance()->appendCoordinateSystem(later);
    QTRY_VERIFY(later->getActor() != nullptr);
    QVERIFY(isSeen(1));
}

void tst_CoordinateSystems::labelsAxes()
{
    Fixture::create(0, text("Tür"));
    Fixture::create(0, text("工具"));
    QCOMPARE(Fixture::system(0).getActor()->GetXAxisLabelText(), "X Global");
    QCOMPARE(Fixture::system(1).getActor()->GetXAxisLabelText(), "X Tür");
    QCOMPARE(Fixture::system(1).getActor()->GetYAxisLabelText(), "Y");
    QCOMPARE(Fixture::system(2).getActor()->GetXAxisLabelText(), "X #2");
    Fixture::systems().change(1, {text("Door"), BaseModule::Cartesian, {0, 0, 0}, {0, 0, 0}});
    QCOMPARE(Fixture::system(1).getActor()->GetXAxisLabelText(), "X Door");
}

void tst_CoordinateSystems::loadsAProject()
{
    Fixture::create(0, text("Table"), {1, 0, 0});
    Fixture::create(1, text("Tool"), {0, 1, 0});
    const QByteArray saved = m_fixture->file();
    Fixture::systems().remove({1});
    Fixture::create(0, text("Unsaved"));
    writeContent(m_fixture->path(), saved);
    Fixture::systems().loadProject();
    QCOMPARE(Fixture::ids(), text("[0,1,2]"));
    QCOMPARE(Fixture::system(2).getName(), text("Tool"));
    QVERIFY(isNear(carried(2, {0, 0, 0}), {1, 1, 0}));
    QCOMPARE(m_fixture->file(), saved);
    QCOMPARE(Fixture::create(2, text("Tip")), 3);
}

void tst_CoordinateSystems::loadsLoopsAndOrphans()
{
    writeContent(
        m_fixture->path(),
        R"({"m_IDList":[1,2,3,3],"m_basicCoorSysIDList":[2,1,9,0],"m_nameList":["a","b","c","d"],)"
        R"("m_typeList":["1:0","2:0","3:0","3:0"],"m_offsetCoordinateList":["1:1,0,0","2:0,1,0","3:0,0,1",""],)"
        R"("m_rotateDirectionList":[],"m_actorRoateDirList":[]})");
    Fixture::systems().loadProject();
    QCOMPARE(Fixture::ids(), text("[0,1,2,3,3]"));
    // The loop is cut at 2, which stands as if it were global; so does the orphan 3.
    QVERIFY(isNear(carried(2, {0, 0, 0}), {0, 1, 0}));
    QVERIFY(isNear(carried(1, {0, 0, 0}), {1, 1, 0}));
    QVERIFY(isNear(carried(3, {0, 0, 0}), {0, 0, 1}));
    QVERIFY(Fixture::Registry::getInstance()->getCoordinateSystemByIndex(4)->getActor() != nullptr);
    Fixture::systems().remove({2});
    QCOMPARE(Fixture::ids(), text("[0,3,3]"));
}

void tst_CoordinateSystems::clearsAProject()
{
    Fixture::create(0, text("Table"));
    const QByteArray saved = m_fixture->file();
    Fixture::systems().setCurrent(1);
    Fixture::systems().showAxes(0, false);
    Fixture::systems().showAxes(false);
    RegistryLog log;
    Fixture::systems().clearProject();
    QVERIFY(Fixture::systems().areAxesShown() && Fixture::systems().areAxesShown(0));
    QVERIFY(Fixture::system(0).getActor()->GetVisibility());
    QCOMPARE(log.take(), QStringList({text("deleted [1] | [0,1] at 1"), text("changed [0] | [0] at 0")}));
    QCOMPARE(m_fixture->file(), saved);
}

void tst_CoordinateSystems::writesSteps_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("z");
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("angle");
    QTest::newRow("none") << 0.0 << 0.0 << text("Rotate") << 0.0;
    QTest::newRow("one axis") << 0.0 << -0.5 << text("RotateZ") << -0.5;
    // Right angles about two axes are a third of a turn about the diagonal.
    QTest::newRow("two axes") << M_PI / 2 << M_PI / 2 << text("RotateXZ") << 2 * M_PI / 3;
}

void tst_CoordinateSystems::writesSteps()
{
    QFETCH(double, x);
    QFETCH(double, z);
    QFETCH(double, angle);
    const int id = Fixture::create(0, text("a"), {0, 0, 0}, {x, 0, z});
    const QPair<QString, double> step = Fixture::system(id).getActorRotateDirection().last();
    QTEST(step.first, "name");
    QVERIFY(std::abs(step.second - angle) < 1e-14);
}

QTEST_MAIN(tst_CoordinateSystems)
#include "tst_coordinatesystems.moc"
