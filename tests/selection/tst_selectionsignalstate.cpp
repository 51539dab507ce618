// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <selection/StoreCase.h>

#include <algorithm>

/// All that a listener can find behind each signal: the items, the models, the lock and the free records.
class tst_SelectionSignalState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheWholeStore_data();
    void showsTheWholeStore();
    void carriesTheListOfThatMoment_data();
    void carriesTheListOfThatMoment();
};

namespace {

const SelectModel model2 = SelectModel(2);

/// "items | current model/main window's model, open or locked, number of free records". A mark behind the number tells
/// of a free record that still has an identifier.
QString stateOf(const SelectedDataManager& store)
{
    const auto& pool = store.m_dataPool;
    const bool isClean = std::all_of(pool.begin(), pool.end(), [](const DataModel::SelectedDataBase* record) {
        return record->getFirstID() == -1 && record->getSecondID() == -1;
    });
    return QStringLiteral("%1 | %2/%3 %4 %5%6")
        .arg(itemsOf(store))
        .arg(int(store.getSelectModel()))
        .arg(int(store.m_mainWindowSelectModel))
        .arg(store.canSwitchSelectModel() ? QStringLiteral("open") : QStringLiteral("locked"))
        .arg(pool.size())
        .arg(isClean ? QString() : QStringLiteral("!"));
}

Script inMainWindow(int model)
{
    return [model](SelectedDataManager& store) { store.setSelectModelInMainWindow(SelectModel(model)); };
}

Script inDialog(int model)
{
    return [model](SelectedDataManager& store) { store.setSelectModelInDialog(SelectModel(model)); };
}

Script enabling(bool isEnable)
{
    return [isEnable](SelectedDataManager& store) { store.setSwitchSelectModelEnable(isEnable); };
}

Script clicking(int first, int second)
{
    return [first, second](SelectedDataManager& store) { store.clickViewObject(first, second); };
}

Script adding(const Pairs& pairs)
{
    return [pairs](SelectedDataManager& store) { store.addSelectedTargetList(model2, pairs); };
}

Script removing(const Pairs& pairs)
{
    return [pairs](SelectedDataManager& store) { store.removeSelectedTargetList(model2, pairs); };
}

Script removingTargets(const QList<int>& ids)
{
    return [ids](SelectedDataManager& store) { store.removeSelectedTargets(model2, ids); };
}

Script sequence(const QList<Script>& scripts)
{
    return [scripts](SelectedDataManager& store) {
        for (const Script& script : scripts) {
            script(store);
        }
    };
}

/// The signals that tell of one removed item.
QStringList removal(const char* model, const char* pair, int itemCount, const char* state)
{
    const QStringList texts = lines({"setViewObjectListState %1 [%2] 0", "updateGeomrtryActorTransparency %3",
                                     "updateViewObjectState %1 %2 0", "refreshActionOnSelectDataChanged"},
                                    state);
    QStringList filled;
    for (QString text : texts) {
        text.replace(QStringLiteral("%1"), QString::fromLatin1(model));
        text.replace(QStringLiteral("%2"), QString::fromLatin1(pair));
        filled.append(text.replace(QStringLiteral("%3"), QString::number(itemCount)));
    }
    return filled;
}

void refuse(bool& isAllowed)
{
    isAllowed = false;
}

/// Nine pairs take another way through the store than a few.
const Pairs nine{{0, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0}, {5, 0}, {6, 0}, {7, 0}, {8, 0}};

} // namespace

