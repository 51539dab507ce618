// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <selection/StoreCase.h>

#include <QPointer>
#include <QTemporaryFile>

#include <cstdio>
#include <unistd.h>

using Record = DataModel::SelectedDataBase;

namespace {

/// What reaches standard output while a script runs.
QByteArray standardOutputOf(const std::function<void()>& script)
{
    QTemporaryFile file;
    if (!file.open()) {
        return "<no file>";
    }
    std::fflush(stdout);
    const int saved = ::dup(STDOUT_FILENO);
    ::dup2(file.handle(), STDOUT_FILENO);
    script();
    std::fflush(stdout);
    ::dup2(saved, STDOUT_FILENO);
    ::close(saved);
    file.seek(0);
    return file.readAll();
}

QList<Record*> poolOf(const SelectedDataManager& store)
{
    return QList<Record*>(store.m_dataPool.begin(), store.m_dataPool.end());
}

} // namespace

class tst_RecordPool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initMakesTwentyRecords();
    void initResetsBothFlags();
    void reusesRecordsFirstInFirstOut();
    void growsByNewRecordsWhenEmpty();
    void returnsInTheOrderOfRemoval_data();
    void returnsInTheOrderOfRemoval();
    void keepsTheModelOfAReturnedRecord();
    void clickingKeepsTheOrder_data();
    void clickingKeepsTheOrder();
    void returnsBeforeTheSignalOfEachClearedItem();
    void closedPoolIsReported();
    void closedPoolAddsNothingToLongLists();
    void endFreesEveryRecord();
    void endFreesThePoolFirst();
    void endSurvivesAWatcherThatRemoves();
    void twoStoresKeepTheirRecordsApart();
};

void tst_RecordPool::initMakesTwentyRecords()
{
    const OwnStore store;
    QCOMPARE(int(store->m_dataPool.size()), 20);
    for (const Record* const record : store->m_dataPool) {
        QCOMPARE(record->getFirstID(), -1);
        QCOMPARE(record->getSecondID(), -1);
        QVERIFY(record->parent() == nullptr);
    }
    const QList<Record*> first = poolOf(*store);
    store->init();
    QCOMPARE(poolOf(*store).mid(0, 20), first);
    QCOMPARE(int(store->m_dataPool.size()), 40);
}

void tst_RecordPool::initResetsBothFlags()
{
    const OwnStore store;
    store->setHighLightCheckEnable(true);
    store->setSwitchSelectModelEnable(false);
    store->init();
    QVERIFY(!store->m_isHighLightCheckEnable);
    QVERIFY(store->m_isCanSwitchSelectModel);
}

void tst_RecordPool::reusesRecordsFirstInFirstOut()
{
    const OwnStore store;
    const QList<Record*> pool = poolOf(*store);
    store->addSelectedTargetList(SelectModel(2), {{1, 0}, {2, 0}, {3, 0}});
    QCOMPARE(store->getSelectedDataList(), pool.mid(0, 3));
    store->clearAllSelectedTarget();
    QCOMPARE(poolOf(*store), pool.mid(3) + pool.mid(0, 3));
    for (int i = 0; i < 20; ++i) {
        store->addSelectData(SelectModel(2), i, 0);
    }
    QCOMPARE(store->getSelectedDataList(), pool.mid(3) + pool.mid(0, 3));
}

void tst_RecordPool::growsByNewRecordsWhenEmpty()
{
    const OwnStore store;
    const QList<Record*> pool = poolOf(*store);
    for (int i = 0; i < 22; ++i) {
        store->addSelectData(SelectModel(2), i, 0);
    }
    QVERIFY(store->m_dataPool.empty());
    QCOMPARE(store->getSelectedDataList().mid(0, 20), pool);
    QVERIFY(!pool.contains(store->getSelectedDataList().at(20)));
    store->deleteSelectedData(SelectModel(2));
    QCOMPARE(int(store->m_dataPool.size()), 22);
}

