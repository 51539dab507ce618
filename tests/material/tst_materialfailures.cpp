// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialFixture.h"

#include <datamanager/material/ExampleLibraryManager.h>

#include <support/RecordFaults.h>

#include <QtTest>

using DataManager::ExampleLibraryManager;
using DataManager::MaterialLibraryManager;

/// Libraries whose records cannot be created or serialised.
class TestMaterialFailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void standsInFront();
    void logsMaterialsThatCannotBeCreated();
    void startsWithoutMaterialsThatCannotBeCreated();
    void logsMaterialsThatCannotBeSerialized();
    void logsExamplesThatCannotBeCreated();
    void logsExamplesThatCannotBeSerialized();
    void keepsMaterialsThatDoNotFitIntoTheMemory();
    void numbersFromOneOnAfterwards();
    void takesNoPartOfAContent();
    void keepsAFileThatCannotBeLookedAt();
    void keepsExamplesThatDoNotFitIntoTheMemory();

private:
    std::unique_ptr<MaterialFixture> m_fixture;
};

void TestMaterialFailures::init()
{
    m_fixture = std::make_unique<MaterialFixture>();
}

void TestMaterialFailures::cleanup()
{
    RecordFaults::now() = RecordFaults();
    m_fixture.reset();
}

void TestMaterialFailures::standsInFront()
{
    m_fixture->createSoftware(QStringLiteral("a"));
    m_fixture->newManager();
    QCOMPARE(m_fixture->software(), QStringLiteral("1:a next 2"));
}

void TestMaterialFailures::logsMaterialsThatCannotBeCreated()
{
    m_fixture->createSoftware(QStringLiteral("a"));
    m_fixture->createProject(QStringLiteral("a"));
    m_fixture->createProject(QStringLiteral("b"));
    const QByteArray softwareFile = contentOf(m_fixture->softwarePath());
    const QByteArray projectFile = contentOf(m_fixture->projectPath());
    const QString softwareLine = QStringLiteral("Deserialize software material data array fail!");
    const QString projectLine = QStringLiteral("Deserialize project material data array fail !");
    MaterialLibraryManager& manager = m_fixture->manager();
    RecordFaults::now().isCreationFailing = true;
    LogLines log;
    manager.initSoftwareMaterial();
    QCOMPARE(log.take(), RecordFaults::failedCreation("DataModel::MaterialDataArray") << softwareLine);
    // The software library's counter stays, the project's is set from the empty map.
    QCOMPARE(m_fixture->software(), QStringLiteral("next 2"));
    manager.initProjectMaterial();
    QCOMPARE(log.take(), RecordFaults::failedCreation("DataModel::MaterialDataArray") << projectLine);
    QCOMPARE(m_fixture->project(), QStringLiteral("next 1"));

    // What was not read is not lost by the next save.
    m_fixture->createSoftware(QStringLiteral("new"));
    QCOMPARE(contentOf(m_fixture->softwarePath() + QStringLiteral(".unreadable")), softwareFile);
    m_fixture->createProject(QStringLiteral("new"));
    QCOMPARE(contentOf(m_fixture->projectPath() + QStringLiteral(".unreadable")), projectFile);

    // A missing software file is deserialised as an empty one, a missing project file is not.
    QVERIFY(QFile::remove(m_fixture->softwarePath()));
    QVERIFY(QFile::remove(m_fixture->projectPath()));
    manager.initSoftwareMaterial();
    QCOMPARE(log.take(), QStringList(QStringLiteral("Read software material library file fail, please check path: ") +
                                     m_fixture->softwarePath())
                             << RecordFaults::failedCreation("DataModel::MaterialDataArray") << softwareLine);
    manager.initProjectMaterial();
    QCOMPARE(log.take(), QStringList(QStringLiteral("Read project material library file fail, please check path: ") +
                                     m_fixture->projectPath()));
}

void TestMaterialFailures::startsWithoutMaterialsThatCannotBeCreated()
{
    m_fixture->createSoftware(QStringLiteral("a"));
    RecordFaults::now().isCreationFailing = true;
    LogLines log;
    m_fixture->newManager();
    QCOMPARE(log.take(), RecordFaults::failedCreation("DataModel::MaterialDataArray")
                             << QStringLiteral("Deserialize software material data array fail!"));
    QCOMPARE(m_fixture->software(), QStringLiteral("next 1"));
    QCOMPARE(m_fixture->project(), QStringLiteral("next 1"));
}

void TestMaterialFailures::logsMaterialsThatCannotBeSerialized()
{
    m_fixture->createSoftware(QStringLiteral("a"));
    m_fixture->createProject(QStringLiteral("a"));
    const QByteArray softwareFile = contentOf(m_fixture->softwarePath());
    const QByteArray projectFile = contentOf(m_fixture->projectPath());
    RecordFaults::now().isSerializationFailing = true;
    expectLine(QStringLiteral("Serialize software material data array fail!"));
    m_fixture->createSoftware(QStringLiteral("b"));
    expectLine(QStringLiteral("Serialize project material data array fail!"));
    m_fixture->createProject(QStringLiteral("b"));
    QCOMPARE(contentOf(m_fixture->softwarePath()), softwareFile);
    QCOMPARE(contentOf(m_fixture->projectPath()), projectFile);
    QCOMPARE(m_fixture->software(), QStringLiteral("1:a 2:b next 3"));
    QCOMPARE(m_fixture->project(), QStringLiteral("1:a 2:b next 3"));
}

