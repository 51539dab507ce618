// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/CoordinateSystemType.h>
#include <basemodule/IBaseSignal.h>
#include <basemodule/InteractionMode.h>
#include <basemodule/MaterialLibType.h>
#include <basemodule/SelectModel.h>
#include <datamodel/SelectedDataBase.h>

#include <QMetaMethod>
#include <QtTest>

#include <type_traits>

class tst_IBaseSignal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isOneObject();
    void declaresEverySignal();
    void deliversSynchronouslyAndByReference();
    void enumerationsHoldUnknownValues();
    void enumerationNumbers();
};

void tst_IBaseSignal::isOneObject()
{
    QVERIFY(BaseModule::IBaseSignal::getInstance() != nullptr);
    QCOMPARE(BaseModule::IBaseSignal::getInstance(), BaseModule::IBaseSignal::getInstance());
}

void tst_IBaseSignal::declaresEverySignal()
{
    const QMetaObject& meta = BaseModule::IBaseSignal::staticMetaObject;
    QByteArrayList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal) {
            signatures.append(meta.method(i).methodSignature());
        }
    }
    const QByteArrayList expected{"signal_updateInteraction()",
                                  "signal_updateMenuActionState()",
                                  "signal_refreshActionOnInteractionChanged()",
                                  "signal_refreshActionOnSelectDataChanged()",
                                  "signal_updateIsCanSwitchSelectModel()",
                                  "signal_updateGeomrtryActorTransparency(QList<DataModel::SelectedDataBase*>)",
                                  "signal_updateViewObjectState(int,int,int,bool)",
                                  "signal_setViewObjectListState(int,QList<QPair<int,int> >,bool)",
                                  "signal_checkHighLight(bool&,int,int,int)",
                                  "signal_clearAllHighLight()",
                                  "signal_updateWindowTitle()",
                                  "signal_delMatUpdateGeometryData(int)",
                                  "signal_showMessageType(int,QString)"};
    QCOMPARE(signatures, expected);
}

void tst_IBaseSignal::deliversSynchronouslyAndByReference()
{
    auto* const hub = BaseModule::IBaseSignal::getInstance();
    DataModel::SelectedDataBase record;
    QCOMPARE(int(record.getSelectModel()), 0);
    QList<DataModel::SelectedDataBase*> received;
    QObject receiver;
    connect(hub, &BaseModule::IBaseSignal::signal_updateGeomrtryActorTransparency, &receiver,
            [&received](const QList<DataModel::SelectedDataBase*>& list) { received = list; });
    connect(hub, &BaseModule::IBaseSignal::signal_checkHighLight, &receiver,
            [](bool& isAllowed, int model, int first, int second) { isAllowed = model + first + second != 6; });
    hub->signal_updateGeomrtryActorTransparency({&record});
    QCOMPARE(received, QList<DataModel::SelectedDataBase*>{&record});
    bool isAllowed = true;
    hub->signal_checkHighLight(isAllowed, 1, 2, 3);
    QVERIFY(!isAllowed);
}

void tst_IBaseSignal::enumerationsHoldUnknownValues()
{
    QVERIFY((std::is_same<std::underlying_type<BaseModule::SelectModel>::type, int>::value));
    QVERIFY((std::is_same<std::underlying_type<BaseModule::InteractionMode>::type, int>::value));
    QVERIFY((std::is_same<std::underlying_type<BaseModule::MaterialLibType>::type, int>::value));
    QVERIFY((std::is_same<std::underlying_type<BaseModule::CoordinateSystemType>::type, int>::value));
    QCOMPARE(int(BaseModule::SelectModel(-1)), -1);
}

void tst_IBaseSignal::enumerationNumbers()
{
    QCOMPARE(int(BaseModule::Undefine), 0);
    QCOMPARE(int(BaseModule::Select), 1);
    QCOMPARE(int(BaseModule::Rotate), 2);
    QCOMPARE(int(BaseModule::Translate), 3);
    QCOMPARE(int(BaseModule::MouseDraw), 4);
    QCOMPARE(int(BaseModule::SoftwareLib), 0);
    QCOMPARE(int(BaseModule::ProjectLib), 1);
}

QTEST_GUILESS_MAIN(tst_IBaseSignal)
#include "tst_ibasesignal.moc"