void tst_RecordPool::returnsInTheOrderOfRemoval_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<Script>("removal");
    QTest::addColumn<QList<int>>("returned");
    using Store = SelectedDataManager;
    // Items are (0,0), (1,1), (2,0), (3,1), ... under model 2; `returned` are their positions.
    QTest::newRow("by pairs") << 4 << Script([](Store& s) {
        s.removeSelectedTargetList(SelectModel(2), {{3, 1}, {-1, 1}, {0, 0}});
    }) << QList<int>{3, 1, 0};
    QTest::newRow("by many pairs") << 12 << Script([](Store& s) {
        s.removeSelectedTargetList(
            SelectModel(2),
            {{3, 1}, {-1, 1}, {0, 0}, {11, 1}, {5, -1}, {-1, -1}, {9, 9}, {4, 0}, {-1, 1}, {-1, 0}, {3, 1}});
    }) << QList<int>{3, 1, 0, 11, 5, 2, 4, 7, 6};
    QTest::newRow("by first identifiers") << 4 << Script([](Store& s) {
        s.removeSelectedTargets(SelectModel(2), {2, 0, 3});
    }) << QList<int>{2, 0, 3};
    QTest::newRow("by many first identifiers") << 10 << Script([](Store& s) {
        s.removeSelectedTargets(SelectModel(2), {2, 0, 3, 9, 8, 7, 6, 5, 4, 1});
    }) << QList<int>{2, 0, 3, 9, 8, 7, 6, 5, 4, 1};
    // The item of position 1 becomes (-1,1) and takes all with a second identifier 1 along, from the last on.
    QTest::newRow("by the identifier of a wildcard item") << 10 << Script([](Store& s) {
        s.getSelectedDataList().at(1)->setFirstID(-1);
        s.removeSelectedTargets(SelectModel(2), {0, -1, 2});
    }) << QList<int>{0, 9, 7, 5, 3, 1, 2};
    QTest::newRow("by many identifiers and a wildcard item") << 10 << Script([](Store& s) {
        s.getSelectedDataList().at(1)->setFirstID(-1);
        s.removeSelectedTargets(SelectModel(2), {0, -1, 2, 3, 4, 5, 6, 7, 8, 9, 0});
    }) << QList<int>{0, 9, 7, 5, 3, 1, 2, 4, 6, 8};
    QTest::newRow("of a model") << 4 << Script([](Store& s) { s.deleteSelectedData(SelectModel(2)); })
                                << QList<int>{3, 2, 1, 0};
    QTest::newRow("of a second identifier")
        << 5 << Script([](Store& s) { s.removeSelectData(SelectModel(2), -1, 0); }) << QList<int>{4, 2, 0};
    QTest::newRow("by switching the model")
        << 3 << Script([](Store& s) { s.setSelectModel(SelectModel(7)); }) << QList<int>{0, 1, 2};
    QTest::newRow("by clearing") << 3 << Script([](Store& s) { s.clearAllSelectedTarget(); }) << QList<int>{0, 1, 2};
}

void tst_RecordPool::returnsInTheOrderOfRemoval()
{
    QFETCH(int, count);
    QFETCH(Script, removal);
    QFETCH(QList<int>, returned);
    const OwnStore store;
    for (int i = 0; i < count; ++i) {
        store->addSelectData(SelectModel(2), i, i % 2);
    }
    const QList<Record*> items = store->getSelectedDataList();
    QList<Record*> expectedPool = poolOf(*store);
    QList<Record*> expectedItems = items;
    for (const int position : returned) {
        expectedPool.append(items.at(position));
        expectedItems.removeOne(items.at(position));
    }
    removal(*store);
    QCOMPARE(poolOf(*store), expectedPool);
    QCOMPARE(store->getSelectedDataList(), expectedItems);
    for (const Record* const record : store->m_dataPool) {
        QCOMPARE(record->getFirstID(), -1);
        QCOMPARE(record->getSecondID(), -1);
    }
}

void tst_RecordPool::keepsTheModelOfAReturnedRecord()
{
    const OwnStore store;
    store->addSelectData(SelectModel(7), 5, 5);
    const Record* const record = store->getSelectedDataList().first();
    store->deleteSelectedData(SelectModel(7));
    QCOMPARE(record->getSelectModel(), SelectModel(7));
}

void tst_RecordPool::clickingKeepsTheOrder_data()
{
    QTest::addColumn<int>("heldCount");
    for (const int held : {0, 1, 17, 18, 19, 20, 25}) {
        QTest::addRow("%d items held", held) << held;
    }
}

void tst_RecordPool::clickingKeepsTheOrder()
{
    QFETCH(int, heldCount);
    const OwnStore store;
    for (int i = 0; i < heldCount; ++i) {
        store->addSelectData(SelectModel(0), 1000 + i, 0);
    }
    std::deque<Record*> expected = store->m_dataPool;
    // Runs of one, two and three objects selected and then deselected, through several blocks of the pool.
    for (int round = 0; round < 300; ++round) {
        for (int i = 0; i <= round % 3; ++i) {
            store->clickViewObject(i, 0);
            if (!expected.empty()) {
                QCOMPARE(store->getSelectedDataList().last(), expected.front());
                expected.pop_front();
            }
        }
        for (int i = 0; i <= round % 3; ++i) {
            expected.push_back(store->getSelectedDataList().at(heldCount));
            store->clickViewObject(i, 0);
        }
        QVERIFY(store->m_dataPool == expected);
    }
}

void tst_RecordPool::returnsBeforeTheSignalOfEachClearedItem()
{
    const OwnStore store;
    holding({{2, {1, 0}}, {2, {2, 0}}})(*store);
    QList<int> sizes;
    QObject receiver;
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_updateViewObjectState, &receiver,
            [&] { sizes.append(int(store->m_dataPool.size())); });
    store->clearAllSelectedTarget();
    QCOMPARE(sizes, (QList<int>{19, 20}));
}

