// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/GlobalConfig.h>
#include <basemodule/GlobalHelper.h>
#include <configoption/TextCipher.h>
#include <datamanager/material/ExampleLibraryManager.h>
#include <datamanager/material/MaterialLibraryManager.h>
#include <datamodel/ExampleLibData.h>
#include <datamodel/MaterialData.h>

#include <support/JsonSchema.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

#include <limits>

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QSharedPointer<DataModel::MaterialPropertyData> propertyOf(const QList<double>& components)
{
    const auto record = QSharedPointer<DataModel::MaterialPropertyData>::create();
    record->label = text("标签 \"label\"");
    record->kind = std::numeric_limits<int>::min();
    record->components = components;
    record->remark = text("unit, source");
    record->flag = true;
    return record;
}

QJsonObject example()
{
    return QJsonDocument::fromJson(read(text(DATAMANAGER_SOURCE_DIR "/samples/libraries/MaterialLibrary.json")))
        .object();
}

/// The library with one member of one object replaced, or removed when there is no value.
QJsonObject changed(const char* member, const QJsonValue& value)
{
    QJsonObject library = example();
    QJsonArray list = library.value(text("materialList")).toArray();
    QJsonObject material = list.at(0).toObject();
    QJsonObject record = material.value(text("property1")).toObject();
    QJsonObject& target = text(member).startsWith(text("property1.")) ? record : material;
    const QString name = text(member).section(QLatin1Char('.'), -1);
    if (value.isUndefined()) {
        target.remove(name);
    } else {
        target.insert(name, value);
    }
    material.insert(text("property1"), name == text("property1") ? value : QJsonValue(record));
    list.replace(0, material);
    library.insert(text("materialList"), list);
    return library;
}

} // namespace

/// The schemas of the material and example libraries, against files that the library wrote.
class TestSchemas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fitsWrittenMaterialLibraries_data();
    void fitsWrittenMaterialLibraries();
    void fitsTheDefaultLibraries();
    void fitsWrittenExamples();
    void fitsTheExamplesOfThePage();
    void refusesOtherFiles_data();
    void refusesOtherFiles();
};

void TestSchemas::fitsWrittenMaterialLibraries_data()
{
    QTest::addColumn<bool>("isPlain");
    QTest::newRow("plain") << true;
    QTest::newRow("enciphered") << false;
}

void TestSchemas::fitsWrittenMaterialLibraries()
{
    QFETCH(bool, isPlain);
    const QTemporaryDir project;
    GlobalConfig::setIsDevelop(isPlain);
    BaseModule::GlobalHelper::setProjectTempIODir(project.path());
    static DataManager::MaterialLibraryManager* manager = [] {
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(text("^Read software material library file fail")));
        return DataManager::MaterialLibraryManager::getInstance();
    }();
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(text("^Read project material library file fail")));
    manager->initProjectMaterial();
    using Limits = std::numeric_limits<double>;
    const double odd = -Limits::quiet_NaN();
    manager->createProjectMat(text("铜"), text("Copper"), propertyOf({1, 0, -0.0, 1e-300, 5e-324, 1.7e308, 3, 4, 5}),
                              {}, propertyOf({}), {}, {});
    manager->createProjectMat({}, QString(1, QChar()), {},
                              propertyOf({Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(), odd}), {}, {},
                              {});
    manager->createProjectMat(text("三"), text("three"), {}, {}, {}, {}, {});
    manager->deleteProjectMat(1);

    QByteArray json = read(project.filePath(text("MaterialLibrary.json")));
    if (!isPlain) {
        json = ConfigOption::TextCipher::getInstance()->decryptData_CBC(QString::fromUtf8(json)).toUtf8();
    }
    const QJsonObject library = QJsonDocument::fromJson(json).object();
    QCOMPARE(library.value(text("materialList")).toArray().size(), 3);
    QCOMPARE(JsonSchema(text("MaterialLibrary")).problem(library), QString());
    GlobalConfig::setIsDevelop(false);
}

