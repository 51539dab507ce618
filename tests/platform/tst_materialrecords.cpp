// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamodel/ExampleLibData.h>
#include <datamodel/MaterialDataArray.h>

#include <basemodule/DeserializerBase.h>
#include <basemodule/SerializerBase.h>

#include <QMetaProperty>
#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(const QMetaObject*)

using namespace DataModel;

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

template <class Record>
QStringList propertyNames()
{
    const QMetaObject& meta = Record::staticMetaObject;
    QStringList names;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        names.append(text(meta.property(i).name()));
    }
    return names;
}

QSharedPointer<MaterialPropertyData> newProperty(const char* label)
{
    auto record = QSharedPointer<MaterialPropertyData>::create();
    record->label = text(label);
    return record;
}

} // namespace

class TestMaterialRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nameTheirMembers_data();
    void nameTheirMembers();
    void areCreatedThroughTheirMetaObjects_data();
    void areCreatedThroughTheirMetaObjects();
    void startWithDefaults();
    void takeEveryArgument();
    void updateEverythingButTheMark();
    void nestInJson();
};

void TestMaterialRecords::nameTheirMembers_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("expected");
    QTest::newRow("property") << propertyNames<MaterialPropertyData>() << text("label kind components remark flag");
    QTest::newRow("material") << propertyNames<MaterialData>()
                              << text("chineseName englishName id property1 property2 property3 property4 property5 "
                                      "isDeleted");
    QTest::newRow("materials") << propertyNames<MaterialDataArray>() << text("materialList");
    QTest::newRow("example") << propertyNames<ExampleData>()
                             << text("chineseTitle englishTitle chineseDescription englishDescription chineseCategory "
                                     "englishCategory chineseProjectPath englishProjectPath chinesePicturePath "
                                     "englishPicturePath");
    QTest::newRow("examples") << propertyNames<ExampleLibData>() << text("exampleList");
}

void TestMaterialRecords::nameTheirMembers()
{
    QFETCH(QStringList, names);
    QFETCH(QString, expected);
    QCOMPARE(names.join(QLatin1Char(' ')), expected);
}

void TestMaterialRecords::areCreatedThroughTheirMetaObjects_data()
{
    QTest::addColumn<const QMetaObject*>("meta");
    for (const QMetaObject* meta :
         {&MaterialPropertyData::staticMetaObject, &MaterialData::staticMetaObject,
          &MaterialDataArray::staticMetaObject, &ExampleData::staticMetaObject, &ExampleLibData::staticMetaObject}) {
        QTest::newRow(meta->className()) << meta;
    }
}

void TestMaterialRecords::areCreatedThroughTheirMetaObjects()
{
    QFETCH(const QMetaObject*, meta);
    const std::unique_ptr<QObject> record(meta->newInstance());
    QVERIFY(record != nullptr);
    QCOMPARE(record->metaObject(), meta);
    QVERIFY(record->parent() == nullptr);
}

void TestMaterialRecords::startWithDefaults()
{
    const MaterialPropertyData propertyData;
    QCOMPARE(propertyData.label, QString());
    QCOMPARE(propertyData.kind, 0);
    QVERIFY(propertyData.components.isEmpty());
    QCOMPARE(propertyData.remark, QString());
    QCOMPARE(propertyData.flag, false);
    const MaterialData material;
    QCOMPARE(material.chineseName, QString());
    QCOMPARE(material.englishName, QString());
    QCOMPARE(material.id, 0);
    QVERIFY(material.property1.isNull());
    QVERIFY(material.property5.isNull());
    QCOMPARE(material.isDeleted, false);
    QVERIFY(MaterialDataArray().materialList.isEmpty());
    QVERIFY(ExampleLibData().exampleList.isEmpty());
}

void TestMaterialRecords::takeEveryArgument()
{
    const auto p1 = newProperty("1");
    const auto p2 = newProperty("2");
    const auto p3 = newProperty("3");
    const auto p4 = newProperty("4");
    const auto p5 = newProperty("5");
    const MaterialData material(7, text("铜"), text("copper"), p1, p2, p3, p4, p5);
    QCOMPARE(material.id, 7);
    QCOMPARE(material.chineseName, text("铜"));
    QCOMPARE(material.englishName, text("copper"));
    QCOMPARE(material.property1, p1);
    QCOMPARE(material.property2, p2);
    QCOMPARE(material.property3, p3);
    QCOMPARE(material.property4, p4);
    QCOMPARE(material.property5, p5);
    QCOMPARE(material.isDeleted, false);
}

void TestMaterialRecords::updateEverythingButTheMark()
{
    const auto p = newProperty("p");
    MaterialData material(7, text("铜"), text("copper"), p, p, p, p, p);
    material.isDeleted = true;
    const auto q = newProperty("q");
    material.update(8, text("铁"), text("iron"), {}, q, {}, {}, q);
    QCOMPARE(material.id, 8);
    QCOMPARE(material.chineseName, text("铁"));
    QCOMPARE(material.englishName, text("iron"));
    QVERIFY(material.property1.isNull());
    QCOMPARE(material.property2, q);
    QVERIFY(material.property3.isNull());
    QVERIFY(material.property4.isNull());
    QCOMPARE(material.property5, q);
    QCOMPARE(material.isDeleted, true);
}

void TestMaterialRecords::nestInJson()
{
    using QJsonHelper::DeserializerBase;
    using QJsonHelper::SerializerBase;
    const auto p = newProperty("p");
    p->kind = -3;
    p->components = {1, 2.5};
    p->remark = text("r");
    p->flag = true;
    MaterialDataArray library;
    library.materialList = {
        {}, QSharedPointer<MaterialData>::create(5, text("铜"), text("copper"), nullptr, p, nullptr, nullptr, nullptr)};
    const QByteArray json = SerializerBase::serialize(&library, MaterialDataArray::staticMetaObject, false);
    MaterialDataArray read;
    QVERIFY(DeserializerBase::deserialize(json, &read, &MaterialDataArray::staticMetaObject));
    QCOMPARE(read.materialList.size(), 2);
    QVERIFY(read.materialList.at(0).isNull());
    const MaterialData& material = *read.materialList.at(1);
    QCOMPARE(material.id, 5);
    QCOMPARE(material.chineseName, text("铜"));
    QVERIFY(material.property1.isNull());
    QCOMPARE(material.property2->label, text("p"));
    QCOMPARE(material.property2->kind, -3);
    QCOMPARE(material.property2->components, (QList<double>{1, 2.5}));
    QCOMPARE(material.property2->remark, text("r"));
    QCOMPARE(material.property2->flag, true);
}

QTEST_GUILESS_MAIN(TestMaterialRecords)
#include "tst_materialrecords.moc"
