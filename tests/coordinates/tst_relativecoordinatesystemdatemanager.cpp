// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/coordinates/RelativeCoordinateSystemDateManager.h>

#include <QMetaProperty>
#include <QTest>

#include <memory>

using DataManager::RelativeCoordinateSystemDateManager;

namespace {

struct Property
{
    const char* name;
    const char* type;
};

const QVector<Property> properties = {{"m_IDList", "QList<int>"},
                                      {"m_basicCoorSysIDList", "QList<int>"},
                                      {"m_nameList", "QList<QString>"},
                                      {"m_typeList", "QList<QString>"},
                                      {"m_offsetCoordinateList", "QList<QString>"},
                                      {"m_rotateDirectionList", "QList<QString>"},
                                      {"m_actorRoateDirList", "QList<QString>"}};

/// Different for each property.
QVariant sampleValue(int property)
{
    if (property < 2) {
        return QVariant::fromValue(QList<int>{property, -7});
    }
    return QVariant::fromValue(QList<QString>{QString::number(property), QString()});
}

} // namespace

class RelativeCoordinateSystemDateManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isCreatedThroughItsMetaObject()
    {
        const QMetaObject& meta = RelativeCoordinateSystemDateManager::staticMetaObject;
        const std::unique_ptr<QObject> record(meta.newInstance());
        QVERIFY(qobject_cast<RelativeCoordinateSystemDateManager*>(record.get()) != nullptr);
        QCOMPARE(meta.methodCount(), QObject::staticMetaObject.methodCount());
    }

    void hasSevenPropertiesInOrder()
    {
        const QMetaObject& meta = RelativeCoordinateSystemDateManager::staticMetaObject;
        QCOMPARE(meta.propertyCount() - meta.propertyOffset(), properties.size());
        for (int i = 0; i < properties.size(); ++i) {
            const QMetaProperty property = meta.property(meta.propertyOffset() + i);
            QCOMPARE(QByteArray(property.name()), QByteArray(properties.at(i).name));
            QCOMPARE(QByteArray(property.typeName()), QByteArray(properties.at(i).type));
            QVERIFY(property.isReadable() && property.isWritable());
        }
    }

    void keepsEachPropertyApart()
    {
        RelativeCoordinateSystemDateManager record;
        for (int i = 0; i < properties.size(); ++i) {
            QVERIFY(record.setProperty(properties.at(i).name, sampleValue(i)));
        }
        QCOMPARE(record.getIDList(), (QList<int>{0, -7}));
        QCOMPARE(record.getBasicCoorSysIDList(), (QList<int>{1, -7}));
        const QList<QList<QString>> texts = {record.getNameList(), record.getTypeList(),
                                             record.getOffsetCoordinateList(), record.getRotateDirectionList(),
                                             record.getActorRoateDirList()};
        for (int i = 0; i < texts.size(); ++i) {
            QCOMPARE(texts.at(i), sampleValue(i + 2).value<QList<QString>>());
        }
    }

    void replacesWholeLists()
    {
        RelativeCoordinateSystemDateManager record;
        record.setIDList({1, 2});
        record.setIDList({3});
        QCOMPARE(record.getIDList(), QList<int>{3});
        record.setTypeList({QStringLiteral("a")});
        record.setTypeList({});
        QCOMPARE(record.getTypeList(), QList<QString>());
    }

    void clearsAllButTheBasicIDs()
    {
        RelativeCoordinateSystemDateManager record;
        for (int i = 0; i < properties.size(); ++i) {
            record.setProperty(properties.at(i).name, sampleValue(i));
        }
        record.clear();
        QCOMPARE(record.getBasicCoorSysIDList(), (QList<int>{1, -7}));
        QCOMPARE(record.getIDList(), QList<int>());
        const QList<QList<QString>> texts = {record.getNameList(), record.getTypeList(),
                                             record.getOffsetCoordinateList(), record.getRotateDirectionList(),
                                             record.getActorRoateDirList()};
        for (const QList<QString>& list : texts) {
            QCOMPARE(list, QList<QString>());
        }
    }
};

QTEST_APPLESS_MAIN(RelativeCoordinateSystemDateManagerTest)
#include "tst_relativecoordinatesystemdatemanager.moc"