void TestMaterialFailures::logsExamplesThatCannotBeCreated()
{
    RecordFaults::now().isCreationFailing = true;
    const QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/ConfigFiles/ExampleLibrary.json");
    LogLines log;
    const std::unique_ptr<ExampleLibraryManager> manager(new ExampleLibraryManager);
    QCOMPARE(log.take(), QStringList(QStringLiteral("read Example file fail, please check path: ") + path)
                             << RecordFaults::failedCreation("DataModel::ExampleLibData")
                             << QStringLiteral("deserialize Example fail !"));
    QVERIFY(manager->getExampleLibData().isNull());
    manager->saveData();
    QCOMPARE(log.take(), QStringList(QStringLiteral("serialize Example fail !")));
    QVERIFY(!QFile::exists(path));
}

void TestMaterialFailures::logsExamplesThatCannotBeSerialized()
{
    const QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/ConfigFiles/ExampleLibrary.json");
    writeContent(path, "{\"exampleList\":[]}");
    const std::unique_ptr<ExampleLibraryManager> manager(new ExampleLibraryManager);
    RecordFaults::now().isSerializationFailing = true;
    expectLine(QStringLiteral("serialize Example fail !"));
    manager->saveData();
    QCOMPARE(contentOf(path), QByteArray("{\"exampleList\":[]}"));
}

/// The library is filled by then, and is empty again.
void TestMaterialFailures::keepsMaterialsThatDoNotFitIntoTheMemory()
{
    const QByteArray content = R"({"materialList":[{"id":1,"englishName":"a","colour":"red"}]})";
    writeContent(m_fixture->softwarePath(), content);
    RecordFaults::now().serializationsLeft = 0;
    LogLines log;
    m_fixture->newManager();
    QCOMPARE(log.take(), QStringList()); // as for an empty file
    RecordFaults::now().serializationsLeft = -1;
    QCOMPARE(m_fixture->software(), QStringLiteral("next 1"));
    m_fixture->createSoftware(QStringLiteral("new"));
    QCOMPARE(contentOf(m_fixture->softwarePath() + QStringLiteral(".unreadable")), content);
}

/// As after an empty file, whatever the library held before.
void TestMaterialFailures::numbersFromOneOnAfterwards()
{
    m_fixture->createSoftware(QStringLiteral("a"));
    m_fixture->createSoftware(QStringLiteral("b"));
    writeContent(m_fixture->softwarePath(), R"({"materialList":[{"id":1,"englishName":"a","colour":"red"}]})");
    RecordFaults::now().serializationsLeft = 0;
    m_fixture->manager().initSoftwareMaterial();
    RecordFaults::now().serializationsLeft = -1;
    QCOMPARE(m_fixture->software(), QStringLiteral("next 1"));
}

/// Another program's file, which does not fit into the memory when it is to be replaced.
void TestMaterialFailures::keepsAFileThatCannotBeLookedAt()
{
    m_fixture->createSoftware(QStringLiteral("a"));
    const QByteArray content("of another program");
    writeContent(m_fixture->softwarePath(), content);
    RecordFaults::now().isReadingShort = true;
    expectLine(QStringLiteral("Write software material library file fail, please check path: %1.")
                   .arg(m_fixture->softwarePath()));
    m_fixture->createSoftware(QStringLiteral("b"));
    RecordFaults::now().isReadingShort = false;
    QCOMPARE(contentOf(m_fixture->softwarePath()), content);
}

/// The record has the first of two by then.
void TestMaterialFailures::takesNoPartOfAContent()
{
    const QByteArray content = R"({"materialList":[{"id":1,"englishName":"a"},{"id":2,"englishName":"b"}]})";
    writeContent(m_fixture->softwarePath(), content);
    RecordFaults::now().creationsLeft = 2;
    m_fixture->newManager();
    QCOMPARE(RecordFaults::now().creationsLeft, -1);
    QCOMPARE(m_fixture->software(), QStringLiteral("next 1"));
    m_fixture->newManager();
    QCOMPARE(m_fixture->software(), QStringLiteral("1:a 2:b next 3"));
}

void TestMaterialFailures::keepsExamplesThatDoNotFitIntoTheMemory()
{
    const QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/ConfigFiles/ExampleLibrary.json");
    const QByteArray content = R"({"exampleList":[{"englishTitle":"t","colour":"red"}]})";
    writeContent(path, content);
    RecordFaults::now().serializationsLeft = 0;
    const std::unique_ptr<ExampleLibraryManager> manager(new ExampleLibraryManager);
    RecordFaults::now().serializationsLeft = -1;
    manager->saveData();
    QCOMPARE(contentOf(path + QStringLiteral(".unreadable")), content);
}

QTEST_GUILESS_MAIN(TestMaterialFailures)
#include "tst_materialfailures.moc"
