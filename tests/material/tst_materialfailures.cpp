// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// Records that cannot be created or serialised. That does not happen with the records as they are, so this program
// puts itself in front of two functions: Qt's creation of objects by meta-object and the serializer. The serializer is
// also where the memory ends.

#include "MaterialFixture.h"

#include <datamanager/material/ExampleLibraryManager.h>

#include <basemodule/SerializerBase.h>

#include <QMetaObject>
#include <QtTest>

#include <dlfcn.h>
#include <new>

using DataManager::ExampleLibraryManager;
using DataManager::MaterialLibraryManager;

namespace {

bool isCreationFailing = false;
bool isSerializationFailing = false;
bool isMemoryShort = false;

template <class Function>
Function next(const char* mangledName)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, mangledName));
}

QStringList failedCreation(const char* className)
{
    return {QStringLiteral("critical: Failed to create an instance of type ") + QString::fromUtf8(className),
            QStringLiteral("critical: Did you forget to declare a public parameterless Q_INVOKABLE constructor?")};
}

} // namespace

QObject* QMetaObject::newInstance(QGenericArgument a0, QGenericArgument a1, QGenericArgument a2, QGenericArgument a3,
                                  QGenericArgument a4, QGenericArgument a5, QGenericArgument a6, QGenericArgument a7,
                                  QGenericArgument a8, QGenericArgument a9) const
{
    using Argument = QGenericArgument;
    using Function = QObject* (*)(const QMetaObject*, Argument, Argument, Argument, Argument, Argument, Argument,
                                  Argument, Argument, Argument, Argument);
    static const auto original = next<Function>("_ZNK11QMetaObject11newInstanceE16QGenericArgumentS0_S0_S0_S0_S0_S0_S0_"
                                                "S0_S0_");
    return isCreationFailing ? nullptr : original(this, a0, a1, a2, a3, a4, a5, a6, a7, a8, a9);
}

QByteArray QJsonHelper::SerializerBase::serialize(const void* object, const QMetaObject& meta, bool isIndented)
{
    using Function = QByteArray (*)(const void*, const QMetaObject&, bool);
    static const auto original = next<Function>("_ZN11QJsonHelper14SerializerBase9serializeEPKvRK11QMetaObjectb");
    if (isMemoryShort) {
        throw std::bad_alloc();
    }
    return isSerializationFailing ? QByteArray() : original(object, meta, isIndented);
}

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
    isCreationFailing = false;
    isSerializationFailing = false;
    isMemoryShort = false;
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
    isCreationFailing = true;
    LogLines log;
    manager.initSoftwareMaterial();
    QCOMPARE(log.take(), failedCreation("DataModel::MaterialDataArray") << softwareLine);
    // The software library's counter stays, the project's is set from the empty map.
    QCOMPARE(m_fixture->software(), QStringLiteral("next 2"));
    manager.initProjectMaterial();
    QCOMPARE(log.take(), failedCreation("DataModel::MaterialDataArray") << projectLine);
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
                             << failedCreation("DataModel::MaterialDataArray") << softwareLine);
    manager.initProjectMaterial();
    QCOMPARE(log.take(), QStringList(QStringLiteral("Read project material library file fail, please check path: ") +
                                     m_fixture->projectPath()));
}

void TestMaterialFailures::startsWithoutMaterialsThatCannotBeCreated()
{
    m_fixture->createSoftware(QStringLiteral("a"));
    isCreationFailing = true;
    LogLines log;
    m_fixture->newManager();
    QCOMPARE(log.take(), failedCreation("DataModel::MaterialDataArray")
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
    isSerializationFailing = true;
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
    isCreationFailing = true;
    const QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/ConfigFiles/ExampleLibrary.json");
    LogLines log;
    const std::unique_ptr<ExampleLibraryManager> manager(new ExampleLibraryManager);
    QCOMPARE(log.take(), QStringList(QStringLiteral("read Example file fail, please check path: ") + path)
                             << failedCreation("DataModel::ExampleLibData")
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
    isSerializationFailing = true;
    expectLine(QStringLiteral("serialize Example fail !"));
    manager->saveData();
    QCOMPARE(contentOf(path), QByteArray("{\"exampleList\":[]}"));
}

/// The library is filled by then, and is empty again.
void TestMaterialFailures::keepsMaterialsThatDoNotFitIntoTheMemory()
{
    const QByteArray content = R"({"materialList":[{"id":1,"englishName":"a","colour":"red"}]})";
    writeContent(m_fixture->softwarePath(), content);
    isMemoryShort = true;
    m_fixture->newManager();
    isMemoryShort = false;
    QCOMPARE(m_fixture->software(), QStringLiteral("next 1"));
    m_fixture->createSoftware(QStringLiteral("new"));
    QCOMPARE(contentOf(m_fixture->softwarePath() + QStringLiteral(".unreadable")), content);
}

void TestMaterialFailures::keepsExamplesThatDoNotFitIntoTheMemory()
{
    const QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/ConfigFiles/ExampleLibrary.json");
    const QByteArray content = R"({"exampleList":[{"englishTitle":"t","colour":"red"}]})";
    writeContent(path, content);
    isMemoryShort = true;
    const std::unique_ptr<ExampleLibraryManager> manager(new ExampleLibraryManager);
    isMemoryShort = false;
    manager->saveData();
    QCOMPARE(contentOf(path + QStringLiteral(".unreadable")), content);
}

QTEST_GUILESS_MAIN(TestMaterialFailures)
#include "tst_materialfailures.moc"
