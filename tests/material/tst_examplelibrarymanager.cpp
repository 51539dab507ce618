// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/ExampleLibraryManager.h>

#include <datamodel/ExampleLibData.h>
#include <support/FilesAndLog.h>

#include <QCoreApplication>
#include <QDir>
#include <QtTest>

#include <memory>

using DataManager::ExampleLibraryManager;
using DataModel::ExampleData;
using DataModel::ExampleLibData;

namespace {

QString directory()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/ConfigFiles");
}

QString path()
{
    return directory() + QStringLiteral("/ExampleLibrary.json");
}

/// As a new process would have it.
std::unique_ptr<ExampleLibraryManager> newManager()
{
    return std::unique_ptr<ExampleLibraryManager>(new ExampleLibraryManager);
}

QSharedPointer<ExampleData> example(const QString& name)
{
    auto data = QSharedPointer<ExampleData>::create();
    int number = 0;
    for (QString ExampleData::*member :
         {&ExampleData::chineseTitle, &ExampleData::englishTitle, &ExampleData::chineseDescription,
          &ExampleData::englishDescription, &ExampleData::chineseCategory, &ExampleData::englishCategory,
          &ExampleData::chineseProjectPath, &ExampleData::englishProjectPath, &ExampleData::chinesePicturePath,
          &ExampleData::englishPicturePath}) {
        (*data).*member = name + QString::number(++number);
    }
    return data;
}

/// All properties of every example, by name.
QStringList described(const ExampleLibData& library)
{
    QStringList lines;
    for (const auto& data : library.exampleList) {
        const QMetaObject& meta = ExampleData::staticMetaObject;
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
            lines += QString::fromUtf8(meta.property(i).name()) + QLatin1Char('=') +
                     meta.property(i).read(data.data()).toString();
        }
    }
    return lines;
}

} // namespace

class TestExampleLibraryManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void hasOneInstance();
    void startsWithDefaults();
    void returnsWhatWasSaved();
    void writesReadableMembers();
    void logsFailedWrites();
    void logsRecordsThatCannotBeSerialized();
    void reads_data();
    void reads();
    void keepsUnreadableFiles();
    void offersTheSamples();
    void keepsDamagedEntries_data();
    void keepsDamagedEntries();
    void keepsFilesThatWereOutOfReach();
    void keepsNothingOfReadableFiles();
};

void TestExampleLibraryManager::init()
{
    QDir(directory()).removeRecursively();
    QVERIFY(QDir().mkpath(directory()));
}

void TestExampleLibraryManager::hasOneInstance()
{
    expectLine(text("read Example file fail, please check path: %1").arg(path()));
    ExampleLibraryManager* const first = ExampleLibraryManager::getInstance();
    QCOMPARE(ExampleLibraryManager::getInstance(), first);
    QVERIFY(first->parent() == nullptr);
}

void TestExampleLibraryManager::startsWithDefaults()
{
    expectLine(text("read Example file fail, please check path: %1").arg(path()));
    const auto manager = newManager();
    const auto record = manager->getExampleLibData();
    QVERIFY(!record.isNull());
    QCOMPARE(manager->getExampleLibData(), record);
    QVERIFY(record->exampleList.isEmpty());
    QVERIFY(!QFile::exists(path()));
}

void TestExampleLibraryManager::returnsWhatWasSaved()
{
    expectLine(text("read Example file fail, please check path: %1").arg(path()));
    const auto manager = newManager();
    manager->getExampleLibData()->exampleList = {example(text("a")), example(text("例子"))};
    manager->saveData();
    const QStringList expected = described(*manager->getExampleLibData());
    QCOMPARE(expected.size(), 20);
    QCOMPARE(expected.first(), text("chineseTitle=a1"));
    QCOMPARE(described(*newManager()->getExampleLibData()), expected);
    // Changes made through the pointer need no setter.
    manager->getExampleLibData()->exampleList.first()->englishTitle = text("changed");
    manager->saveData();
    QCOMPARE(newManager()->getExampleLibData()->exampleList.first()->englishTitle, text("changed"));
}

void TestExampleLibraryManager::writesReadableMembers()
{
    expectLine(text("read Example file fail, please check path: %1").arg(path()));
    const auto manager = newManager();
    manager->getExampleLibData()->exampleList = {example(text("x"))};
    manager->saveData();
    const QJsonObject root = QJsonDocument::fromJson(contentOf(path())).object();
    QCOMPARE(root.keys(), QStringList{text("exampleList")});
    const QJsonObject first = root.value(text("exampleList")).toArray().first().toObject();
    QCOMPARE(first.size(), 10);
    QCOMPARE(first.value(text("englishProjectPath")).toString(), text("x8"));
}

void TestExampleLibraryManager::logsFailedWrites()
{
    expectLine(text("read Example file fail, please check path: %1").arg(path()));
    const auto manager = newManager();
    QVERIFY(QDir().mkpath(path()));
    expectLine(text("write Example file fail, please check path: %1").arg(path()));
    manager->saveData();
    QVERIFY(QFileInfo(path()).isDir());
}