void tst_RecordPool::closedPoolIsReported()
{
    const QByteArray line("\xe5\xaf\xb9\xe8\xb1\xa1\xe6\xb1\xa0\xe5\xb7\xb2\xe7\xbb\x8f\xe5\x85\xb3\xe9\x97\xad\n");
    const OwnStore store;
    store->setHighLightCheckEnable(true);
    store->setSwitchSelectModelEnable(false);
    store->m_isPoolClosed = true;
    QCOMPARE(standardOutputOf([&store] { store->init(); }), line);
    QCOMPARE(int(store->m_dataPool.size()), 20);
    QVERIFY(!store->m_isHighLightCheckEnable);
    QVERIFY(store->m_isCanSwitchSelectModel);
    QCOMPARE(standardOutputOf([&store] { store->addSelectData(SelectModel(2), 1, 0); }), line);
    QCOMPARE(store->getDataCount(), 0);
    QCOMPARE(int(store->m_dataPool.size()), 20);
    store->m_isPoolClosed = false;
    QCOMPARE(standardOutputOf([&store] { store->addSelectData(SelectModel(2), 1, 0); }), QByteArray());
}

void tst_RecordPool::closedPoolAddsNothingToLongLists()
{
    Pairs pairs;
    for (int i = 0; i < 10; ++i) {
        pairs.append({i % 5, 0});
    }
    const OwnStore store;
    store->m_isPoolClosed = true;
    const QByteArray output = standardOutputOf([&] { store->addSelectedTargetList(SelectModel(2), pairs); });
    // Nothing is added, so the second half finds no duplicate.
    QCOMPARE(output.count('\n'), 10);
    QCOMPARE(store->getDataCount(), 0);
}

void tst_RecordPool::endFreesEveryRecord()
{
    QList<QPointer<QObject>> records;
    {
        const OwnStore store;
        for (int i = 0; i < 25; ++i) {
            store->addSelectData(SelectModel(2), i, 0);
        }
        store->removeSelectedTargets(SelectModel(2), {3, 4});
        for (Record* const record : store->getSelectedDataList() + poolOf(*store)) {
            records.append(record);
        }
    }
    QCOMPARE(records.size(), 25);
    QCOMPARE(records.count(QPointer<QObject>()), 25);
}

void tst_RecordPool::endFreesThePoolFirst()
{
    QStringList ends;
    QObject receiver;
    {
        const OwnStore store;
        for (int i = 0; i < 18; ++i) {
            store->addSelectData(SelectModel(2), i, 0);
        }
        for (const Record* const record : poolOf(*store)) {
            connect(record, &QObject::destroyed, &receiver, [&ends] { ends.append(QStringLiteral("free")); });
        }
        for (const int position : {0, 17}) {
            connect(store->getSelectedDataList().at(position), &QObject::destroyed, &receiver,
                    [&ends, position] { ends.append(QString::number(position)); });
        }
    }
    QCOMPARE(ends,
             (QStringList{QStringLiteral("free"), QStringLiteral("free"), QStringLiteral("0"), QStringLiteral("17")}));
}

void tst_RecordPool::endSurvivesAWatcherThatRemoves()
{
    auto* const store = new SelectedDataManager;
    store->init();
    holding({{2, {1, 0}}, {2, {2, 0}}, {2, {3, 0}}})(*store);
    QList<QPointer<QObject>> records;
    for (Record* const record : store->getSelectedDataList()) {
        records.append(record);
    }
    QByteArray poolStates;
    connect(store->getSelectedDataList().first(), &QObject::destroyed, store, [store, &poolStates] {
        poolStates += store->m_isPoolClosed ? "closed" : "open";
        store->deleteSelectedData(SelectModel(2), 3);
    });
    delete store;
    QCOMPARE(poolStates, QByteArray("closed"));
    QCOMPARE(records.count(QPointer<QObject>()), 3);
}

/// Both at the end of their pools, where the last free record comes and goes.
void tst_RecordPool::twoStoresKeepTheirRecordsApart()
{
    const OwnStore one;
    const OwnStore other;
    for (int i = 0; i < 19; ++i) {
        one->addSelectData(SelectModel(0), 100 + i, 0);
        other->addSelectData(SelectModel(0), 100 + i, 0);
    }
    const QList<Record*> ofOne = poolOf(*one);
    const QList<Record*> ofOther = poolOf(*other);
    for (int round = 0; round < 200; ++round) {
        const bool isOneFirst = round % 3 == 0;
        one->clickViewObject(1, 0);
        other->clickViewObject(1, 0);
        QVERIFY(one->m_dataPool.empty() && other->m_dataPool.empty());
        QCOMPARE(one->getSelectedDataList().last(), ofOne.first());
        QCOMPARE(other->getSelectedDataList().last(), ofOther.first());
        (isOneFirst ? *one : *other).clickViewObject(1, 0);
        (isOneFirst ? *other : *one).clickViewObject(1, 0);
        QCOMPARE(poolOf(*one), ofOne);
        QCOMPARE(poolOf(*other), ofOther);
        for (const Record* const record : {ofOne.first(), ofOther.first()}) {
            QCOMPARE(record->getFirstID(), -1);
            QCOMPARE(record->getSecondID(), -1);
        }
    }
}

QTEST_GUILESS_MAIN(tst_RecordPool)
#include "tst_recordpool.moc"