void tst_SelectionSignalState::showsTheWholeStore_data()
{
    QTest::addColumn<Script>("before");
    QTest::addColumn<Script>("call");
    QTest::addColumn<QStringList>("signals_");
    const Script two = holding({{2, {1, 0}}, {7, {5, 3}}});
    QTest::newRow("main window") << sequence({inMainWindow(2), two}) << inMainWindow(7)
                                 << removal("2", "(1,0)", 1, "7:5,3 | 7/7 open 19") +
                                        lines({"updateInteraction", "updateMenuActionState"}, "7:5,3 | 7/7 open 19");
    QTest::newRow("dialog") << sequence({inMainWindow(2), two}) << inDialog(7)
                            << removal("2", "(1,0)", 1, "7:5,3 | 7/2 open 19") +
                                   lines({"updateInteraction"}, "7:5,3 | 7/2 open 19") +
                                   lines({"updateIsCanSwitchSelectModel", "updateMenuActionState"},
                                         "7:5,3 | 7/2 locked 19");
    QTest::newRow("back from a dialog")
        << sequence({inMainWindow(2), inDialog(7), holding({{7, {5, 3}}})}) << enabling(true)
        << removal("7", "(5,3)", 0, " | 2/2 open 20") +
               lines({"updateInteraction", "updateMenuActionState", "updateIsCanSwitchSelectModel"}, " | 2/2 open 20");
    QTest::newRow("locked") << sequence({inMainWindow(2), two}) << enabling(false)
                            << lines({"updateMenuActionState", "updateIsCanSwitchSelectModel"},
                                     "2:1,0 7:5,3 | 2/2 locked 18");
    QTest::newRow("dialogs and main window in turn")
        << inMainWindow(1)
        << sequence({inDialog(3), inMainWindow(4), inDialog(7), inMainWindow(9), enabling(false), enabling(true),
                     inMainWindow(9)})
        << lines({"updateInteraction"}, " | 3/1 open 20") +
               lines({"updateIsCanSwitchSelectModel", "updateMenuActionState"}, " | 3/1 locked 20") +
               lines({"updateInteraction"}, " | 7/3 open 20") +
               lines({"updateIsCanSwitchSelectModel", "updateMenuActionState"}, " | 7/3 locked 20") +
               lines({"updateMenuActionState", "updateIsCanSwitchSelectModel"}, " | 7/3 locked 20") +
               lines({"updateInteraction", "updateMenuActionState", "updateIsCanSwitchSelectModel"}, " | 3/3 open 20") +
               lines({"updateInteraction", "updateMenuActionState"}, " | 9/9 open 20");
    QTest::newRow("negative models come first")
        << holding({{-1, {1, 0}}, {2, {2, 0}}, {-5, {3, 0}}}) << inMainWindow(7)
        << removal("-5", "(3,0)", 2, "-1:1,0 2:2,0 | 7/7 open 18") + removal("-1", "(1,0)", 1, "2:2,0 | 7/7 open 19") +
               removal("2", "(2,0)", 0, " | 7/7 open 20") +
               lines({"updateInteraction", "updateMenuActionState"}, " | 7/7 open 20");

    QTest::newRow("selecting click") << inMainWindow(2) << clicking(1, 0)
                                     << lines({"setViewObjectListState 2 [(1,0)] 1", "updateViewObjectState 2 (1,0) 1",
                                               "refreshActionOnSelectDataChanged", "updateGeomrtryActorTransparency 1"},
                                              "2:1,0 | 2/2 open 19");
    QTest::newRow("deselecting click") << sequence({inMainWindow(2), two}) << clicking(1, 0)
                                       << lines({"setViewObjectListState 2 [(1,0)] 0",
                                                 "updateViewObjectState 2 (1,0) 0", "updateGeomrtryActorTransparency 1",
                                                 "refreshActionOnSelectDataChanged"},
                                                "7:5,3 | 2/2 open 19");
    QTest::newRow("refused click")
        << sequence({inMainWindow(2), two, [](SelectedDataManager& store) { store.setHighLightCheckEnable(true); }})
        << clicking(1, 0)
        << lines({"checkHighLight 1 2 (1,0)", "updateGeomrtryActorTransparency 2"}, "2:1,0 7:5,3 | 2/2 open 18");

    QTest::newRow("added") << two << adding({{1, 0}, {3, 4}})
                           << lines({"setViewObjectListState 2 [(3,4)] 1", "updateGeomrtryActorTransparency 3",
                                     "updateViewObjectState 2 (3,4) 1", "refreshActionOnSelectDataChanged"},
                                    "2:1,0 7:5,3 2:3,4 | 0/0 open 17");
    QTest::newRow("removed") << two << removing({{3, 4}, {1, 0}}) << removal("2", "(1,0)", 1, "7:5,3 | 0/0 open 19");
    QTest::newRow("many removed") << sequence({holding({{7, {5, 3}}}), adding(nine)})
                                  << removing(Pairs{{5, 0}} + Pairs(nine).mid(0, 5) + nine)
                                  << lines({"setViewObjectListState 2 [(5,0) (0,0) (1,0) (2,0) (3,0) (4,0) (6,0) "
                                            "(7,0) (8,0)] 0",
                                            "updateGeomrtryActorTransparency 1", "updateViewObjectState 2 (5,0) 0",
                                            "updateViewObjectState 2 (0,0) 0", "updateViewObjectState 2 (1,0) 0",
                                            "updateViewObjectState 2 (2,0) 0", "updateViewObjectState 2 (3,0) 0",
                                            "updateViewObjectState 2 (4,0) 0", "updateViewObjectState 2 (6,0) 0",
                                            "updateViewObjectState 2 (7,0) 0", "updateViewObjectState 2 (8,0) 0",
                                            "refreshActionOnSelectDataChanged"},
                                           "7:5,3 | 0/0 open 19");
    QTest::newRow("removed by identifier")
        << sequence({two, adding({{1, 7}})}) << removingTargets({4, 1})
        << lines({"setViewObjectListState 2 [(1,0) (1,7)] 0"}, "7:5,3 | 0/0 open 19");
    QTest::newRow("many removed by identifier")
        << sequence({holding({{7, {5, 3}}}), adding(nine)}) << removingTargets({8, 7, 6, 5, 4, 3, 2, 1, 0})
        << lines({"setViewObjectListState 2 [(8,0) (7,0) (6,0) (5,0) (4,0) (3,0) (2,0) (1,0) (0,0)] 0"},
                 "7:5,3 | 0/0 open 19");
    QTest::newRow("cleared") << two << Script([](SelectedDataManager& store) { store.clearAllSelectedTarget(); })
                             << lines({"updateViewObjectState 2 (1,0) 0 | 2:-1,-1 7:5,3 | 0/0 open 19",
                                       "updateViewObjectState 7 (5,3) 0 | 2:-1,-1 7:-1,-1 | 0/0 open 20"}) +
                                    lines({"updateGeomrtryActorTransparency 0", "clearAllHighLight",
                                           "refreshActionOnSelectDataChanged"},
                                          " | 0/0 open 20");
}

