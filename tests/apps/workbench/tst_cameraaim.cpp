// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/CameraAim.h>

#include <QTest>

#include <cmath>
#include <limits>

using namespace Workbench;

Q_DECLARE_METATYPE(Workbench::Box)
Q_DECLARE_METATYPE(Workbench::Seen)

class tst_CameraAim : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void change_data();
    void change();
    void aim_data();
    void aim();
};

void tst_CameraAim::change_data()
{
    QTest::addColumn<Box>("before");
    QTest::addColumn<Box>("now");
    QTest::addColumn<double>("expected");
    const double infinity = std::numeric_limits<double>::infinity();
    const Box block = {0, 2, 0, 1, 0, 2}; // its diagonal is 3
    QTest::newRow("the same") << block << block << 0.0;
    QTest::newRow("longer") << block << Box{0, 4, 0, 4, 0, 2} << 3.0 / 6.0;
    QTest::newRow("shorter") << Box{0, 4, 0, 4, 0, 2} << block << 3.0 / 6.0;
    QTest::newRow("moved") << block << Box{0, 2, 0, 1, -6, -4} << 6.0 / 3.0;
    QTest::newRow("at the other end") << Box{-6, 2, 0, 1, 0, 4} << Box{-5, 2, 0, 1, 0, 4} << 1.0 / 9.0;
    QTest::newRow("a point in its place") << Box{1, 1, 1, 1, 1, 1} << Box{1, 1, 1, 1, 1, 1} << 0.0;
    QTest::newRow("two points") << Box{1, 1, 1, 1, 1, 1} << Box{2, 2, 1, 1, 1, 1} << infinity;
    QTest::newRow("too large for a diagonal") << Box{-1e308, 1e308, 0, 0, 0, 0} << block << infinity;
}

void tst_CameraAim::change()
{
    QFETCH(Box, before);
    QFETCH(Box, now);
    QFETCH(double, expected);
    const double found = boxChange(before, now);
    QVERIFY2(found == expected || std::abs(found - expected) < 1e-15, qPrintable(QString::number(found)));
}

void tst_CameraAim::aim_data()
{
    QTest::addColumn<double>("change");
    QTest::addColumn<Seen>("before");
    QTest::addColumn<Seen>("now");
    QTest::addColumn<bool>("expected");
    for (Seen seen : {Seen::Nothing, Seen::Part, Seen::Whole}) {
        const auto number = static_cast<int>(seen);
        QTest::addRow("the same part, %d seen", number) << 0.0 << seen << seen << false;
        QTest::addRow("meshed more closely, %d seen", number) << 0.009 << seen << Seen::Nothing << false;
        QTest::addRow("another thing, %d seen", number) << 0.3 << seen << Seen::Whole << true;
        QTest::addRow("endlessly far, %d seen", number)
            << std::numeric_limits<double>::infinity() << seen << seen << true;
    }
    QTest::newRow("all was seen, and is") << 0.2 << Seen::Whole << Seen::Whole << false;
    QTest::newRow("all was seen, part is") << 0.2 << Seen::Whole << Seen::Part << true;
    QTest::newRow("part was seen, and is") << 0.2 << Seen::Part << Seen::Part << false;
    QTest::newRow("part was seen, all is") << 0.2 << Seen::Part << Seen::Whole << false;
    QTest::newRow("part was seen, nothing is") << 0.2 << Seen::Part << Seen::Nothing << true;
    QTest::newRow("looking away") << 0.2 << Seen::Nothing << Seen::Nothing << false;
}

void tst_CameraAim::aim()
{
    QFETCH(double, change);
    QFETCH(Seen, before);
    QFETCH(Seen, now);
    QFETCH(bool, expected);
    QCOMPARE(needsAim(change, before, now), expected);
}

QTEST_APPLESS_MAIN(tst_CameraAim)
#include "tst_cameraaim.moc"
