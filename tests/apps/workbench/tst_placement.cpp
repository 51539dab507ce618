// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/coordinates/Angle.h>
#include <workbench/coordinates/Placement.h>

#include <QRandomGenerator>
#include <QtMath>
#include <QtTest>

#include <cmath>

using Workbench::Placement;
using Workbench::Vector3;

namespace {

using Quaternion = std::array<double, 4>;

/// Hamilton's product, (w, x, y, z).
Quaternion times(const Quaternion& a, const Quaternion& b)
{
    return {
        a[0] * b[0] - a[1] * b[1] - a[2] * b[2] - a[3] * b[3], a[0] * b[1] + a[1] * b[0] + a[2] * b[3] - a[3] * b[2],
        a[0] * b[2] - a[1] * b[3] + a[2] * b[0] + a[3] * b[1], a[0] * b[3] + a[1] * b[2] - a[2] * b[1] + a[3] * b[0]};
}

/// The rotations about x, y and z, one after the other about fixed axes.
Quaternion expectedQuaternion(const Vector3& angles)
{
    Quaternion all = {1, 0, 0, 0};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        Quaternion one = {std::cos(angles[axis] / 2), 0, 0, 0};
        one[axis + 1] = std::sin(angles[axis] / 2);
        all = times(one, all);
    }
    const double sign = all[0] < 0 ? -1 : 1;
    return {sign * all[0], sign * all[1], sign * all[2], sign * all[3]};
}

template <std::size_t size>
double distance(const std::array<double, size>& a, const std::array<double, size>& b)
{
    double largest = 0;
    for (std::size_t i = 0; i < size; ++i) {
        largest = std::max(largest, std::abs(a[i] - b[i]));
    }
    return largest;
}

Vector3 degrees(double x, double y, double z)
{
    return {Workbench::radiansOf(x), Workbench::radiansOf(y), Workbench::radiansOf(z)};
}

} // namespace

Q_DECLARE_METATYPE(Workbench::Vector3)

/// Origins, rotations and angles.
class tst_Placement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void carriesPoints_data();
    void carriesPoints();
    void chains();
    void agreesWithQuaternions();
    void givesAnglesBack();
    void givesARotationBackAtARightSecondAngle_data();
    void givesARotationBackAtARightSecondAngle();
    void degreesComeBack_data();
    void degreesComeBack();
    void everyRadianComesBackOrIsNext();
};

void tst_Placement::carriesPoints_data()
{
    QTest::addColumn<Vector3>("angles");
    QTest::addColumn<Vector3>("point");
    QTest::addColumn<Vector3>("expected");
    const auto row = [](const char* name, const Vector3& angles, const Vector3& point, const Vector3& expected) {
        QTest::newRow(name) << angles << point << expected;
    };
    row("none", degrees(0, 0, 0), {1, 2, 3}, {11, 22, 33});
    row("x takes y to z", degrees(90, 0, 0), {0, 1, 0}, {10, 20, 31});
    row("y takes z to x", degrees(0, 90, 0), {0, 0, 1}, {11, 20, 30});
    row("z takes x to y", degrees(0, 0, 90), {1, 0, 0}, {10, 21, 30});
    // z goes to -y about x, and then to x about the fixed z; in the other order it would stay on -y.
    row("first x, then z", degrees(90, 0, 90), {0, 0, 1}, {11, 20, 30});
    // x goes to -z about y, and stays there about z; in the other order it would go to y.
    row("first y, then z", degrees(0, 90, 90), {1, 0, 0}, {10, 20, 29});
    // y goes to z about x, and to x about the fixed y.
    row("first x, then y", degrees(90, 90, 0), {0, 1, 0}, {11, 20, 30});
}

void tst_Placement::carriesPoints()
{
    QFETCH(Vector3, angles);
    QFETCH(Vector3, point);
    QFETCH(Vector3, expected);
    const Placement placement = Workbench::placed({10, 20, 30}, angles);
    QVERIFY(distance(Workbench::carriedPoint(placement, point), expected) < 1e-14);
}

