// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <selection/StoreCase.h>

#include <QSet>

#include <algorithm>

/// What happens when a listener calls back, step by step; tst_selectionagainstliteral does it at random.
class tst_SelectionReentrancy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void callsBack_data();
    void callsBack();
    void clearingAnExhaustedPoolOwnsEachRecordOnce();
    void aPinningListenerDoesNotKeepItBusy();
    void clearingFromEachSignalStaysShallow_data();
    void clearingFromEachSignalStaysShallow();
    void aCheckMaySwitchTheModel();
    void clearsAnotherStoreMeanwhile();
};

namespace {

const SelectModel model2 = SelectModel(2);

Script clearing()
{
    return [](SelectedDataManager& store) { store.clearAllSelectedTarget(); };
}

} // namespace

void tst_SelectionReentrancy::callsBack_data()
{
    addStoreColumns();
    // The answer of a listener to the first news that (1,0) is hidden.
    QTest::addColumn<Script>("answer");
    const Script three = holding({{2, {1, 0}}, {2, {2, 0}}, {7, {3, 0}}});

    QTest::newRow("clearing, selected again")
        << three << clearing()
        << lines({"updateViewObjectState 2 (1,0) 0 | 2:-1,-1 2:2,0 7:3,0",
                  "setViewObjectListState 2 [(1,0)] 1 | 2:2,0 7:3,0 2:1,0",
                  "updateGeomrtryActorTransparency 3 | 2:2,0 7:3,0 2:1,0",
                  "updateViewObjectState 2 (1,0) 1 | 2:2,0 7:3,0 2:1,0",
                  "refreshActionOnSelectDataChanged | 2:2,0 7:3,0 2:1,0",
                  "updateViewObjectState 2 (2,0) 0 | 2:-1,-1 7:3,0 2:1,0",
                  "updateViewObjectState 7 (3,0) 0 | 2:-1,-1 7:-1,-1 2:1,0",
                  "updateGeomrtryActorTransparency 1 | 2:1,0", "clearAllHighLight | 2:1,0",
                  "refreshActionOnSelectDataChanged | 2:1,0"})
        << QStringLiteral("2:1,0") << Script([](SelectedDataManager& store) {
               store.addSelectedTargetList(model2, {{1, 0}});
           });
    QTest::newRow("clearing, an item removed that is not cleared yet")
        << three << clearing()
        << lines({"updateViewObjectState 2 (1,0) 0 | 2:-1,-1 2:2,0 7:3,0",
                  "setViewObjectListState 2 [(-1,-1)] 0 | 7:3,0", "updateGeomrtryActorTransparency 1 | 7:3,0",
                  "updateViewObjectState 2 (-1,-1) 0 | 7:3,0", "refreshActionOnSelectDataChanged | 7:3,0",
                  "updateViewObjectState 7 (3,0) 0 | 7:-1,-1", "updateGeomrtryActorTransparency 0 | ",
                  "clearAllHighLight | ", "refreshActionOnSelectDataChanged | "})
        << QString() << Script([](SelectedDataManager& store) {
               store.removeSelectedTargetList(model2, {{-1, -1}});
           });
    QTest::newRow("clearing, cleared")
        << three << clearing()
        << lines({"updateViewObjectState 2 (1,0) 0 | 2:-1,-1 2:2,0 7:3,0", "updateViewObjectState 2 (2,0) 0 | ",
                  "updateViewObjectState 7 (3,0) 0 | ", "updateGeomrtryActorTransparency 0 | ", "clearAllHighLight | ",
                  "refreshActionOnSelectDataChanged | ", "updateGeomrtryActorTransparency 0 | ", "clearAllHighLight | ",
                  "refreshActionOnSelectDataChanged | "})
        << QString() << clearing();
    QTest::newRow("clearing, switched")
        << three << clearing()
        << lines({"updateViewObjectState 2 (1,0) 0 | 2:-1,-1 2:2,0 7:3,0", "setViewObjectListState 2 [(2,0)] 0 | 7:3,0",
                  "updateGeomrtryActorTransparency 1 | 7:3,0", "updateViewObjectState 2 (2,0) 0 | 7:3,0",
                  "refreshActionOnSelectDataChanged | 7:3,0", "updateInteraction | 7:3,0",
                  "updateMenuActionState | 7:3,0", "updateViewObjectState 7 (3,0) 0 | 7:-1,-1",
                  "updateGeomrtryActorTransparency 0 | ", "clearAllHighLight | ",
                  "refreshActionOnSelectDataChanged | "})
        << QString() << Script([](SelectedDataManager& store) { store.setSelectModelInMainWindow(SelectModel(7)); });
    QTest::newRow("clearing, the list read only")
        << three << clearing()
        << lines({"updateViewObjectState 2 (1,0) 0 | 2:-1,-1 2:2,0 7:3,0",
                  "updateViewObjectState 2 (2,0) 0 | 2:-1,-1 2:-1,-1 7:3,0",
                  "updateViewObjectState 7 (3,0) 0 | 2:-1,-1 2:-1,-1 7:-1,-1", "updateGeomrtryActorTransparency 0 | ",
                  "clearAllHighLight | ", "refreshActionOnSelectDataChanged | "})
        << QString() << Script([](SelectedDataManager& store) { QCOMPARE(store.getSelectedDataList().size(), 3); });
    QTest::newRow("clearing, added without a signal")
        << three << clearing()
        << lines({"updateViewObjectState 2 (1,0) 0 | 2:-1,-1 2:2,0 7:3,0",
                  "updateViewObjectState 2 (2,0) 0 | 2:-1,-1 7:3,0 2:1,0",
                  "updateViewObjectState 7 (3,0) 0 | 2:-1,-1 7:-1,-1 2:1,0"}) +
               lines({"updateGeomrtryActorTransparency 1", "clearAllHighLight", "refreshActionOnSelectDataChanged"},
                     "2:1,0")
        << QStringLiteral("2:1,0") << Script([](SelectedDataManager& store) { store.addSelectData(model2, 1, 0); });
    // What is cleared already matches nothing any more, not even a wildcard.
    const Script two = holding({{2, {1, 0}}, {7, {3, 0}}});
    const auto clearingTwo = [](const QStringList& inBetween, const char* rest, const char* end) {
        return lines({"updateViewObjectState 2 (1,0) 0 | 2:-1,-1 7:3,0"}) + inBetween + lines({rest}) +
               lines({"updateGeomrtryActorTransparency %1", "clearAllHighLight", "refreshActionOnSelectDataChanged"},
                     end)
                   .replaceInStrings(QStringLiteral("%1"), QString::number(*end == 0 ? 0 : 1));
    };
    QTest::newRow("clearing, a wildcard selected")
        << two << clearing()
        << clearingTwo(lines({"setViewObjectListState 2 [(-1,-1)] 1", "updateGeomrtryActorTransparency 2",
                              "updateViewObjectState 2 (-1,-1) 1", "refreshActionOnSelectDataChanged"},
                             "7:3,0 2:-1,-1"),
                       "updateViewObjectState 7 (3,0) 0 | 7:-1,-1 2:-1,-1", "2:-1,-1")
        << QStringLiteral("2:-1,-1") << Script([](SelectedDataManager& store) {
               store.addSelectedTargetList(model2, {{-1, -1}});
           });
    QTest::newRow("clearing, a wildcard removed") << two << clearing()
                                                  << clearingTwo(lines({"refreshActionOnSelectDataChanged"}, "7:3,0"),
                                                                 "updateViewObjectState 7 (3,0) 0 | 7:-1,-1", "")
                                                  << QString() << Script([](SelectedDataManager& store) {
                                                         store.removeSelectedTargetList(model2, {{-1, -1}});
                                                     });
    QTest::newRow("clearing, the identifier of a free record removed")
        << two << clearing()
        << clearingTwo(lines({"setViewObjectListState 2 [] 0"}, "7:3,0"), "updateViewObjectState 7 (3,0) 0 | 7:-1,-1",
                       "")
        << QString() << Script([](SelectedDataManager& store) { store.removeSelectedTargets(model2, {-1}); });
    QTest::newRow("clearing, the model deleted")
        << two << clearing() << clearingTwo({}, "updateViewObjectState 7 (3,0) 0 | 7:-1,-1", "") << QString()
        << Script([](SelectedDataManager& store) { store.deleteSelectedData(model2); });
    QTest::newRow("clearing, switched without other items")
        << two << clearing()
        << clearingTwo(lines({"updateInteraction", "updateMenuActionState"}, "7:3,0"),
                       "updateViewObjectState 7 (3,0) 0 | 7:-1,-1", "")
        << QString() << Script([](SelectedDataManager& store) { store.setSelectModelInMainWindow(SelectModel(7)); });
    QTest::newRow("clearing, a wildcard clicked")
        << Script([two](SelectedDataManager& store) {
               store.setSelectModelInMainWindow(model2);
               two(store);
           })
        << clearing()
        << clearingTwo(lines({"setViewObjectListState 2 [(-1,-1)] 1", "updateViewObjectState 2 (-1,-1) 1",
                              "refreshActionOnSelectDataChanged", "updateGeomrtryActorTransparency 2"},
                             "7:3,0 2:-1,-1"),
                       "updateViewObjectState 7 (3,0) 0 | 7:-1,-1 2:-1,-1", "2:-1,-1")
        << QStringLiteral("2:-1,-1") << Script([](SelectedDataManager& store) { store.clickViewObject(-1, -1); });
    // The model that a call back returns to is the one that the switch under way has stored before its first signal.
    const QStringList switchedInBetween = lines(
        {"setViewObjectListState 2 [(1,0)] 0", "updateGeomrtryActorTransparency 1", "updateViewObjectState 2 (1,0) 0"},
        "7:3,0");
    const Script enabling = [](SelectedDataManager& store) { store.setSwitchSelectModelEnable(true); };
    QTest::newRow("switching in the main window, enabled")
        << two << Script([](SelectedDataManager& store) { store.setSelectModelInMainWindow(SelectModel(7)); })
        << switchedInBetween + lines({"updateInteraction", "updateMenuActionState", "updateIsCanSwitchSelectModel",
                                      "refreshActionOnSelectDataChanged", "updateInteraction", "updateMenuActionState"},
                                     "7:3,0")
        << QStringLiteral("7:3,0") << enabling;
    QTest::newRow("switching in a dialog, enabled")
        << Script([two](SelectedDataManager& store) {
               store.setSelectModelInMainWindow(SelectModel(9));
               two(store);
           })
        << Script([](SelectedDataManager& store) { store.setSelectModelInDialog(SelectModel(7)); })
        << switchedInBetween +
               lines({"setViewObjectListState 7 [(3,0)] 0", "updateGeomrtryActorTransparency 0",
                      "updateViewObjectState 7 (3,0) 0", "refreshActionOnSelectDataChanged", "updateInteraction",
                      "updateMenuActionState", "updateIsCanSwitchSelectModel", "refreshActionOnSelectDataChanged",
                      "updateInteraction", "updateIsCanSwitchSelectModel", "updateMenuActionState"},
                     "")
        << QString() << enabling;
    QTest::newRow("switching, a later group deleted")
        << three << Script([](SelectedDataManager& store) { store.setSelectModelInMainWindow(SelectModel(9)); })
        << lines({"setViewObjectListState 2 [(1,0) (2,0)] 0 | 7:3,0", "updateGeomrtryActorTransparency 1 | 7:3,0",
                  "updateViewObjectState 2 (1,0) 0 | 7:3,0", "updateViewObjectState 2 (2,0) 0 | ",
                  "refreshActionOnSelectDataChanged | ", "refreshActionOnSelectDataChanged | ", "updateInteraction | ",
                  "updateMenuActionState | "})
        << QString() << Script([](SelectedDataManager& store) { store.deleteSelectedData(SelectModel(7)); });
    QTest::newRow("removing, selected again")
        << three << Script([](SelectedDataManager& store) {
               store.removeSelectedTargetList(model2, {{1, 0}, {2, 0}});
           })
        << lines({"setViewObjectListState 2 [(1,0) (2,0)] 0 | 7:3,0", "updateGeomrtryActorTransparency 1 | 7:3,0",
                  "updateViewObjectState 2 (1,0) 0 | 7:3,0", "setViewObjectListState 2 [(2,0)] 1 | 7:3,0 2:2,0",
                  "updateGeomrtryActorTransparency 2 | 7:3,0 2:2,0", "updateViewObjectState 2 (2,0) 1 | 7:3,0 2:2,0",
                  "refreshActionOnSelectDataChanged | 7:3,0 2:2,0", "updateViewObjectState 2 (2,0) 0 | 7:3,0 2:2,0",
                  "refreshActionOnSelectDataChanged | 7:3,0 2:2,0"})
        << QStringLiteral("7:3,0 2:2,0") << Script([](SelectedDataManager& store) {
               store.addSelectedTargetList(model2, {{2, 0}});
           });
}

