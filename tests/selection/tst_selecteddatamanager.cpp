// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <selection/StoreCase.h>

#include <QMetaMethod>

#include <climits>
#include <type_traits>

namespace {

const SelectModel model0 = SelectModel(0);
const SelectModel model2 = SelectModel(2);
const SelectModel model7 = SelectModel(7);

/// Pairs (first, second), (first + 1, second), ...
Pairs run(int first, int count, int second)
{
    Pairs pairs;
    for (int i = 0; i < count; ++i) {
        pairs.append({first + i, second});
    }
    return pairs;
}

QList<QPair<int, QPair<int, int>>> runOf(int model, int first, int count, int second)
{
    QList<QPair<int, QPair<int, int>>> items;
    for (const QPair<int, int>& pair : run(first, count, second)) {
        items.append({model, pair});
    }
    return items;
}

} // namespace

class tst_SelectedDataManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isOneObjectWithoutParent();
    void declaresNoSignalsOrSlots();
    void hasItsFieldsInOrder();
    void startsEmpty();
    void adds_data();
    void adds() { runStoreCase(); }
    void removes_data();
    void removes() { runStoreCase(); }
    void changesManyAtOnce();
    void looksInVainAmongFew();
    void holdsAMillion();
    void removesByFirstIdentifier_data();
    void removesByFirstIdentifier() { runStoreCase(); }
    void deletesSilently_data();
    void deletesSilently() { runStoreCase(); }
    void clears_data();
    void clears() { runStoreCase(); }
    void obeysTheGateOfTheProjectTree_data();
    void obeysTheGateOfTheProjectTree();
    void answersPairsOfAModelInOrder();
    void handsOutACopyOfTheList();
    void matches_data();
    void matches();
    void privateRemovalTakesAllMatches();
};

void tst_SelectedDataManager::isOneObjectWithoutParent()
{
    SelectedDataManager* const store = SelectedDataManager::getInstance();
    QVERIFY(store != nullptr);
    QCOMPARE(SelectedDataManager::getInstance(), store);
    QCOMPARE(SelectedDataManager::m_instance, store);
    QVERIFY(store->parent() == nullptr);
}