void tst_Placement::chains()
{
    const Placement basic = Workbench::placed({1, 2, 3}, degrees(30, 40, 50));
    const Placement local = Workbench::placed({-4, 5, 0.5}, degrees(-20, 10, 170));
    const Placement both = Workbench::carried(basic, local);
    for (const Vector3& point : {Vector3{0, 0, 0}, Vector3{1, 0, 0}, Vector3{0, 1, 0}, Vector3{3, -2, 7}}) {
        const Vector3 expected = Workbench::carriedPoint(basic, Workbench::carriedPoint(local, point));
        QVERIFY(distance(Workbench::carriedPoint(both, point), expected) < 1e-13);
    }
}

void tst_Placement::agreesWithQuaternions()
{
    QRandomGenerator random(5);
    for (int i = 0; i < 1000; ++i) {
        const Vector3 angles = degrees(random.bounded(360.0), random.bounded(360.0), random.bounded(360.0));
        const Quaternion found = Workbench::quaternionOf(Workbench::placed({0, 0, 0}, angles));
        // Near w = 0 the opposite quaternion is the same rotation.
        const Quaternion opposite = {-found[0], -found[1], -found[2], -found[3]};
        const Quaternion expected = expectedQuaternion(angles);
        QVERIFY(std::min(distance(found, expected), distance(opposite, expected)) < 1e-14);
    }
    for (const Vector3& angles : {degrees(180, 0, 0), degrees(0, 180, 0), degrees(0, 0, 180), degrees(0, 0, 90)}) {
        const Quaternion found = Workbench::quaternionOf(Workbench::placed({0, 0, 0}, angles));
        QVERIFY(distance(found, expectedQuaternion(angles)) < 1e-15);
    }
    QVERIFY(distance(Workbench::quaternionOf(Placement()), {1, 0, 0, 0}) == 0);
}

void tst_Placement::givesAnglesBack()
{
    QRandomGenerator random(7);
    for (int i = 0; i < 1000; ++i) {
        const Vector3 angles =
            degrees(random.bounded(358.0) - 179, random.bounded(178.0) - 89, random.bounded(358.0) - 179);
        QVERIFY(distance(Workbench::anglesOf(Workbench::placed({0, 0, 0}, angles)), angles) < 1e-12);
    }
}

void tst_Placement::givesARotationBackAtARightSecondAngle_data()
{
    QTest::addColumn<Vector3>("angles");
    QTest::newRow("up") << degrees(20, 90, 50);
    QTest::newRow("down") << degrees(20, -90, 50);
}

void tst_Placement::givesARotationBackAtARightSecondAngle()
{
    QFETCH(Vector3, angles);
    const Placement placement = Workbench::placed({0, 0, 0}, angles);
    const Vector3 found = Workbench::anglesOf(placement);
    QCOMPARE(found[2], 0.0);
    const Placement again = Workbench::placed({0, 0, 0}, found);
    for (std::size_t row = 0; row < 3; ++row) {
        QVERIFY(distance(again.rows[row], placement.rows[row]) < 1e-15);
    }
}

void tst_Placement::degreesComeBack_data()
{
    QTest::addColumn<double>("degrees");
    for (const double value : {0.0, -0.0, 0.1, 0.3, 1.0, 12.34, 30.0, 33.3, 45.0, 57.29577951308232, 90.0, 120.0, 179.9,
                               180.0, -90.0, 360.0, 720.5, 1e-12, 1e-300}) {
        QTest::newRow(QByteArray::number(value, 'g', 17).constData()) << value;
    }
}

void tst_Placement::degreesComeBack()
{
    QFETCH(double, degrees);
    const double back = Workbench::degreesOf(Workbench::radiansOf(degrees));
    QVERIFY2(back == degrees, QByteArray::number(back, 'g', 17).constData());
    QCOMPARE(std::signbit(back), std::signbit(degrees));
}

void tst_Placement::everyRadianComesBackOrIsNext()
{
    QRandomGenerator random(11);
    for (int i = 0; i < 10000; ++i) {
        const double radians = (random.generateDouble() - 0.5) * 8;
        const double back = Workbench::radiansOf(Workbench::degreesOf(radians));
        QVERIFY(back == radians || back == std::nextafter(radians, 10) || back == std::nextafter(radians, -10));
    }
    QCOMPARE(Workbench::radiansOf(180), M_PI);
    QVERIFY(std::isnan(Workbench::degreesOf(std::nan(""))));
}

QTEST_APPLESS_MAIN(tst_Placement)
#include "tst_placement.moc"