void tst_SelectionReentrancy::callsBack()
{
    QFETCH(Script, before);
    QFETCH(Script, call);
    QFETCH(QStringList, signals_);
    QFETCH(QString, items);
    QFETCH(Script, answer);
    const OwnStore store;
    before(*store);
    SignalLog log([&store] { return itemsOf(*store); });
    QObject listener;
    bool isAnswered = false;
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_updateViewObjectState, &listener,
            [&](int, int first, int, bool isShow) {
                if (first == 1 && !isShow && !isAnswered) {
                    isAnswered = true;
                    answer(*store);
                }
            });
    call(*store);
    QVERIFY(isAnswered);
    QCOMPARE(log.take(), signals_);
    QCOMPARE(itemsOf(*store), items);
    const QList<DataModel::SelectedDataBase*> owned =
        store->getSelectedDataList() +
        QList<DataModel::SelectedDataBase*>(store->m_dataPool.begin(), store->m_dataPool.end());
    QCOMPARE(owned.size(), 20);
    QCOMPARE(QSet<DataModel::SelectedDataBase*>(owned.begin(), owned.end()).size(), 20);
}

/// The only free records are those that the clearing itself returns while they are still in the list.
void tst_SelectionReentrancy::clearingAnExhaustedPoolOwnsEachRecordOnce()
{
    const OwnStore store;
    for (int i = 0; i < 20; ++i) {
        store->addSelectData(model2, i, 0);
    }
    QVERIFY(store->m_dataPool.empty());
    QObject listener;
    int duplicates = 0;
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_updateViewObjectState, &listener,
            [&](int model, int first, int second, bool isShow) {
                if (model == 2 && !isShow) {
                    store->addSelectedTargetList(SelectModel(7), {{first, second}});
                    const auto list = store->getSelectedDataList();
                    duplicates += list.size() - QSet<DataModel::SelectedDataBase*>(list.begin(), list.end()).size();
                }
            });
    store->clearAllSelectedTarget();
    QCOMPARE(duplicates, 0);
    QCOMPARE(store->getSelectedDataBySelectedModel(SelectModel(7)).size(), 20);
    QCOMPARE(store->getDataCount() + int(store->m_dataPool.size()), 20);
}

