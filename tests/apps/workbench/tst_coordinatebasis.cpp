// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "CoordinateViewFixture.h"

#include <workbench/coordinates/CoordinateDialog.h>
#include <workbench/coordinates/CoordinateDock.h>
#include <workbench/material/NumberField.h>

#include <QComboBox>
#include <QtMath>

#include <vtkMatrix4x4.h>

#include <cmath>
#include <memory>

using Workbench::CoordinateDefinition;
using Workbench::CoordinateDialog;
using Workbench::CoordinateSystems;
using Workbench::NumberField;
using Fixture = CoordinateViewFixture;

namespace {

/// "1:10,0,0;3:0,0,5"
QString offsetChain(int id)
{
    QStringList texts;
    for (const auto& level : Fixture::system(id).getOffsetCoordinateListPairList()) {
        texts.append(
            text("%1:%2").arg(level.first).arg(BaseModule::GlobalHelper::convertDoubleListToQString(level.second)));
    }
    return texts.join(QLatin1Char(';'));
}

/// The owners of the levels of all four chains, which are the same.
QString owners(int id)
{
    const Fixture::System& system = Fixture::system(id);
    QList<int> ids[4];
    for (const auto& level : system.getTypePairList()) {
        ids[0].append(level.first);
    }
    for (const auto& level : system.getOffsetCoordinateListPairList()) {
        ids[1].append(level.first);
    }
    for (const auto& level : system.getRotateDirectionListPairList()) {
        ids[2].append(level.first);
    }
    for (const auto& level : system.getActorRoateDirPairPairList()) {
        ids[3].append(level.first);
    }
    return ids[0] == ids[1] && ids[1] == ids[2] && ids[2] == ids[3] ? textOf(ids[0]) : text("unequal");
}

/// Where the matrix of the system's axes has its origin.
bool isAt(int id, double x, double y, double z)
{
    vtkMatrix4x4& matrix = *Fixture::system(id).getActorMatrix();
    return std::abs(matrix.GetElement(0, 3) - x) + std::abs(matrix.GetElement(1, 3) - y) +
               std::abs(matrix.GetElement(2, 3) - z) <
           1e-12;
}

} // namespace

/// Making a system relative to another one.
class tst_CoordinateBasis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void takesAnotherBasicSystem();
    void takesWhatIsBelowAlong();
    void refuses_data();
    void refuses();
    void mendsLoopsAndOrphans();
    void changesInTheDialog();
    void refusesALoopInTheDialog();
    void keepsThePlace();
    void keepsThePlaceOfRefusedNumbers();
    void keepsAMissingBasicSystem();
    void leavesTheBasicSystemOfTheSame();

private:
    QWidget& dialog(int id);
    static void chooseBasic(const QWidget& window, int id)
    {
        QComboBox& box = part<QComboBox>(window, "basic");
        box.setCurrentIndex(box.findData(id));
    }

    std::unique_ptr<CoordinateViewFixture> m_fixture;
    std::unique_ptr<Workbench::CoordinateDock> m_dock;
};

void tst_CoordinateBasis::init()
{
    m_fixture = std::make_unique<CoordinateViewFixture>();
    m_dock = std::make_unique<Workbench::CoordinateDock>();
    m_dock->show();
    Fixture::create(0, text("Table"), {10, 0, 0});
    Fixture::create(0, text("Turned"), {0, 0, 5}, {0, 0, M_PI / 2});
    Fixture::create(1, text("Tool"), {1, 2, 3});
    Fixture::create(3, text("Tip"), {0, 0, 1});
}

void tst_CoordinateBasis::cleanup()
{
    m_dock.reset();
    m_fixture.reset();
}

QWidget& tst_CoordinateBasis::dialog(int id)
{
    CoordinateDialog::openFor(id, m_dock.get());
    return *windowNamed("coordinateDialog");
}