void TestExampleLibraryManager::logsRecordsThatCannotBeSerialized()
{
    writeContent(path(), "{\"exampleList\":[]}");
    const auto manager = newManager();
    manager->m_exampleLibData.reset();
    QTest::ignoreMessage(QtDebugMsg, "serialize Example fail !");
    manager->saveData();
    QCOMPARE(contentOf(path()), QByteArray("{\"exampleList\":[]}"));
}

void TestExampleLibraryManager::reads_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<int>("count");
    QTest::newRow("one") << QByteArray(R"({"exampleList":[{"englishTitle":"t"}]})") << 1;
    QTest::newRow("null entry") << QByteArray(R"({"exampleList":[null]})") << 1;
    QTest::newRow("wrong entries") << QByteArray(R"({"exampleList":[1,"x",[]]})") << 0;
    QTest::newRow("wrong list") << QByteArray(R"({"exampleList":5})") << 0;
    QTest::newRow("empty") << QByteArray() << 0;
    QTest::newRow("array") << QByteArray("[]") << 0;
    QTest::newRow("truncated") << QByteArray(R"({"exampleList":[{"englishTitle":"t"}])") << 0;
    QTest::newRow("NULs") << QByteArray(4096, '\0') << 0;
}

void TestExampleLibraryManager::reads()
{
    QFETCH(QByteArray, json);
    QFETCH(int, count);
    writeContent(path(), json);
    const auto manager = newManager();
    QVERIFY(!manager->getExampleLibData().isNull());
    QCOMPARE(manager->getExampleLibData()->exampleList.size(), count);
    QCOMPARE(contentOf(path()), json);
    manager->saveData();
    QCOMPARE(newManager()->getExampleLibData()->exampleList.size(), count);
}

void TestExampleLibraryManager::keepsUnreadableFiles()
{
    writeContent(path(), "not JSON");
    newManager()->saveData();
    QCOMPARE(contentOf(path() + text(".unreadable")), QByteArray("not JSON"));
    writeContent(path(), "{\"materialList\":[]}");
    const auto manager = newManager();
    manager->saveData();
    QCOMPARE(contentOf(path() + text(".unreadable.1")), QByteArray("{\"materialList\":[]}"));
    QCOMPARE(contentOf(path()), QByteArray("{\"exampleList\":[]}"));
    manager->saveData();
    QVERIFY(!QFile::exists(path() + text(".unreadable.2")));
}

void TestExampleLibraryManager::offersTheSamples()
{
    const QString samples = QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples");
    QVERIFY(QFile::copy(samples + text("/libraries/ExampleLibrary.json"), path()));
    const auto examples = newManager()->getExampleLibData()->exampleList;
    QVERIFY(!examples.isEmpty());
    for (const auto& data : examples) {
        for (const QString& shown : {data->chineseTitle, data->englishTitle, data->chineseDescription,
                                     data->englishDescription, data->chineseCategory, data->englishCategory}) {
            QVERIFY(!shown.isEmpty());
        }
        for (const QString& project : {data->chineseProjectPath, data->englishProjectPath}) {
            QVERIFY2(project.startsWith(text("../../samples/")), qPrintable(project));
            QVERIFY2(QFile::exists(samples + QLatin1Char('/') + QFileInfo(project).fileName()), qPrintable(project));
        }
    }
}

void TestExampleLibraryManager::keepsDamagedEntries_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("title as a number") << QByteArray(R"({"exampleList":[{"englishTitle":5}]})");
    QTest::newRow("unknown member") << QByteArray(R"({"exampleList":[{"title":"t"}]})");
    QTest::newRow("entry of another type") << QByteArray(R"({"exampleList":[5]})");
    QTest::newRow("list twice") << QByteArray(R"({"exampleList":[],"exampleList":[]})");
}

void TestExampleLibraryManager::keepsDamagedEntries()
{
    QFETCH(QByteArray, json);
    writeContent(path(), json);
    newManager()->saveData();
    QCOMPARE(contentOf(path() + text(".unreadable")), json);
}

void TestExampleLibraryManager::keepsFilesThatWereOutOfReach()
{
    expectLine(text("read Example file fail, please check path: %1").arg(path()));
    const auto manager = newManager();
    const QByteArray json = R"({"exampleList":[{"englishTitle":"t"}]})";
    writeContent(path(), json);
    manager->saveData();
    QCOMPARE(contentOf(path() + text(".unreadable")), json);
    QCOMPARE(contentOf(path()), QByteArray("{\"exampleList\":[]}"));
}

void TestExampleLibraryManager::keepsNothingOfReadableFiles()
{
    writeContent(path(), R"({"exampleList":[{"englishTitle":"t"},null]})");
    const auto manager = newManager();
    manager->saveData();
    manager->saveData();
    newManager()->saveData();
    QCOMPARE(QDir(directory()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{text("ExampleLibrary.json")});
}

QTEST_GUILESS_MAIN(TestExampleLibraryManager)
#include "tst_examplelibrarymanager.moc"