void TestSchemas::fitsTheDefaultLibraries()
{
    QCOMPARE(example().value(text("materialList")).toArray().size(), 47);
    QCOMPARE(JsonSchema(text("MaterialLibrary")).problem(example()), QString());
    const QByteArray examples = read(text(DATAMANAGER_SOURCE_DIR "/samples/libraries/ExampleLibrary.json"));
    QVERIFY(!examples.isEmpty());
    QCOMPARE(JsonSchema(text("ExampleLibrary")).problem(QJsonDocument::fromJson(examples).object()), QString());
}

void TestSchemas::fitsWrittenExamples()
{
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(text("^read Example file fail")));
    auto* const manager = DataManager::ExampleLibraryManager::getInstance();
    const auto record = QSharedPointer<DataModel::ExampleData>::create();
    record->chineseTitle = text("平板");
    record->englishProjectPath = text("../samples/plate \"1\".msh");
    manager->getExampleLibData()->exampleList = {record, {}};
    manager->saveData();
    const QString path = QCoreApplication::applicationDirPath() + text("/ConfigFiles/ExampleLibrary.json");
    const QJsonObject library = QJsonDocument::fromJson(read(path)).object();
    QVERIFY(QFile::remove(path));
    QCOMPARE(library.value(text("exampleList")).toArray().size(), 2);
    QCOMPARE(JsonSchema(text("ExampleLibrary")).problem(library), QString());
}

void TestSchemas::fitsTheExamplesOfThePage()
{
    static const QRegularExpression fenced(text("```json\\n(.*?)```"), QRegularExpression::DotMatchesEverythingOption);
    const QString page = QString::fromUtf8(read(text(DATAMANAGER_SOURCE_DIR "/docs/file-formats.md")));
    const QMap<QString, QString> schemaOfMember = {{text("m_IDList"), text("RelativeCoordinateSystemDate")},
                                                   {text("materialList"), text("MaterialLibrary")},
                                                   {text("exampleList"), text("ExampleLibrary")}};
    QStringList shown;
    QRegularExpressionMatchIterator matches = fenced.globalMatch(page);
    while (matches.hasNext()) {
        const QJsonObject object = QJsonDocument::fromJson(matches.next().captured(1).toUtf8()).object();
        QVERIFY(!object.isEmpty());
        const QString schema = schemaOfMember.value(object.keys().first());
        QCOMPARE(JsonSchema(schema).problem(object), QString());
        shown.append(schema);
    }
    QCOMPARE(shown,
             (QStringList{text("RelativeCoordinateSystemDate"), text("MaterialLibrary"), text("ExampleLibrary")}));
}

void TestSchemas::refusesOtherFiles_data()
{
    QTest::addColumn<QJsonObject>("library");
    QTest::newRow("no list") << QJsonObject{{text("materials"), QJsonArray()}};
    QTest::newRow("another member") << changed("colour", text("red"));
    QTest::newRow("no id") << changed("id", QJsonValue::Undefined);
    QTest::newRow("a fraction as id") << changed("id", 1.5);
    QTest::newRow("an id beyond int") << changed("id", 2147483648.0);
    QTest::newRow("a number as name") << changed("englishName", 5);
    QTest::newRow("a text as property") << changed("property1", text("x"));
    QTest::newRow("a text as flag") << changed("property1.flag", text("true"));
    QTest::newRow("a word among components") << changed("property1.components", QJsonArray{1, text("one")});
    QTest::newRow("no label") << changed("property1.label", QJsonValue::Undefined);
}

void TestSchemas::refusesOtherFiles()
{
    QFETCH(QJsonObject, library);
    QVERIFY(!JsonSchema(text("MaterialLibrary")).problem(library).isEmpty());
}

QTEST_GUILESS_MAIN(TestSchemas)
#include "tst_schemas.moc"
