// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <selection/AllocationCount.h>
#include <selection/StoreCase.h>

#include <cstdlib>

class tst_SelectionAllocations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsEveryAllocator();
    void clicksAllocateNothing_data();
    void clicksAllocateNothing();
    void clicksFromTheFirstOnAllocateNothing_data();
    void clicksFromTheFirstOnAllocateNothing();
    void shortListsAllocateNothing_data();
    void shortListsAllocateNothing();
    void shortRemovalsAllocateNothing_data();
    void shortRemovalsAllocateNothing();
    void firstRemovalAllocatesNothing_data();
    void firstRemovalAllocatesNothing();
    void allocatesNothingWhereverThePoolEnds();
};

namespace {

/// Allocations of `count` runs of a script after some that warm up.
long allocationsOf(int count, const std::function<void()>& script)
{
    for (int i = 0; i < 10; ++i) {
        script();
    }
    const long before = allocationCount();
    for (int i = 0; i < count; ++i) {
        script();
    }
    return allocationCount() - before;
}

} // namespace

void tst_SelectionAllocations::countsEveryAllocator()
{
    // Written to a volatile, so that the compiler cannot leave the pair of calls out.
    void* volatile memory = nullptr;
    QCOMPARE(allocationsOf(1, [&] { std::free(memory = std::malloc(10)); }), 1L);
    QCOMPARE(allocationsOf(1, [&] { std::free(memory = std::calloc(1, 10)); }), 1L);
    QCOMPARE(allocationsOf(1, [] { delete new DataModel::SelectedDataBase; }), 2L);
    QVERIFY(allocationsOf(1, [] { Pairs{{1, 2}}; }) >= 1);
}

void tst_SelectionAllocations::clicksAllocateNothing_data()
{
    QTest::addColumn<int>("heldCount");
    QTest::addColumn<int>("freeCount");
    QTest::newRow("empty selection, first pool") << 0 << 20;
    for (const int free : {1, 2, 3}) {
        QTest::addRow("%d free records", free) << 20 - free << free;
        // Wherever in a block of the pool they stand.
        for (int held = 60; held <= 68; ++held) {
            QTest::addRow("%d items, %d free records", held, free) << held << free;
        }
    }
    // The pool's blocks hold 64 pointers, so some of these stand at a block's end.
    for (int held = 60; held <= 68; ++held) {
        QTest::addRow("%d items", held) << held << 200 - held;
    }
    QTest::newRow("large pool") << 10 << 50000;
}

void tst_SelectionAllocations::clicksAllocateNothing()
{
    QFETCH(int, heldCount);
    QFETCH(int, freeCount);
    const OwnStore store;
    for (int i = 0; i < heldCount + freeCount; ++i) {
        store->addSelectData(SelectModel(2), i, 0);
    }
    store->deleteSelectedData(SelectModel(2));
    for (int i = 0; i < heldCount; ++i) {
        store->addSelectData(SelectModel(2), i, 0);
    }
    QCOMPARE(int(store->m_dataPool.size()), freeCount);
    QCOMPARE(allocationsOf(1000, [&store] { store->clickViewObject(5, 7); }), 0L);
}

void tst_SelectionAllocations::clicksFromTheFirstOnAllocateNothing_data()
{
    QTest::addColumn<int>("heldCount");
    for (const int held : {0, 5, 18, 19, 20, 21, 40}) {
        QTest::addRow("%d items", held) << held;
    }
}

/// Selected by clicks, as a user does. From 20 items on, the pool holds the one record that the click itself returns.
void tst_SelectionAllocations::clicksFromTheFirstOnAllocateNothing()
{
    QFETCH(int, heldCount);
    const OwnStore store;
    for (int i = 0; i < heldCount; ++i) {
        store->clickViewObject(100 + i, 0);
    }
    QCOMPARE(allocationsOf(6400, [&store] { store->clickViewObject(1, 1); }), 0L);
    // Two objects in turn, in both orders.
    QCOMPARE(allocationsOf(1600,
                           [&store] {
                               for (const int id : {1, 2, 1, 2, 1, 2, 2, 1}) {
                                   store->clickViewObject(id, 1);
                               }
                           }),
             0L);
}