/// A listener that selects an item again whenever it is deselected must not keep a clearing busy for ever.
void tst_SelectionReentrancy::aPinningListenerDoesNotKeepItBusy()
{
    const OwnStore store;
    holding({{2, {1, 0}}, {2, {2, 0}}, {2, {3, 0}}})(*store);
    QObject listener;
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_updateViewObjectState, &listener,
            [&](int model, int first, int second, bool isShow) {
                if (!isShow) {
                    store->addSelectedTargetList(SelectModel(model), {{first, second}});
                }
            });
    store->clearAllSelectedTarget();
    QCOMPARE(itemsOf(*store), QStringLiteral("2:1,0 2:2,0 2:3,0"));
}

void tst_SelectionReentrancy::clearingFromEachSignalStaysShallow_data()
{
    QTest::addColumn<bool>("isSelectingFirst");
    QTest::newRow("clears") << false;
    QTest::newRow("selects another object once, and clears") << true;
}

/// As deep as there are items would be too deep for any stack.
void tst_SelectionReentrancy::clearingFromEachSignalStaysShallow()
{
    QFETCH(bool, isSelectingFirst);
    const int count = 100000;
    const OwnStore store;
    for (int i = 0; i < count; ++i) {
        store->addSelectData(model2, i, 0);
    }
    QObject listener;
    int depth = 0;
    int deepest = 0;
    QList<int> told;
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_updateViewObjectState, &listener,
            [&](int, int first, int, bool isShow) {
                if (isShow) {
                    return;
                }
                told.append(first);
                deepest = std::max(deepest, ++depth);
                if (isSelectingFirst && first == 0) {
                    store->addSelectedTargetList(model2, {{count, 0}});
                }
                store->clearAllSelectedTarget();
                --depth;
            });
    store->clearAllSelectedTarget();
    QVERIFY2(deepest <= 2, QByteArray::number(deepest).constData());
    QList<int> expected;
    for (int i = 0; i < count + int(isSelectingFirst); ++i) {
        expected.append(i);
    }
    QVERIFY(told == expected);
    QCOMPARE(store->getDataCount(), 0);
    const auto& pool = store->m_dataPool;
    QCOMPARE(QSet<DataModel::SelectedDataBase*>(pool.begin(), pool.end()).size(), int(pool.size()));
}

