// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/frame/GeometryData.h>

#include <QMetaMethod>
#include <QtTest>

#include <type_traits>

using DataManager::GeometryData;

class tst_GeometryData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isOneObjectWithoutParent();
    void holdsNoData();
};

void tst_GeometryData::isOneObjectWithoutParent()
{
    QVERIFY(GeometryData::m_instance == nullptr);
    GeometryData* const first = GeometryData::getinstance();
    QVERIFY(first != nullptr);
    QCOMPARE(GeometryData::getinstance(), first);
    QCOMPARE(GeometryData::m_instance, first);
    QVERIFY(first->parent() == nullptr);
}

void tst_GeometryData::holdsNoData()
{
    QCOMPARE(sizeof(GeometryData), sizeof(QObject));
    QCOMPARE(GeometryData::staticMetaObject.superClass(), &QObject::staticMetaObject);
    QCOMPARE(GeometryData::staticMetaObject.methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(GeometryData::staticMetaObject.className(), "DataManager::GeometryData");
    QVERIFY(std::has_virtual_destructor<GeometryData>::value);
}

QTEST_GUILESS_MAIN(tst_GeometryData)
#include "tst_geometrydata.moc"