void tst_SelectionAllocations::shortListsAllocateNothing_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("one pair") << 1;
    QTest::newRow("three pairs") << 3;
    QTest::newRow("eight pairs") << 8;
}

void tst_SelectionAllocations::shortListsAllocateNothing()
{
    QFETCH(int, count);
    const OwnStore store;
    Pairs pairs;
    for (int i = 0; i < count; ++i) {
        pairs.append({i, 0});
    }
    QCOMPARE(allocationsOf(1000,
                           [&] {
                               store->addSelectedTargetList(SelectModel(2), pairs);
                               store->removeSelectedTargetList(SelectModel(2), pairs);
                           }),
             0L);
    QCOMPARE(allocationsOf(1000, [&] { store->addSelectedTargetList(SelectModel(2), {}); }), 0L);
}

void tst_SelectionAllocations::shortRemovalsAllocateNothing_data()
{
    QTest::addColumn<Script>("removal");
    QTest::addColumn<int>("heldCount");
    using Store = SelectedDataManager;
    const Script ofModel = [](Store& s) { s.deleteSelectedData(SelectModel(2)); };
    const Script ofIdentifier = [](Store& s) { s.deleteSelectedData(SelectModel(2), 1); };
    const Script ofPair = [](Store& s) { s.removeSelectData(SelectModel(2), 1, -1); };
    // With 12 items of another model held, the removed items are all that the first pool can have free.
    for (const int held : {0, 12, 50}) {
        QTest::addRow("of a model, beside %d", held) << ofModel << held;
        QTest::addRow("of an identifier, beside %d", held) << ofIdentifier << held;
        QTest::addRow("of a wildcard, beside %d", held) << ofPair << held;
    }
    QTest::newRow("by clearing") << Script([](Store& s) { s.clearAllSelectedTarget(); }) << 0;
}

void tst_SelectionAllocations::shortRemovalsAllocateNothing()
{
    QFETCH(Script, removal);
    QFETCH(int, heldCount);
    const OwnStore store;
    for (int i = 0; i < heldCount; ++i) {
        store->addSelectData(SelectModel(7), i, 0);
    }
    const Pairs pairs{{1, 0}, {1, 1}, {1, 2}, {1, 3}, {1, 4}, {1, 5}, {1, 6}, {1, 7}};
    QCOMPARE(allocationsOf(1000,
                           [&] {
                               store->addSelectedTargetList(SelectModel(2), pairs);
                               removal(*store);
                           }),
             0L);
    QCOMPARE(store->getDataCount(), heldCount);
}

void tst_SelectionAllocations::firstRemovalAllocatesNothing_data()
{
    QTest::addColumn<int>("heldCount");
    for (int held = 56; held <= 66; ++held) {
        QTest::addRow("beside %d items", held) << held;
    }
}

/// Wherever in its block the pool's first record stands: of those that come back, some, all or none were taken from it.
void tst_SelectionAllocations::firstRemovalAllocatesNothing()
{
    QFETCH(int, heldCount);
    const OwnStore store;
    for (int i = 1; i < 6; ++i) {
        store->init();
    }
    QCOMPARE(int(store->m_dataPool.size()), 120);
    for (int i = 0; i < heldCount; ++i) {
        store->addSelectData(SelectModel(7), i, 0);
    }
    for (int i = 0; i < 3; ++i) {
        store->addSelectData(SelectModel(2), i, 0);
    }
    const long before = allocationCount();
    store->deleteSelectedData(SelectModel(2));
    QCOMPARE(allocationCount() - before, 0L);
    QCOMPARE(int(store->m_dataPool.size()), 120 - heldCount);
}

/// One of these pools fills its last block.
void tst_SelectionAllocations::allocatesNothingWhereverThePoolEnds()
{
    for (int count = 100; count < 164; ++count) {
        const OwnStore store;
        while (int(store->m_dataPool.size()) < count) {
            store->m_dataPool.push_back(new DataModel::SelectedDataBase);
        }
        for (int i = 0; i < 3; ++i) {
            store->addSelectData(SelectModel(2), i, 0);
        }
        const long before = allocationCount();
        store->deleteSelectedData(SelectModel(2));
        QVERIFY2(allocationCount() == before, qPrintable(QString::number(count)));
    }
}

QTEST_GUILESS_MAIN(tst_SelectionAllocations)
#include "tst_selectionallocations.moc"