/// The click then acts under the model that the check has left.
void tst_SelectionReentrancy::aCheckMaySwitchTheModel()
{
    const OwnStore store;
    store->setSelectModelInMainWindow(model2);
    holding({{2, {1, 0}}, {7, {3, 0}}})(*store);
    store->setHighLightCheckEnable(true);
    SignalLog log([&store] { return itemsOf(*store); });
    QObject view;
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_checkHighLight, &view,
            [&](bool&, int, int, int) { store->setSelectModelInMainWindow(SelectModel(7)); });
    store->clickViewObject(1, 0);
    QCOMPARE(log.take(), lines({"checkHighLight 1 2 (1,0) | 2:1,0 7:3,0"}) +
                             lines({"setViewObjectListState 2 [(1,0)] 0", "updateGeomrtryActorTransparency 1",
                                    "updateViewObjectState 2 (1,0) 0", "refreshActionOnSelectDataChanged",
                                    "updateInteraction", "updateMenuActionState"},
                                   "7:3,0") +
                             lines({"setViewObjectListState 7 [(1,0)] 1", "updateViewObjectState 7 (1,0) 1",
                                    "refreshActionOnSelectDataChanged", "updateGeomrtryActorTransparency 2"},
                                   "7:3,0 7:1,0"));
}

/// The list of the outer clearing is changed in the midst of the inner one.
void tst_SelectionReentrancy::clearsAnotherStoreMeanwhile()
{
    const OwnStore outer;
    const OwnStore inner;
    holding({{2, {1, 0}}, {2, {2, 0}}})(*outer);
    holding({{2, {5, 0}}})(*inner);
    QStringList states;
    QObject receiver;
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_updateViewObjectState, &receiver, [&] {
        states.append(itemsOf(*outer));
        if (states.size() == 1) {
            inner->clearAllSelectedTarget();
        } else if (states.size() == 2) {
            outer->addSelectData(SelectModel(2), 9, 9);
        }
    });
    outer->clearAllSelectedTarget();
    QCOMPARE(states, (QStringList{QStringLiteral("2:-1,-1 2:2,0"), QStringLiteral("2:-1,-1 2:2,0"),
                                  QStringLiteral("2:-1,-1 2:9,9")}));
    QCOMPARE(itemsOf(*outer), QStringLiteral("2:9,9"));
    QCOMPARE(inner->getDataCount(), 0);
}

QTEST_GUILESS_MAIN(tst_SelectionReentrancy)
#include "tst_selectionreentrancy.moc"
