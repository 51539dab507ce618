// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialFixture.h"

#include <basemodule/GlobalConfig.h>

#include <QDir>
#include <QtTest>

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

/// What cannot be read as a library is kept before it is replaced.
class TestUnreadableLibraries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void keepsUnreadableFiles_data();
    void keepsUnreadableFiles();
    void keepsFilesOfTheOtherDevelopmentSetting();
    void keepsFilesOfAnotherKey();
    void keepsEveryUnreadableFileOnce();
    void keepsNothingOfReadableFiles();
    void keepsUnreadableFilesThatWereNeverLoaded();
    void doesNotReplaceWhatCannotBeKept();

private:
    DataManager::MaterialLibraryManager& manager() { return m_fixture->manager(); }

    std::unique_ptr<MaterialFixture> m_fixture;
};

void TestUnreadableLibraries::init()
{
    qunsetenv("DATAMANAGER_CIPHER_KEY");
    m_fixture = std::make_unique<MaterialFixture>();
}

void TestUnreadableLibraries::cleanup()
{
    m_fixture.reset();
}

void TestUnreadableLibraries::keepsUnreadableFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("text") << QByteArray("a letter to a friend");
    QTest::newRow("truncated") << QByteArray(R"({"materialList":[{"id":1,"englishName":"a"})");
    QTest::newRow("array at the root") << QByteArray(R"([{"id":1}])");
    QTest::newRow("no list") << QByteArray(R"({"exampleList":[]})");
    QTest::newRow("list of another type") << QByteArray(R"({"materialList":"x"})");
    QTest::newRow("entry of another type") << QByteArray(R"({"materialList":[{"id":1},5]})");
    QTest::newRow("NULs") << QByteArray(4096, '\0');
    QTest::newRow("bytes that are not UTF-8") << QByteArray("\xff\xfe\x00\x80", 4);
}

void TestUnreadableLibraries::keepsUnreadableFiles()
{
    QFETCH(QByteArray, content);
    writeContent(m_fixture->softwarePath(), content);
    m_fixture->newManager();
    QCOMPARE(contentOf(m_fixture->softwarePath()), content);
    QVERIFY(!QFile::exists(m_fixture->softwarePath() + text(".unreadable")));
    m_fixture->createSoftware(text("new"));
    QCOMPARE(contentOf(m_fixture->softwarePath() + text(".unreadable")), content);
    m_fixture->newManager();
    QVERIFY(manager().getSoftwareMatByName(text("new")));

    writeContent(m_fixture->projectPath(), content);
    expectRefusedCipherText();
    manager().initProjectMaterial();
    QCOMPARE(m_fixture->project(), text("next 1"));
    m_fixture->createProject(text("new"));
    QCOMPARE(contentOf(m_fixture->projectPath() + text(".unreadable")), content);
    manager().initProjectMaterial();
    QCOMPARE(m_fixture->project(), text("1:new next 2"));
}

void TestUnreadableLibraries::keepsFilesOfTheOtherDevelopmentSetting()
{
    m_fixture->createProject(text("a"));
    const QByteArray cipherText = contentOf(m_fixture->projectPath());
    GlobalConfig::setIsDevelop(true);
    manager().initProjectMaterial();
    QCOMPARE(m_fixture->project(), text("next 1"));
    m_fixture->createProject(text("b"));
    QCOMPARE(contentOf(m_fixture->projectPath() + text(".unreadable")), cipherText);
    const QByteArray json = contentOf(m_fixture->projectPath());

    GlobalConfig::setIsDevelop(false);
    expectRefusedCipherText();
    manager().initProjectMaterial();
    QCOMPARE(m_fixture->project(), text("next 1"));
    m_fixture->createProject(text("c"));
    QCOMPARE(contentOf(m_fixture->projectPath() + text(".unreadable.1")), json);
}

void TestUnreadableLibraries::keepsFilesOfAnotherKey()
{
    m_fixture->createProject(text("a"));
    const QByteArray cipherText = contentOf(m_fixture->projectPath());
    qputenv("DATAMANAGER_CIPHER_KEY", "another key");
    expectRefusedCipherText();
    manager().initProjectMaterial();
    QCOMPARE(m_fixture->project(), text("next 1"));
    m_fixture->createProject(text("b"));
    QCOMPARE(contentOf(m_fixture->projectPath() + text(".unreadable")), cipherText);
}

void TestUnreadableLibraries::keepsEveryUnreadableFileOnce()
{
    const QString path = m_fixture->softwarePath();
    for (const char* content : {"first", "second", "first", "third", "second"}) {
        writeContent(path, content);
        m_fixture->newManager();
        manager().saveSoftwareMaterial();
        manager().saveSoftwareMaterial();
    }
    QCOMPARE(contentOf(path + text(".unreadable")), QByteArray("first"));
    QCOMPARE(contentOf(path + text(".unreadable.1")), QByteArray("second"));
    QCOMPARE(contentOf(path + text(".unreadable.2")), QByteArray("third"));
    QCOMPARE(QFileInfo(path).dir().entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 4);
}

void TestUnreadableLibraries::keepsNothingOfReadableFiles()
{
    const QString path = m_fixture->softwarePath();
    for (const char* content :
         {"", "{\"materialList\":[]}", "{\"materialList\":[null]}", "\n{ \"materialList\" : [ {\"id\":1} ] }\n"}) {
        writeContent(path, content);
        m_fixture->newManager();
        manager().saveSoftwareMaterial();
        m_fixture->createSoftware(text("a"));
    }
    QCOMPARE(QFileInfo(path).dir().entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{text("MaterialLibrary.json")});
}

void TestUnreadableLibraries::keepsUnreadableFilesThatWereNeverLoaded()
{
    writeContent(m_fixture->projectPath(), "not a library");
    expectRefusedCipherText();
    m_fixture->createProject(text("a"));
    QCOMPARE(contentOf(m_fixture->projectPath() + text(".unreadable")), QByteArray("not a library"));
    // Damaged by someone else after our own save.
    writeContent(m_fixture->projectPath(), "damaged meanwhile");
    expectRefusedCipherText();
    m_fixture->createProject(text("b"));
    QCOMPARE(contentOf(m_fixture->projectPath() + text(".unreadable.1")), QByteArray("damaged meanwhile"));
}

void TestUnreadableLibraries::doesNotReplaceWhatCannotBeKept()
{
    // The copy's name is longer than a file name may be, so that it cannot be made.
    const QString path = m_fixture->projectDirectory() + QLatin1Char('/') + QString(250, QLatin1Char('n'));
    manager().m_softwareLibPath = path;
    writeContent(path, "precious");
    manager().initSoftwareMaterial();
    expectLine(text("Write software material library file fail, please check path: %1.").arg(path));
    m_fixture->createSoftware(text("a"));
    QCOMPARE(contentOf(path), QByteArray("precious"));
    QCOMPARE(m_fixture->software(), text("1:a next 2"));
}

QTEST_GUILESS_MAIN(TestUnreadableLibraries)
#include "tst_unreadablelibraries.moc"