void tst_SelectionSignalState::showsTheWholeStore()
{
    QFETCH(Script, before);
    QFETCH(Script, call);
    QFETCH(QStringList, signals_);
    const OwnStore store;
    before(*store);
    SignalLog log([&store] { return stateOf(*store); });
    QObject view;
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_checkHighLight, &view, refuse);
    call(*store);
    QCOMPARE(log.take(), signals_);
}

void tst_SelectionSignalState::carriesTheListOfThatMoment_data()
{
    QTest::addColumn<Script>("call");
    QTest::addColumn<QStringList>("signals_");
    QTest::newRow("adding") << adding({{1, 0}})
                            << lines({"setViewObjectListState 2 [(1,0)] 1 | 7:9,9 2:3,4 2:1,0"}) +
                                   lines({"updateGeomrtryActorTransparency 2", "updateViewObjectState 2 (1,0) 1",
                                          "refreshActionOnSelectDataChanged"},
                                         "2:3,4 2:1,0");
    QTest::newRow("removing") << removing({{3, 4}})
                              << lines({"setViewObjectListState 2 [(3,4)] 0 | 7:9,9"}) +
                                     lines({"updateGeomrtryActorTransparency 0", "updateViewObjectState 2 (3,4) 0",
                                            "refreshActionOnSelectDataChanged"},
                                           "");
    QTest::newRow("selecting by a click")
        << clicking(1, 0)
        << lines({"setViewObjectListState 2 [(1,0)] 1 | 7:9,9 2:3,4 2:1,0"}) +
               lines({"updateViewObjectState 2 (1,0) 1", "refreshActionOnSelectDataChanged",
                      "updateGeomrtryActorTransparency 2"},
                     "2:3,4 2:1,0");
    QTest::newRow("deselecting by a click")
        << clicking(3, 4)
        << lines({"setViewObjectListState 2 [(3,4)] 0 | 7:9,9"}) +
               lines({"updateViewObjectState 2 (3,4) 0", "updateGeomrtryActorTransparency 0",
                      "refreshActionOnSelectDataChanged"},
                     "");
}

/// An earlier listener has removed an item meanwhile.
void tst_SelectionSignalState::carriesTheListOfThatMoment()
{
    QFETCH(Script, call);
    QFETCH(QStringList, signals_);
    const OwnStore store;
    store->setSelectModelInMainWindow(model2);
    holding({{7, {9, 9}}, {2, {3, 4}}})(*store);
    SignalLog log([&store] { return itemsOf(*store); });
    QObject listener;
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_setViewObjectListState, &listener,
            [&store] { store->deleteSelectedData(SelectModel(7)); });
    call(*store);
    QCOMPARE(log.take(), signals_);
}

QTEST_GUILESS_MAIN(tst_SelectionSignalState)
#include "tst_selectionsignalstate.moc"