void tst_CoordinateBasis::takesAnotherBasicSystem()
{
    QCOMPARE(offsetChain(4), text("0:0,0,0;1:10,0,0;3:1,2,3;4:0,0,1"));
    RegistryLog log;
    Fixture::systems().change(4, 2, {text("Point"), BaseModule::Spherical, {7, 0, 0}, {0, 0, 0}});
    QCOMPARE(log.take(), QStringList({text("updateWindowTitle | [0,1,2,3,4] at 0"),
                                      text("changed [0,1,2,3,4] | [0,1,2,3,4] at 0")}));
    QCOMPARE(Fixture::system(4).getBasicCoordinateSystemID(), 2);
    QCOMPARE(Fixture::system(4).getName(), text("Point"));
    QCOMPARE(Fixture::system(4).getType(), BaseModule::Spherical);
    QCOMPARE(owners(4), text("[0,2,4]"));
    QCOMPARE(offsetChain(4), text("0:0,0,0;2:0,0,5;4:7,0,0"));
    // Its x axis is the global y axis now.
    QVERIFY(isAt(4, 0, 7, 5));
    const double* const origin = Fixture::system(4).getOffsetCoordinate();
    QVERIFY(std::abs(origin[0]) + std::abs(origin[1] - 7) + std::abs(origin[2] - 5) < 1e-12);
    // And it comes back from the file.
    CoordinateSystems::instance()->loadProject();
    QCOMPARE(Fixture::system(4).getBasicCoordinateSystemID(), 2);
    QCOMPARE(owners(4), text("[0,2,4]"));
    QVERIFY(isAt(4, 0, 7, 5));
}

void tst_CoordinateBasis::takesWhatIsBelowAlong()
{
    Fixture::systems().change(3, 2, CoordinateSystems::definition(3));
    QCOMPARE(owners(3), text("[0,2,3]"));
    QCOMPARE(owners(4), text("[0,2,3,4]"));
    QCOMPARE(offsetChain(4), text("0:0,0,0;2:0,0,5;3:1,2,3;4:0,0,1"));
    QVERIFY(isAt(3, -2, 1, 8));
    QVERIFY(isAt(4, -2, 1, 9));
    // Back again: all is as it was.
    Fixture::systems().change(3, 1, CoordinateSystems::definition(3));
    QCOMPARE(offsetChain(4), text("0:0,0,0;1:10,0,0;3:1,2,3;4:0,0,1"));
    QVERIFY(isAt(4, 11, 2, 4));
}

void tst_CoordinateBasis::refuses_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("basicID");
    QTest::addColumn<QString>("reason");
    const QString loop =
        text("%1 is itself relative to this system, directly or through others: that would be a loop.");
    QTest::newRow("itself") << 1 << 1 << text("A coordinate system cannot be relative to itself.");
    QTest::newRow("directly below") << 1 << 3 << loop.arg(text("Tool (3)"));
    QTest::newRow("further below") << 1 << 4 << loop.arg(text("Tip (4)"));
    QTest::newRow("missing") << 1 << 9 << text("There is no coordinate system 9.");
    QTest::newRow("global") << 0 << 1 << loop.arg(text("Table (1)"));
    QTest::newRow("allowed") << 3 << 2 << QString();
}

void tst_CoordinateBasis::refuses()
{
    QFETCH(int, id);
    QFETCH(int, basicID);
    QFETCH(QString, reason);
    QCOMPARE(CoordinateSystems::basicRefusal(id, basicID), reason);
    if (!reason.isEmpty()) {
        const QByteArray before = m_fixture->file();
        RegistryLog log;
        Fixture::systems().change(id, basicID, {text("x"), BaseModule::Cartesian, {0, 0, 0}, {0, 0, 0}});
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(m_fixture->file(), before);
        QVERIFY(Fixture::system(id).getName() != text("x"));
    }
}

void tst_CoordinateBasis::mendsLoopsAndOrphans()
{
    writeContent(m_fixture->path(),
                 R"({"m_IDList":[1,2,3,-4],"m_basicCoorSysIDList":[2,1,9,3],"m_nameList":["a","b","c","d"]})");
    CoordinateSystems::instance()->loadProject();
    QCOMPARE(Fixture::ids(), text("[0,1,2,3,-4]"));
    Fixture::systems().change(1, 0, {text("a"), BaseModule::Cartesian, {1, 0, 0}, {0, 0, 0}});
    for (const auto& node : CoordinateSystems::tree().nodes.mid(0, 3)) {
        QCOMPARE(int(node.fault), int(Workbench::CoordinateTree::None));
    }
    QCOMPARE(owners(1), text("[0,1]"));
    QCOMPARE(owners(2), text("[0,1,2]"));
    // What the library cannot build anew is not begun.
    QCOMPARE(CoordinateSystems::basicRefusal(3, 1),
             text("The library builds a system anew only where its identifier is above 0."));
    CoordinateSystems::instance()->remove({-4});
    Fixture::systems().change(3, 2, {text("c"), BaseModule::Cartesian, {0, 4, 0}, {0, 0, 0}});
    QCOMPARE(owners(3), text("[0,1,2,3]"));
    QVERIFY(isAt(3, 1, 4, 0));
}