void tst_SelectedDataManager::declaresNoSignalsOrSlots()
{
    const QMetaObject& meta = SelectedDataManager::staticMetaObject;
    QCOMPARE(meta.methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QVERIFY(std::has_virtual_destructor<SelectedDataManager>::value);
}

void tst_SelectedDataManager::hasItsFieldsInOrder()
{
    using Store = SelectedDataManager;
    const OwnStore store;
    const auto* const base = reinterpret_cast<const char*>(&*store);
    const auto offset = [base](const auto& field) { return reinterpret_cast<const char*>(&field) - base; };
    const QList<qptrdiff> offsets{offset(store->m_selectedDataList),       offset(store->m_selectModel),
                                  offset(store->m_isPoolClosed),           offset(store->m_dataPool),
                                  offset(store->m_isHighLightCheckEnable), offset(store->m_isCanSwitchSelectModel),
                                  offset(store->m_mainWindowSelectModel)};
    QVERIFY(std::is_sorted(offsets.begin(), offsets.end()));
    QCOMPARE(offsets.first(), qptrdiff(sizeof(QObject)));
    QCOMPARE(qptrdiff(sizeof(Store)), offsets.last() + qptrdiff(sizeof(SelectModel)));
    QVERIFY((std::is_same<decltype(Store::m_selectedDataList), QList<DataModel::SelectedDataBase*>>::value));
    QVERIFY((std::is_same<decltype(Store::m_dataPool), std::deque<DataModel::SelectedDataBase*>>::value));
}

void tst_SelectedDataManager::startsEmpty()
{
    const OwnStore store;
    QCOMPARE(store->getDataCount(), 0);
    QVERIFY(store->getSelectedDataList().isEmpty());
    QCOMPARE(store->getSelectModel(), model0);
    QCOMPARE(store->m_mainWindowSelectModel, model0);
    QVERIFY(!store->m_isPoolClosed);
    QVERIFY(!store->m_isHighLightCheckEnable);
    QVERIFY(store->canSwitchSelectModel());
}

void tst_SelectedDataManager::adds_data()
{
    addStoreColumns();
    const auto adding = [](SelectModel model, const Pairs& pairs) {
        return [model, pairs](SelectedDataManager& store) { store.addSelectedTargetList(model, pairs); };
    };
    QTest::newRow("nothing") << nothing() << Script(adding(model2, {}))
                             << lines({"refreshActionOnSelectDataChanged"}, "") << QString();
    QTest::newRow("two pairs") << Script(holding({{7, {9, 9}}})) << Script(adding(model2, {{1, 0}, {3, 4}}))
                               << lines({"setViewObjectListState 2 [(1,0) (3,4)] 1",
                                         "updateGeomrtryActorTransparency 3", "updateViewObjectState 2 (1,0) 1",
                                         "updateViewObjectState 2 (3,4) 1", "refreshActionOnSelectDataChanged"},
                                        "7:9,9 2:1,0 2:3,4")
                               << QStringLiteral("7:9,9 2:1,0 2:3,4");
    QTest::newRow("a wildcard twice") << nothing() << Script(adding(model2, {{3, -1}, {3, -1}}))
                                      << lines({"setViewObjectListState 2 [(3,-1)] 1",
                                                "updateGeomrtryActorTransparency 1", "updateViewObjectState 2 (3,-1) 1",
                                                "refreshActionOnSelectDataChanged"},
                                               "2:3,-1")
                                      << QStringLiteral("2:3,-1");
    QTest::newRow("only what is there") << Script(holding({{2, {1, 0}}, {2, {3, 4}}}))
                                        << Script(adding(model2, {{3, 4}, {1, 0}, {-1, 0}, {3, -7}, {-1, -1}}))
                                        << lines({"refreshActionOnSelectDataChanged"}, "2:1,0 2:3,4")
                                        << QStringLiteral("2:1,0 2:3,4");
    QTest::newRow("the same pair of another model")
        << Script(holding({{2, {1, 0}}})) << Script(adding(model7, {{1, 0}}))
        << lines({"setViewObjectListState 7 [(1,0)] 1", "updateGeomrtryActorTransparency 2",
                  "updateViewObjectState 7 (1,0) 1", "refreshActionOnSelectDataChanged"},
                 "2:1,0 7:1,0")
        << QStringLiteral("2:1,0 7:1,0");
    QTest::newRow("some are there") << Script(holding({{2, {1, 0}}}))
                                    << Script(adding(model2, {{5, 5}, {1, 0}, {5, 5}, {-2, 6}}))
                                    << lines({"setViewObjectListState 2 [(5,5) (-2,6)] 1",
                                              "updateGeomrtryActorTransparency 3", "updateViewObjectState 2 (5,5) 1",
                                              "updateViewObjectState 2 (-2,6) 1", "refreshActionOnSelectDataChanged"},
                                             "2:1,0 2:5,5 2:-2,6")
                                    << QStringLiteral("2:1,0 2:5,5 2:-2,6");
    const char* const many = "2:0,0 2:1,0 2:2,0 2:3,0 2:4,0 2:5,0 2:6,0 2:7,0 2:8,0 2:40,-1";
    // Long lists: (0,0) to (8,0) twice, and three shapes of wildcard, of which one finds nothing.
    QTest::newRow("a long list with duplicates and wildcards")
        << Script(holding(runOf(2, 0, 8, 0)))
        << Script(adding(model2, run(0, 9, 0) + run(0, 9, 0) + Pairs{{3, -1}, {40, -1}, {-1, 0}, {40, -5}, {-1, -1}}))
        << lines({"setViewObjectListState 2 [(8,0) (40,-1)] 1", "updateGeomrtryActorTransparency 10",
                  "updateViewObjectState 2 (8,0) 1", "updateViewObjectState 2 (40,-1) 1",
                  "refreshActionOnSelectDataChanged"},
                 many)
        << QString::fromLatin1(many);
}

void tst_SelectedDataManager::removes_data()
{
    addStoreColumns();
    const auto removing = [](SelectModel model, const Pairs& pairs) {
        return [model, pairs](SelectedDataManager& store) { store.removeSelectedTargetList(model, pairs); };
    };
    const Script three = holding({{2, {1, 0}}, {7, {1, 0}}, {2, {3, 4}}});
    QTest::newRow("nothing") << three << Script(removing(model2, {}))
                             << lines({"refreshActionOnSelectDataChanged"}, "2:1,0 7:1,0 2:3,4")
                             << QStringLiteral("2:1,0 7:1,0 2:3,4");
    QTest::newRow("what is not there") << three << Script(removing(model2, {{4, 3}, {5, -1}, {-1, 5}}))
                                       << lines({"refreshActionOnSelectDataChanged"}, "2:1,0 7:1,0 2:3,4")
                                       << QStringLiteral("2:1,0 7:1,0 2:3,4");
    QTest::newRow("in the order given") << three << Script(removing(model2, {{3, 4}, {9, 9}, {1, 0}, {1, 0}}))
                                        << lines({"setViewObjectListState 2 [(3,4) (1,0)] 0",
                                                  "updateGeomrtryActorTransparency 1",
                                                  "updateViewObjectState 2 (3,4) 0", "updateViewObjectState 2 (1,0) 0",
                                                  "refreshActionOnSelectDataChanged"},
                                                 "7:1,0")
                                        << QStringLiteral("7:1,0");
    QTest::newRow("one wildcard, one item")
        << three << Script(removing(model2, {{-1, -1}}))
        << lines({"setViewObjectListState 2 [(-1,-1)] 0", "updateGeomrtryActorTransparency 2",
                  "updateViewObjectState 2 (-1,-1) 0", "refreshActionOnSelectDataChanged"},
                 "7:1,0 2:3,4")
        << QStringLiteral("7:1,0 2:3,4");
    // Of (0,0) to (9,0) under 2 and one item under 7: by exact pair, then the first with 1, with any first, the first.
    const Pairs mixed = Pairs{{5, 0}, {1, -1}, {-1, 0}, {-1, -1}, {5, 0}, {1, -1}, {9, 0}, {0, 0}, {-1, 3}};
    QTest::newRow("a long list with wildcards")
        << Script(holding(runOf(2, 0, 7, 0) + runOf(7, 5, 1, 0) + runOf(2, 9, 1, 0))) << Script(removing(model2, mixed))
        << lines({"setViewObjectListState 2 [(5,0) (1,-1) (-1,0) (-1,-1) (9,0)] 0", "updateGeomrtryActorTransparency 4",
                  "updateViewObjectState 2 (5,0) 0", "updateViewObjectState 2 (1,-1) 0",
                  "updateViewObjectState 2 (-1,0) 0", "updateViewObjectState 2 (-1,-1) 0",
                  "updateViewObjectState 2 (9,0) 0", "refreshActionOnSelectDataChanged"},
                 "2:3,0 2:4,0 2:6,0 7:5,0")
        << QStringLiteral("2:3,0 2:4,0 2:6,0 7:5,0");
    // Zero is an identifier like any other.
    QTest::newRow("a long list with zeros")
        << Script(holding({{2, {0, 5}}, {2, {1, 0}}, {2, {2, 0}}, {2, {4, 7}}, {2, {4, 0}}, {2, {3, 6}}, {2, {0, 6}}}))
        << Script(removing(model2, Pairs{{-1, 0}, {4, 0}, {0, 6}} + run(50, 8, 0)))
        << lines({"setViewObjectListState 2 [(-1,0) (4,0) (0,6)] 0", "updateGeomrtryActorTransparency 4",
                  "updateViewObjectState 2 (-1,0) 0", "updateViewObjectState 2 (4,0) 0",
                  "updateViewObjectState 2 (0,6) 0", "refreshActionOnSelectDataChanged"},
                 "2:0,5 2:2,0 2:4,7 2:3,6")
        << QStringLiteral("2:0,5 2:2,0 2:4,7 2:3,6");
    // The memory of the list still holds what was its last pair.
    for (const int count : {1, 9}) {
        Pairs shortened = run(50, count, 0) + Pairs{{1, 0}};
        shortened.removeLast();
        QTest::addRow("a shortened list of %d", count)
            << three << Script(removing(model2, shortened))
            << lines({"refreshActionOnSelectDataChanged"}, "2:1,0 7:1,0 2:3,4") << QStringLiteral("2:1,0 7:1,0 2:3,4");
    }
}

void tst_SelectedDataManager::changesManyAtOnce()
{
    const OwnStore store;
    store->addSelectedTargetList(model2, run(0, 1000, 3) + run(0, 1000, 3));
    QCOMPARE(store->getSelectedDataBySelectedModel(model2), run(0, 1000, 3));
    store->removeSelectedTargetList(model2, run(600, 1000, 3));
    QCOMPARE(store->getSelectedDataBySelectedModel(model2), run(0, 600, 3));
    QList<int> ids;
    for (int id = 0; id < 500; ++id) {
        ids.append(id);
    }
    store->removeSelectedTargets(model2, ids);
    QCOMPARE(store->getSelectedDataBySelectedModel(model2), run(500, 100, 3));
}

/// Wherever the items fall in a table that has no more room: the search for one that is not there must end.
void tst_SelectedDataManager::looksInVainAmongFew()
{
    const OwnStore store;
    for (int round = 0; round < 1000; ++round) {
        const Pairs held = run(8 * round, 8, 0);
        store->addSelectedTargetList(model2, held);
        store->removeSelectedTargetList(model2, run(10000 + 9 * round, 9, 0));
        QCOMPARE(store->getSelectedDataBySelectedModel(model2), held);
        store->clearAllSelectedTarget();
    }
}

void tst_SelectedDataManager::holdsAMillion()
{
    constexpr int million = 1000000;
    const OwnStore store;
    for (int i = 0; i < million; ++i) {
        store->addSelectedTargetList(model2, {{4, 7}});
    }
    const Pairs one = run(4, 1, 7);
    QCOMPARE(store->getSelectedDataBySelectedModel(model2), one);
    store->addSelectedTargetList(model2, run(100, million, 3));
    QCOMPARE(store->getSelectedDataBySelectedModel(model2), one + run(100, million, 3));
    store->removeSelectedTargetList(model2, run(100 + million, million, 3));
    QCOMPARE(store->getSelectedDataBySelectedModel(model2), one + run(100, million, 3));
    store->removeSelectedTargetList(model2, run(100, million, 3));
    QCOMPARE(store->getSelectedDataBySelectedModel(model2), one);
}

void tst_SelectedDataManager::removesByFirstIdentifier_data()
{
    addStoreColumns();
    const auto removing = [](SelectModel model, const QList<int>& ids) {
        return [model, ids](SelectedDataManager& store) { store.removeSelectedTargets(model, ids); };
    };
    const Script five = holding({{2, {1, 0}}, {2, {3, 4}}, {7, {1, 0}}, {2, {1, 7}}, {2, {5, 5}}});
    QTest::newRow("nothing") << five << Script(removing(model2, {}))
                             << lines({"setViewObjectListState 2 [] 0"}, "2:1,0 2:3,4 7:1,0 2:1,7 2:5,5")
                             << QStringLiteral("2:1,0 2:3,4 7:1,0 2:1,7 2:5,5");
    QTest::newRow("what is not there") << five << Script(removing(model2, {8, -1}))
                                       << lines({"setViewObjectListState 2 [] 0"}, "2:1,0 2:3,4 7:1,0 2:1,7 2:5,5")
                                       << QStringLiteral("2:1,0 2:3,4 7:1,0 2:1,7 2:5,5");
    QTest::newRow("identifier by identifier")
        << five << Script(removing(model2, {3, 1}))
        << lines({"setViewObjectListState 2 [(3,4) (1,0) (1,7)] 0"}, "7:1,0 2:5,5") << QStringLiteral("7:1,0 2:5,5");
    // All is collected before anything is removed, so the second 1 collects again.
    QTest::newRow("an identifier twice") << five << Script(removing(model2, {1, 1}))
                                         << lines({"setViewObjectListState 2 [(1,0) (1,7) (1,0) (1,7)] 0"},
                                                  "2:3,4 7:1,0 2:5,5")
                                         << QStringLiteral("2:3,4 7:1,0 2:5,5");
    QTest::newRow("an item that is a wildcard itself")
        << Script(holding({{2, {6, 8}}, {2, {-1, 8}}, {2, {6, 9}}})) << Script(removing(model2, {-1}))
        << lines({"setViewObjectListState 2 [(-1,8)] 0"}, "2:6,9") << QStringLiteral("2:6,9");
    QTest::newRow("many items of one identifier")
        << Script(holding({{2, {1, 0}},
                           {2, {1, 1}},
                           {2, {1, 2}},
                           {2, {1, 3}},
                           {2, {1, 4}},
                           {2, {1, 5}},
                           {2, {1, 5}},
                           {2, {1, 6}},
                           {2, {1, 7}},
                           {2, {2, 0}},
                           {2, {1, 8}}}))
        << Script(removing(model2, {1}))
        << lines({"setViewObjectListState 2 [(1,0) (1,1) (1,2) (1,3) (1,4) (1,5) (1,5) (1,6) (1,7) (1,8)] 0"}, "2:2,0")
        << QStringLiteral("2:2,0");
    QTest::newRow("many identifiers, one a wildcard's")
        << Script(holding(runOf(2, 0, 12, 3) + runOf(2, -1, 1, 3) + runOf(7, 0, 1, 3) + runOf(2, 20, 1, 4)))
        << Script(removing(model2, {10, 9, 8, 7, 6, 5, 4, 3, 2, -1}))
        << lines({"setViewObjectListState 2 [(10,3) (9,3) (8,3) (7,3) (6,3) (5,3) (4,3) (3,3) (2,3) (-1,3)] 0"},
                 "7:0,3 2:20,4")
        << QStringLiteral("7:0,3 2:20,4");
    QTest::newRow("many identifiers with the largest")
        << Script(holding({{2, {-1, 3}}, {2, {INT_MAX, 3}}}))
        << Script(removing(model2, {INT_MAX, 50, 51, 52, 53, 54, 55, 56, 57}))
        << lines({"setViewObjectListState 2 [(2147483647,3)] 0"}, "2:-1,3") << QStringLiteral("2:-1,3");
}

void tst_SelectedDataManager::deletesSilently_data()
{
    addStoreColumns();
    const Script five = holding({{2, {1, 0}}, {2, {3, 4}}, {7, {1, 0}}, {2, {1, 7}}, {2, {-1, 5}}});
    QTest::newRow("all of a model") << five << Script([](SelectedDataManager& s) { s.deleteSelectedData(model2); })
                                    << QStringList() << QStringLiteral("7:1,0");
    QTest::newRow("of a first identifier")
        << five << Script([](SelectedDataManager& s) { s.deleteSelectedData(model2, 1); }) << QStringList()
        << QStringLiteral("2:3,4 7:1,0 2:-1,5");
    QTest::newRow("of any first identifier")
        << five << Script([](SelectedDataManager& s) { s.deleteSelectedData(model2, -1); }) << QStringList()
        << QStringLiteral("7:1,0");
    QTest::newRow("of a model without items")
        << five << Script([](SelectedDataManager& s) { s.deleteSelectedData(model0); }) << QStringList()
        << QStringLiteral("2:1,0 2:3,4 7:1,0 2:1,7 2:-1,5");
}

void tst_SelectedDataManager::clears_data()
{
    addStoreColumns();
    const Script clear = [](SelectedDataManager& store) { store.clearAllSelectedTarget(); };
    QTest::newRow("nothing") << nothing() << clear
                             << lines({"updateGeomrtryActorTransparency 0", "clearAllHighLight",
                                       "refreshActionOnSelectDataChanged"},
                                      "")
                             << QString();
    QTest::newRow("three items") << Script(holding({{2, {1, 0}}, {7, {5, 3}}, {2, {4, -1}}})) << clear
                                 << lines({"updateViewObjectState 2 (1,0) 0 | 2:-1,-1 7:5,3 2:4,-1",
                                           "updateViewObjectState 7 (5,3) 0 | 2:-1,-1 7:-1,-1 2:4,-1",
                                           "updateViewObjectState 2 (4,-1) 0 | 2:-1,-1 7:-1,-1 2:-1,-1",
                                           "updateGeomrtryActorTransparency 0 | ", "clearAllHighLight | ",
                                           "refreshActionOnSelectDataChanged | "})
                                 << QString();
}

void tst_SelectedDataManager::obeysTheGateOfTheProjectTree_data()
{
    QTest::addColumn<bool>("canSwitch");
    QTest::addColumn<int>("currentModel");
    QTest::addColumn<bool>("isAccepted");
    for (const int model : {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 32, 39}) {
        const bool isTreeModel = QList<int>{0, 1, 7, 10}.contains(model);
        QTest::addRow("enabled, model %d", model) << true << model << true;
        QTest::addRow("disabled, model %d", model) << false << model << isTreeModel;
    }
}

void tst_SelectedDataManager::obeysTheGateOfTheProjectTree()
{
    QFETCH(bool, canSwitch);
    QFETCH(int, currentModel);
    QFETCH(bool, isAccepted);
    const OwnStore store;
    store->setSelectModelInMainWindow(SelectModel(currentModel));
    store->setSwitchSelectModelEnable(canSwitch);
    QCOMPARE(int(store->getSelectModel()), currentModel);
    SignalLog log;
    // The model given is 2 throughout: the gate looks at the current one.
    store->addSelectedTargetListByProjectTree(model2, {{1, 0}});
    QCOMPARE(log.take(), isAccepted ? lines({"setViewObjectListState 2 [(1,0)] 1", "updateGeomrtryActorTransparency 1",
                                             "updateViewObjectState 2 (1,0) 1", "refreshActionOnSelectDataChanged"})
                                    : QStringList());
    QCOMPARE(store->getDataCount(), isAccepted ? 1 : 0);
    store->addSelectData(model2, 3, 4);
    store->removeSelectedTargetListByProjectTree(model2, {{3, 4}});
    QCOMPARE(log.take(), isAccepted ? lines({"setViewObjectListState 2 [(3,4)] 0", "updateGeomrtryActorTransparency 1",
                                             "updateViewObjectState 2 (3,4) 0", "refreshActionOnSelectDataChanged"})
                                    : QStringList());
    QCOMPARE(store->hasSameSelectedData(model2, 3, 4), !isAccepted);
}

void tst_SelectedDataManager::answersPairsOfAModelInOrder()
{
    const OwnStore store;
    holding({{2, {9, 1}}, {7, {1, 0}}, {2, {3, -1}}, {2, {0, 0}}})(*store);
    QCOMPARE(store->getSelectedDataBySelectedModel(model2), (Pairs{{9, 1}, {3, -1}, {0, 0}}));
    QCOMPARE(store->getSelectedDataBySelectedModel(model7), (Pairs{{1, 0}}));
    QCOMPARE(store->getSelectedDataBySelectedModel(model0), Pairs());
}

void tst_SelectedDataManager::handsOutACopyOfTheList()
{
    const OwnStore store;
    holding({{2, {9, 1}}, {7, {1, 0}}})(*store);
    QList<DataModel::SelectedDataBase*> list = store->getSelectedDataList();
    QCOMPARE(list, store->m_selectedDataList);
    list.clear();
    QCOMPARE(store->getDataCount(), 2);
}

void tst_SelectedDataManager::matches_data()
{
    QTest::addColumn<int>("model");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<bool>("isFound");
    QTest::newRow("same") << 2 << 3 << 4 << true;
    QTest::newRow("other model") << 7 << 3 << 4 << false;
    QTest::newRow("other first") << 2 << 4 << 4 << false;
    QTest::newRow("other second") << 2 << 3 << 3 << false;
    QTest::newRow("any first") << 2 << -1 << 4 << true;
    QTest::newRow("any first, other second") << 2 << -1 << 3 << false;
    QTest::newRow("any second") << 2 << 3 << -2 << true;
    QTest::newRow("any second, other first") << 2 << 4 << -1 << false;
    QTest::newRow("anything") << 2 << -5 << -1 << true;
    QTest::newRow("anything of another model") << 7 << -1 << -1 << false;
}

void tst_SelectedDataManager::matches()
{
    QFETCH(int, model);
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(bool, isFound);
    const OwnStore store;
    holding({{0, {3, 4}}, {2, {3, 4}}})(*store);
    QCOMPARE(store->hasSameSelectedData(SelectModel(model), first, second), isFound);
}

void tst_SelectedDataManager::privateRemovalTakesAllMatches()
{
    const OwnStore store;
    holding({{2, {1, 0}}, {7, {1, 0}}, {2, {3, 4}}})(*store);
    SignalLog log;
    store->removeSelectData(model2, -1, -1);
    QCOMPARE(itemsOf(*store), QStringLiteral("7:1,0"));
    QCOMPARE(log.take(), QStringList());
}

QTEST_GUILESS_MAIN(tst_SelectedDataManager)
#include "tst_selecteddatamanager.moc"
