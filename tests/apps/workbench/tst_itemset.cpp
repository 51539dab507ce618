// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/ItemSet.h>

#include <QTest>

#include <limits>
#include <random>
#include <set>

using Workbench::ItemSet;

class tst_ItemSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comesAndGoes_data();
    void comesAndGoes();
    void secondsRise();
    void agreesWithAPlainSet_data();
    void agreesWithAPlainSet();
    void copiesAreApart();
};

void tst_ItemSet::comesAndGoes_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    const int least = std::numeric_limits<int>::min();
    const int most = std::numeric_limits<int>::max();
    QTest::newRow("an element") << 1 << 17;
    QTest::newRow("zeros") << 0 << 0;
    QTest::newRow("a volume") << 3 << -1;
    QTest::newRow("the ends") << least << most;
    QTest::newRow("the other ends") << most << least;
}

void tst_ItemSet::comesAndGoes()
{
    QFETCH(int, first);
    QFETCH(int, second);
    ItemSet set;
    QVERIFY(set.isEmpty());
    QVERIFY(!set.remove({first, second}));
    QVERIFY(set.insert({first, second}));
    QVERIFY(!set.insert({first, second}));
    QCOMPARE(set.count(), std::size_t(1));
    QVERIFY(set.contains({first, second}));
    QVERIFY(!set.contains({second, first}) || first == second);
    QCOMPARE(set.secondsOf(first), std::vector<int>{second});
    QVERIFY(set.remove({first, second}));
    QVERIFY(!set.contains({first, second}));
    QVERIFY(set.isEmpty() && set.secondsOf(first).empty());
}

void tst_ItemSet::secondsRise()
{
    ItemSet set;
    for (int second : {70000, 5, 1023, 1024, 63, 64, 0}) {
        set.insert({2, second});
        set.insert({1, second + 1});
        set.insert({3, second + 2});
    }
    QCOMPARE(set.secondsOf(2), (std::vector<int>{0, 5, 63, 64, 1023, 1024, 70000}));
    QCOMPARE(set.secondsOf(4), std::vector<int>());
    QCOMPARE(set.count(), std::size_t(21));
}

void tst_ItemSet::agreesWithAPlainSet_data()
{
    QTest::addColumn<int>("range");
    QTest::newRow("dense") << 40;
    QTest::newRow("over some pages") << 5000;
    QTest::newRow("sparse") << 2000000000;
}

// Random comings and goings, beside a set that keeps the pairs as they are.
void tst_ItemSet::agreesWithAPlainSet()
{
    QFETCH(int, range);
    std::mt19937 random(7);
    std::uniform_int_distribution<int> seconds(-2, range);
    ItemSet set;
    std::set<std::pair<int, int>> plain;
    for (int step = 0; step < 20000; ++step) {
        const int first = static_cast<int>(random() % 3U);
        // From time to time something near what was there before.
        const bool isNear = !plain.empty() && random() % 2U == 0;
        const int second = isNear ? plain.begin()->second : seconds(random);
        if (random() % 3U != 0) {
            QCOMPARE(set.insert({first, second}), plain.insert({first, second}).second);
        } else {
            QCOMPARE(set.remove({first, second}), plain.erase({first, second}) == 1);
        }
    }
    QCOMPARE(set.count(), plain.size());
    std::set<std::pair<int, int>> found;
    for (int first = 0; first < 3; ++first) {
        for (int second : set.secondsOf(first)) {
            QVERIFY(set.contains({first, second}));
            found.insert({first, second});
        }
    }
    QVERIFY(found == plain);
}

void tst_ItemSet::copiesAreApart()
{
    ItemSet set;
    set.insert({1, 1});
    ItemSet copy = set;
    QVERIFY(copy.insert({1, 2}));
    QVERIFY(set.insert({1, 3}));
    QCOMPARE(set.secondsOf(1), (std::vector<int>{1, 3}));
    QCOMPARE(copy.secondsOf(1), (std::vector<int>{1, 2}));
    copy = set;
    QVERIFY(copy.remove({1, 1}));
    QCOMPARE(set.secondsOf(1), (std::vector<int>{1, 3}));
    QCOMPARE(copy.secondsOf(1), std::vector<int>{3});
}

QTEST_APPLESS_MAIN(tst_ItemSet)
#include "tst_itemset.moc"