void tst_CoordinateBasis::changesInTheDialog()
{
    QWidget& window = dialog(3);
    QComboBox& box = part<QComboBox>(window, "basic");
    QCOMPARE(box.currentText(), text("Table (1)"));
    QCOMPARE(box.findData(3), -1); // not itself
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(box.currentText(), text("Turned (2)"));
    // The values are taken as they stand, in the other system.
    QCOMPARE(part<NumberField>(window, "offsetY").text(), text("2"));
    press(window, QDialogButtonBox::Ok);
    finishClosing();
    QVERIFY(windowNamed("coordinateDialog") == nullptr);
    QCOMPARE(offsetChain(3), text("0:0,0,0;2:0,0,5;3:1,2,3"));
    QVERIFY(isAt(3, -2, 1, 8));
}

void tst_CoordinateBasis::refusesALoopInTheDialog()
{
    QWidget& window = dialog(1);
    chooseBasic(window, 4);
    RegistryLog log;
    press(window, QDialogButtonBox::Ok);
    QCOMPARE(shown(window, "refusal"),
             text("Tip (4) is itself relative to this system, directly or through others: that would be a loop."));
    QVERIFY(window.isVisible());
    QCOMPARE(log.take(), QStringList());
    chooseBasic(window, 2);
    press(window, QDialogButtonBox::Ok);
    QCOMPARE(owners(4), text("[0,2,1,3,4]"));
}

void tst_CoordinateBasis::keepsThePlace()
{
    QWidget& window = dialog(3);
    click(window, "keepsPlace");
    chooseBasic(window, 2);
    // The global place (11, 2, 3), seen from (0, 0, 5) with x along the global y axis and y against the global x axis.
    const auto number = [&window](const char* name) { return part<NumberField>(window, name).value(); };
    QVERIFY(std::abs(number("offsetX") - 2) < 1e-12);
    QVERIFY(std::abs(number("offsetY") + 11) < 1e-12);
    QVERIFY(std::abs(number("offsetZ") + 2) < 1e-12);
    QVERIFY(std::abs(number("angleZ") + 90) < 1e-12);
    press(window, QDialogButtonBox::Ok);
    finishClosing();
    QCOMPARE(owners(3), text("[0,2,3]"));
    QVERIFY(isAt(3, 11, 2, 3));
    QVERIFY(isAt(4, 11, 2, 4));
    QVERIFY(std::abs(Fixture::system(3).getActorMatrix()->GetElement(0, 0) - 1) < 1e-12);
}

void tst_CoordinateBasis::keepsThePlaceOfRefusedNumbers()
{
    QWidget& window = dialog(3);
    click(window, "keepsPlace");
    type(window, "offsetX", text("1,5"));
    chooseBasic(window, 2);
    QCOMPARE(part<NumberField>(window, "offsetX").text(), text("1,5"));
    QCOMPARE(part<NumberField>(window, "offsetY").text(), text("2"));
    QVERIFY(shown(window, "refusal").startsWith(text("'1,5' has a comma.")));
    press(window, QDialogButtonBox::Cancel);
    QVERIFY(isAt(3, 11, 2, 3));
}

void tst_CoordinateBasis::keepsAMissingBasicSystem()
{
    writeContent(m_fixture->path(), R"({"m_IDList":[3],"m_basicCoorSysIDList":[9],"m_nameList":["c"]})");
    CoordinateSystems::instance()->loadProject();
    QWidget& window = dialog(3);
    QCOMPARE(part<QComboBox>(window, "basic").currentText(), text("9 (missing)"));
    type(window, "name", text("d"));
    press(window, QDialogButtonBox::Ok);
    finishClosing();
    QCOMPARE(Fixture::system(3).getName(), text("d"));
    QCOMPARE(Fixture::system(3).getBasicCoordinateSystemID(), 9);
    QWidget& again = dialog(3);
    chooseBasic(again, 0);
    press(again, QDialogButtonBox::Ok);
    QCOMPARE(Fixture::system(3).getBasicCoordinateSystemID(), 0);
}

void tst_CoordinateBasis::leavesTheBasicSystemOfTheSame()
{
    QWidget& window = dialog(3);
    chooseBasic(window, 2);
    chooseBasic(window, 1);
    press(window, QDialogButtonBox::Ok);
    QCOMPARE(offsetChain(4), text("0:0,0,0;1:10,0,0;3:1,2,3;4:0,0,1"));
}

QTEST_MAIN(tst_CoordinateBasis)
#include "tst_coordinatebasis.moc"
