// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <selection/StoreCase.h>

class tst_SelectModelSwitch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void switches_data();
    void switches() { runStoreCase(); }
    void clicks_data();
    void clicks() { runStoreCase(); }
    void checksBeforeAClick_data();
    void checksBeforeAClick();
    void remembersTheMainWindowsModel();
    void highlights_data();
    void highlights();
};

namespace {

Script inDialog(int model)
{
    return [model](SelectedDataManager& store) { store.setSelectModelInDialog(SelectModel(model)); };
}

Script inMainWindow(int model)
{
    return [model](SelectedDataManager& store) { store.setSelectModelInMainWindow(SelectModel(model)); };
}

Script enabling(bool isEnable)
{
    return [isEnable](SelectedDataManager& store) { store.setSwitchSelectModelEnable(isEnable); };
}

Script clicking(int first, int second)
{
    return [first, second](SelectedDataManager& store) { store.clickViewObject(first, second); };
}

Script sequence(const QList<Script>& scripts)
{
    return [scripts](SelectedDataManager& store) {
        for (const Script& script : scripts) {
            script(store);
        }
    };
}

} // namespace

void tst_SelectModelSwitch::switches_data()
{
    addStoreColumns();
    const Script two = holding({{2, {1, 0}}, {7, {5, 3}}});
    const Script many = holding({{7, {5, 3}}, {2, {1, 0}}, {9, {4, 4}}, {2, {0, 8}}, {0, {2, 2}}});
    QTest::newRow("main window, drops other models")
        << two << inMainWindow(7)
        << lines({"setViewObjectListState 2 [(1,0)] 0", "updateGeomrtryActorTransparency 1",
                  "updateViewObjectState 2 (1,0) 0", "refreshActionOnSelectDataChanged", "updateInteraction",
                  "updateMenuActionState"},
                 "7:5,3")
        << QStringLiteral("7:5,3");
    QTest::newRow("main window, the current model")
        << sequence({holding({{0, {1, 0}}})}) << inMainWindow(0)
        << lines({"updateInteraction", "updateMenuActionState"}, "0:1,0") << QStringLiteral("0:1,0");
    QTest::newRow("main window, groups in ascending order")
        << many << inMainWindow(9)
        << lines({"setViewObjectListState 0 [(2,2)] 0 | 7:5,3 2:1,0 9:4,4 2:0,8",
                  "updateGeomrtryActorTransparency 4 | 7:5,3 2:1,0 9:4,4 2:0,8",
                  "updateViewObjectState 0 (2,2) 0 | 7:5,3 2:1,0 9:4,4 2:0,8",
                  "refreshActionOnSelectDataChanged | 7:5,3 2:1,0 9:4,4 2:0,8",
                  "setViewObjectListState 2 [(1,0) (0,8)] 0 | 7:5,3 9:4,4",
                  "updateGeomrtryActorTransparency 2 | 7:5,3 9:4,4", "updateViewObjectState 2 (1,0) 0 | 7:5,3 9:4,4",
                  "updateViewObjectState 2 (0,8) 0 | 7:5,3 9:4,4", "refreshActionOnSelectDataChanged | 7:5,3 9:4,4",
                  "setViewObjectListState 7 [(5,3)] 0 | 9:4,4", "updateGeomrtryActorTransparency 1 | 9:4,4",
                  "updateViewObjectState 7 (5,3) 0 | 9:4,4", "refreshActionOnSelectDataChanged | 9:4,4",
                  "updateInteraction | 9:4,4", "updateMenuActionState | 9:4,4"})
        << QStringLiteral("9:4,4");
    QTest::newRow("main window while a dialog is open") << sequence({holding({{3, {1, 0}}}), inDialog(3)})
                                                        << inMainWindow(4) << QStringList() << QStringLiteral("3:1,0");
    QTest::newRow("dialog") << two << inDialog(2)
                            << lines({"setViewObjectListState 7 [(5,3)] 0", "updateGeomrtryActorTransparency 1",
                                      "updateViewObjectState 7 (5,3) 0", "refreshActionOnSelectDataChanged",
                                      "updateInteraction", "updateIsCanSwitchSelectModel", "updateMenuActionState"},
                                     "2:1,0")
                            << QStringLiteral("2:1,0");
    QTest::newRow("a second dialog over the first")
        << inDialog(2) << inDialog(3)
        << lines({"updateInteraction", "updateIsCanSwitchSelectModel", "updateMenuActionState"}, "") << QString();
    QTest::newRow("back to the main window")
        << sequence({inMainWindow(1), inDialog(7), holding({{7, {5, 3}}, {1, {6, 6}}})}) << enabling(true)
        << lines({"setViewObjectListState 7 [(5,3)] 0", "updateGeomrtryActorTransparency 1",
                  "updateViewObjectState 7 (5,3) 0", "refreshActionOnSelectDataChanged", "updateInteraction",
                  "updateMenuActionState", "updateIsCanSwitchSelectModel"},
                 "1:6,6")
        << QStringLiteral("1:6,6");
    QTest::newRow("locked without a dialog")
        << two << enabling(false) << lines({"updateMenuActionState", "updateIsCanSwitchSelectModel"}, "2:1,0 7:5,3")
        << QStringLiteral("2:1,0 7:5,3");
}

