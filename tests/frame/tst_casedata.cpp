// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/frame/CaseData.h>

#include <QMetaMethod>
#include <QtTest>

#include <type_traits>

using DataManager::CaseData;

class tst_CaseData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isOneObjectWithoutParent();
    void holdsNoData();
};

void tst_CaseData::isOneObjectWithoutParent()
{
    QVERIFY(CaseData::m_instance == nullptr);
    CaseData* const first = CaseData::getinstance();
    QVERIFY(first != nullptr);
    QCOMPARE(CaseData::getinstance(), first);
    QCOMPARE(CaseData::m_instance, first);
    QVERIFY(first->parent() == nullptr);
}

void tst_CaseData::holdsNoData()
{
    QCOMPARE(sizeof(CaseData), sizeof(QObject));
    QCOMPARE(CaseData::staticMetaObject.superClass(), &QObject::staticMetaObject);
    QCOMPARE(CaseData::staticMetaObject.methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(CaseData::staticMetaObject.className(), "DataManager::CaseData");
    QVERIFY(std::has_virtual_destructor<CaseData>::value);
}

QTEST_GUILESS_MAIN(tst_CaseData)
#include "tst_casedata.moc"