void tst_SelectModelSwitch::clicks_data()
{
    addStoreColumns();
    const Script selecting2 = inMainWindow(2);
    QTest::newRow("selects") << selecting2 << clicking(1, 0)
                             << lines({"setViewObjectListState 2 [(1,0)] 1", "updateViewObjectState 2 (1,0) 1",
                                       "refreshActionOnSelectDataChanged", "updateGeomrtryActorTransparency 1"},
                                      "2:1,0")
                             << QStringLiteral("2:1,0");
    QTest::newRow("deselects") << sequence({selecting2, clicking(1, 0), clicking(3, 4)}) << clicking(1, 0)
                               << lines({"setViewObjectListState 2 [(1,0)] 0", "updateViewObjectState 2 (1,0) 0",
                                         "updateGeomrtryActorTransparency 1", "refreshActionOnSelectDataChanged"},
                                        "2:3,4")
                               << QStringLiteral("2:3,4");
    QTest::newRow("selects beside another model's item")
        << sequence({selecting2, holding({{7, {1, 0}}})}) << clicking(1, 0)
        << lines({"setViewObjectListState 2 [(1,0)] 1", "updateViewObjectState 2 (1,0) 1",
                  "refreshActionOnSelectDataChanged", "updateGeomrtryActorTransparency 2"},
                 "7:1,0 2:1,0")
        << QStringLiteral("7:1,0 2:1,0");
    QTest::newRow("deselects the first match of a wildcard")
        << sequence({selecting2, clicking(8, 1), clicking(3, 4), clicking(3, 5)}) << clicking(3, -1)
        << lines({"setViewObjectListState 2 [(3,-1)] 0", "updateViewObjectState 2 (3,-1) 0",
                  "updateGeomrtryActorTransparency 2", "refreshActionOnSelectDataChanged"},
                 "2:8,1 2:3,5")
        << QStringLiteral("2:8,1 2:3,5");
    QTest::newRow("selects a wildcard that matches nothing")
        << selecting2 << clicking(-1, -1)
        << lines({"setViewObjectListState 2 [(-1,-1)] 1", "updateViewObjectState 2 (-1,-1) 1",
                  "refreshActionOnSelectDataChanged", "updateGeomrtryActorTransparency 1"},
                 "2:-1,-1")
        << QStringLiteral("2:-1,-1");
}

void tst_SelectModelSwitch::checksBeforeAClick_data()
{
    QTest::addColumn<bool>("isAllowed");
    QTest::addColumn<QStringList>("signals_");
    QTest::newRow("refused") << false << lines({"checkHighLight 1 5 (1,-2)", "updateGeomrtryActorTransparency 0"});
    QTest::newRow("allowed") << true
                             << lines({"checkHighLight 1 5 (1,-2)", "setViewObjectListState 5 [(1,-2)] 1",
                                       "updateViewObjectState 5 (1,-2) 1", "refreshActionOnSelectDataChanged",
                                       "updateGeomrtryActorTransparency 1"});
}

void tst_SelectModelSwitch::checksBeforeAClick()
{
    QFETCH(bool, isAllowed);
    QFETCH(QStringList, signals_);
    const OwnStore store;
    store->setSelectModelInMainWindow(SelectModel(5));
    SignalLog log;
    QObject view;
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_checkHighLight, &view,
            [isAllowed](bool& answer, int, int, int) { answer = isAllowed; });
    store->setHighLightCheckEnable(true);
    QCOMPARE(log.take(), QStringList());
    store->clickViewObject(1, -2);
    QCOMPARE(log.take(), signals_);
    QCOMPARE(store->getDataCount(), isAllowed ? 1 : 0);
    store->setHighLightCheckEnable(false);
    store->clearAllSelectedTarget();
    log.take();
    store->clickViewObject(1, -2);
    QVERIFY(!log.take().contains(QStringLiteral("checkHighLight 1 5 (1,-2)")));
    QCOMPARE(store->getDataCount(), 1);
}

void tst_SelectModelSwitch::remembersTheMainWindowsModel()
{
    const OwnStore store;
    store->setSelectModelInMainWindow(SelectModel(1));
    store->setSelectModelInDialog(SelectModel(3));
    QVERIFY(!store->canSwitchSelectModel());
    QCOMPARE(store->getSelectModel(), SelectModel(3));
    store->setSelectModelInMainWindow(SelectModel(4));
    QCOMPARE(store->getSelectModel(), SelectModel(3));
    store->setSwitchSelectModelEnable(true);
    QVERIFY(store->canSwitchSelectModel());
    SelectModel model = SelectModel(9);
    store->getSelectModel(model);
    QCOMPARE(model, SelectModel(1));

    store->setSelectModelInDialog(SelectModel(7));
    store->setSelectModelInDialog(SelectModel(8));
    store->setSwitchSelectModelEnable(true);
    QCOMPARE(store->getSelectModel(), SelectModel(7));

    store->setSwitchSelectModelEnable(false);
    QVERIFY(!store->canSwitchSelectModel());
    QCOMPARE(store->getSelectModel(), SelectModel(7));

    // A listener to the switch of a dialog still finds it enabled.
    QList<bool> seen;
    QObject receiver;
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_updateInteraction, &receiver,
            [&] { seen.append(store->canSwitchSelectModel()); });
    store->setSelectModelInDialog(SelectModel(2));
    QCOMPARE(seen, QList<bool>{true});
    QVERIFY(!store->canSwitchSelectModel());
}

void tst_SelectModelSwitch::highlights_data()
{
    QTest::addColumn<int>("model");
    QTest::addColumn<bool>("isGeometry");
    QTest::addColumn<bool>("isMesh");
    QTest::addColumn<bool>("isMeshGroup");
    for (int model = 0; model <= 5; ++model) {
        QTest::addRow("geometry model %d", model) << model << true << false << false;
    }
    for (const int model : {-1, 6, 8, 11}) {
        QTest::addRow("neither, model %d", model) << model << false << false << false;
    }
    QTest::newRow("mesh model 7") << 7 << false << true << false;
    QTest::newRow("mesh model 9") << 9 << false << true << false;
    QTest::newRow("mesh group model") << 10 << false << true << true;
}

void tst_SelectModelSwitch::highlights()
{
    QFETCH(int, model);
    QFETCH(bool, isGeometry);
    QFETCH(bool, isMesh);
    QFETCH(bool, isMeshGroup);
    const OwnStore store;
    holding({{6, {5, 5}}, {model, {3, 4}}})(*store);
    QCOMPARE(store->getGeometryIsHighLight(3), isGeometry);
    QCOMPARE(store->getMeshIsHighLight(3), isMesh);
    QCOMPARE(store->getMeshGroupIsHighLight(3), isMeshGroup);
    // The second identifier is no match, and neither is a wildcard.
    for (const int id : {4, 5, -1}) {
        QVERIFY(!store->getGeometryIsHighLight(id));
        QVERIFY(!store->getMeshIsHighLight(id));
        QVERIFY(!store->getMeshGroupIsHighLight(id));
    }
}

QTEST_GUILESS_MAIN(tst_SelectModelSwitch)
#include "tst_selectmodelswitch.moc"
