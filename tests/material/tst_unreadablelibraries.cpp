// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialFixture.h"

#include <basemodule/GlobalConfig.h>
#include <support/DirectoryWatch.h>
#include <support/Nobody.h>

#include <QDir>
#include <QtTest>

#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>

using BaseModule::ProjectLib;
using DataManager::MaterialLibraryManager;
using Loading = std::function<void(MaterialFixture&)>;

Q_DECLARE_METATYPE(Loading)

namespace {

QString unreadable(const QString& path)
{
    return path + text(".unreadable");
}

QStringList directoryOf(const QString& path)
{
    return QFileInfo(path).dir().entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

mode_t modeOf(const QString& path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

void loadBoth(MaterialFixture& fixture)
{
    expectLine(text("Read software material library file fail, please check path: ") + fixture.softwarePath());
    fixture.manager().initSoftwareMaterial();
    expectLine(text("Read project material library file fail, please check path: ") + fixture.projectPath());
    fixture.manager().initProjectMaterial();
}

void withLimit(decltype(RLIMIT_NOFILE) resource, rlim_t limit, const std::function<void()>& action)
{
    rlimit old = {};
    QCOMPARE(::getrlimit(resource, &old), 0);
    const rlimit narrow = {limit, old.rlim_max};
    QCOMPARE(::setrlimit(resource, &narrow), 0);
    action();
    QCOMPARE(::setrlimit(resource, &old), 0);
}

void loadWithoutDescriptors(MaterialFixture& fixture)
{
    withLimit(RLIMIT_NOFILE, 3, [&fixture] { loadBoth(fixture); });
}

void loadWithoutPermission(MaterialFixture& fixture)
{
    for (const QString& path : {fixture.softwarePath(), fixture.projectPath()}) {
        QVERIFY(QFile::setPermissions(path, {}));
    }
    const Nobody nobody;
    loadBoth(fixture);
}

void loadFromAMissingDirectory(MaterialFixture& fixture)
{
    for (const QString& path : {fixture.softwarePath(), fixture.projectPath()}) {
        const QString directory = QFileInfo(path).path();
        QVERIFY(QDir().rename(directory, directory + text(".away")));
    }
    loadBoth(fixture);
    for (const QString& path : {fixture.softwarePath(), fixture.projectPath()}) {
        const QString directory = QFileInfo(path).path();
        QVERIFY(QDir().rename(directory + text(".away"), directory));
    }
}

} // namespace

class TestUnreadableLibraries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void keepsUnreadableFiles_data();
    void keepsUnreadableFiles();
    void keepsDamagedEntries_data();
    void keepsDamagedEntries();
    void keepsFilesOfTheOtherDevelopmentSetting();
    void keepsFilesOfAnotherKey();
    void keepsEveryUnreadableFileOnce();
    void keepsNothingOfReadableFiles();
    void keepsFilesThatWereOutOfReach_data();
    void keepsFilesThatWereOutOfReach();
    void keepsUnreadableFilesThatWereNeverLoaded();
    void keepsReadableFilesThatWereNeverLoaded();
    void replacesWhatAnotherProcessSaved();
    void keepsUnreadableFilesOfClearedProjects_data();
    void keepsUnreadableFilesOfClearedProjects();
    void leavesUnreadableFilesThatCannotBeKept();
    void doesNotReplaceWhatCannotBeKept();
    void readsTheFileOnce();
    void keepsThePermissions();
    void removesAbandonedCopies();
    void leavesTakenNamesAlone();

private:
    MaterialLibraryManager& manager() { return m_fixture->manager(); }

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

void TestUnreadableLibraries::keepsDamagedEntries_data()
{
    QTest::addColumn<QByteArray>("content");
    const auto row = [](const char* name, const QByteArray& entries) {
        QTest::newRow(name) << "{\"materialList\":[" + entries + "]}";
    };
    row("identifier as a text", R"({"id":"1"})");
    row("identifier with a fraction", R"({"id":1.5})");
    row("identifier beyond an int", R"({"id":2147483648})");
    row("identifier null", R"({"id":null})");
    row("identifier twice", R"({"id":1,"englishName":"a"},{"id":1,"englishName":"b"})");
    row("no identifier twice", R"({"englishName":"a"},{"englishName":"b"})");
    row("name as a number", R"({"id":1,"englishName":5})");
    row("mark as a number", R"({"id":1,"isDeleted":1})");
    row("property as an array", R"({"id":1,"property1":[]})");
    row("property as a text", R"({"id":1,"property5":"eps"})");
    row("component as a text", R"({"id":1,"property1":{"components":[1,2,"3",4,5,6,7,8,9]}})");
    row("component true", R"({"id":1,"property1":{"components":[true]}})");
    row("components as an object", R"({"id":1,"property1":{"components":{}}})");
    row("kind as a text", R"({"id":1,"property1":{"kind":"1"}})");
    row("unknown member of a material", R"({"id":1,"colour":"red"})");
    row("unknown member of a property", R"({"id":1,"property1":{"unit":"S/m"}})");
    row("member twice", R"({"id":1,"englishName":"a","englishName":"b"})");
    row("entry of another type", R"({"id":1},5)");
    QTest::newRow("list twice") << QByteArray(R"({"materialList":[{"id":1}],"materialList":[{"id":2}]})");
    QTest::newRow("unknown member at the root") << QByteArray(R"({"version":2,"materialList":[{"id":1}]})");
}

void TestUnreadableLibraries::keepsDamagedEntries()
{
    QFETCH(QByteArray, content);
    writeContent(m_fixture->softwarePath(), content);
    m_fixture->newManager();
    m_fixture->createSoftware(text("new"));
    QCOMPARE(contentOf(unreadable(m_fixture->softwarePath())), content);
    m_fixture->createSoftware(text("another"));
    QVERIFY(!QFile::exists(unreadable(m_fixture->softwarePath()) + text(".1")));

    const QByteArray cipherText = enciphered(content);
    writeContent(m_fixture->projectPath(), cipherText);
    manager().initProjectMaterial();
    m_fixture->createProject(text("new"));
    QCOMPARE(contentOf(unreadable(m_fixture->projectPath())), cipherText);
}

void TestUnreadableLibraries::keepsFilesThatWereOutOfReach_data()
{
    QTest::addColumn<Loading>("load");
    QTest::newRow("no file descriptor left") << Loading(&loadWithoutDescriptors);
    QTest::newRow("no permission") << Loading(&loadWithoutPermission);
    QTest::newRow("directory missing") << Loading(&loadFromAMissingDirectory);
}

/// The file can be read again when the next save comes, and it is even the one that this process wrote.
void TestUnreadableLibraries::keepsFilesThatWereOutOfReach()
{
    QFETCH(Loading, load);
    for (const char* const name : {"a", "b", "c"}) {
        m_fixture->createSoftware(text(name));
        m_fixture->createProject(text(name));
    }
    const QByteArray softwareFile = contentOf(m_fixture->softwarePath());
    const QByteArray projectFile = contentOf(m_fixture->projectPath());
    load(*m_fixture);
    for (const QString& path : {m_fixture->softwarePath(), m_fixture->projectPath()}) {
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
    }
    m_fixture->createSoftware(text("new"));
    m_fixture->createProject(text("new"));
    QCOMPARE(m_fixture->software(), text("1:new next 2"));
    QCOMPARE(m_fixture->project(), text("1:new next 2"));
    QCOMPARE(contentOf(unreadable(m_fixture->softwarePath())), softwareFile);
    QCOMPARE(contentOf(unreadable(m_fixture->projectPath())), projectFile);
    m_fixture->createSoftware(text("another"));
    QCOMPARE(directoryOf(m_fixture->softwarePath()).size(), 2);
}

void TestUnreadableLibraries::keepsReadableFilesThatWereNeverLoaded()
{
    const QByteArray content = enciphered(R"({"materialList":[{"id":1,"englishName":"somebody's"}]})");
    writeContent(m_fixture->projectPath(), content);
    m_fixture->createProject(text("a"));
    QCOMPARE(contentOf(unreadable(m_fixture->projectPath())), content);
}

void TestUnreadableLibraries::replacesWhatAnotherProcessSaved()
{
    m_fixture->createProject(text("a"));
    writeContent(m_fixture->projectPath(), enciphered(R"({"materialList":[{"id":1,"englishName":"theirs"}]})"));
    m_fixture->createProject(text("b"));
    QCOMPARE(directoryOf(m_fixture->projectPath()), QStringList{text("MaterialLibrary.json")});
    manager().initProjectMaterial();
    QCOMPARE(m_fixture->project(), text("1:a 2:b next 3"));
}

void TestUnreadableLibraries::keepsUnreadableFilesOfClearedProjects_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isLoaded");
    QTest::addColumn<bool>("isKept");
    const QByteArray good = R"({"materialList":[{"id":1}]})";
    QTest::newRow("unreadable") << QByteArray("not a library") << true << true;
    QTest::newRow("unreadable, not loaded") << QByteArray("not a library") << false << true;
    QTest::newRow("damaged") << QByteArray(R"({"materialList":[{"id":"1"}]})") << true << true;
    QTest::newRow("good") << good << true << false;
    QTest::newRow("good, not loaded") << good << false << false;
    QTest::newRow("empty") << QByteArray() << true << false;
}

void TestUnreadableLibraries::keepsUnreadableFilesOfClearedProjects()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, isLoaded);
    QFETCH(bool, isKept);
    GlobalConfig::setIsDevelop(true);
    writeContent(m_fixture->projectPath(), content);
    if (isLoaded) {
        manager().initProjectMaterial();
    }
    manager().clearProjectMaterial();
    QCOMPARE(m_fixture->project(), text("next 1"));
    QVERIFY(!QFile::exists(m_fixture->projectPath()));
    QCOMPARE(QFile::exists(unreadable(m_fixture->projectPath())), isKept);
    QCOMPARE(contentOf(unreadable(m_fixture->projectPath())), isKept ? content : QByteArray());
}

/// Removing would work, copying does not.
void TestUnreadableLibraries::leavesUnreadableFilesThatCannotBeKept()
{
    GlobalConfig::setIsDevelop(true);
    const QByteArray precious = R"({"materialList":[{"id":1,"englishName":"precious"}]})";
    const QString path = m_fixture->projectPath();
    writeContent(path, precious);
    QStringList lines;
    {
        LogLines log;
        withLimit(RLIMIT_NOFILE, 3, [this] { manager().initProjectMaterial(); });
        std::signal(SIGXFSZ, SIG_IGN);
        withLimit(RLIMIT_FSIZE, 0, [this] {
            // The second time, too, although it reads as a library and could be taken for one that was never loaded.
            manager().clearProjectMaterial();
            manager().clearProjectMaterial();
        });
        lines = log.take();
    }
    const QString line = text("Remove project material library file fail, please check path: %1.").arg(path);
    QCOMPARE(lines,
             (QStringList{text("Read project material library file fail, please check path: ") + path, line, line}));
    QCOMPARE(contentOf(path), precious);
    QCOMPARE(directoryOf(path), QStringList{text("MaterialLibrary.json")});
    QCOMPARE(m_fixture->project(), text("next 1"));
    manager().clearProjectMaterial();
    QVERIFY(!QFile::exists(path));
    QCOMPARE(contentOf(unreadable(path)), precious);
}

/// Neither the first save after the file was loaded reads it again, nor the saves after that.
void TestUnreadableLibraries::readsTheFileOnce()
{
    m_fixture->createProject(text("a"));
    MaterialLibraryManager& other = *m_fixture->newManager();
    other.initProjectMaterial();
    DirectoryWatch watch(m_fixture->projectDirectory());
    other.writeProjectMatConfig();
    other.createProjectMat({}, text("b"), {}, {}, {}, {}, {});
    const QStringList saves = watch.take();
    QCOMPARE(saves.count(text("moved MaterialLibrary.json")), 2);
    QVERIFY2(!saves.contains(text("read MaterialLibrary.json")), qPrintable(saves.join(QLatin1Char('\n'))));
    contentOf(m_fixture->projectPath());
    QVERIFY(watch.take().contains(text("read MaterialLibrary.json")));
}

void TestUnreadableLibraries::keepsThePermissions()
{
    writeContent(m_fixture->softwarePath(), "not a library");
    for (const mode_t mode : {0600U, 0640U, 0664U}) {
        const QString path = m_fixture->softwarePath();
        writeContent(path, "not a library, " + QByteArray::number(mode));
        QCOMPARE(::chmod(QFile::encodeName(path).constData(), mode), 0);
        m_fixture->newManager();
        m_fixture->createSoftware(text("a"));
    }
    QCOMPARE(modeOf(unreadable(m_fixture->softwarePath())), mode_t(0600));
    QCOMPARE(modeOf(unreadable(m_fixture->softwarePath()) + text(".1")), mode_t(0640));
    QCOMPARE(modeOf(unreadable(m_fixture->softwarePath()) + text(".2")), mode_t(0664));
}

void TestUnreadableLibraries::removesAbandonedCopies()
{
    const QString path = m_fixture->softwarePath();
    writeContent(path, "{\"materialList\":[]}");
    writeContent(unreadable(path) + text(".new"), "half a cop");
    m_fixture->newManager();
    QCOMPARE(directoryOf(path), QStringList{text("MaterialLibrary.json")});
}

void TestUnreadableLibraries::leavesTakenNamesAlone()
{
    const QString path = m_fixture->softwarePath();
    const QString target = m_fixture->projectDirectory() + text("/elsewhere");
    writeContent(unreadable(path), "another copy");
    QVERIFY(QFile::link(target, unreadable(path) + text(".1")));
    QVERIFY(QDir().mkpath(unreadable(path) + text(".2")));
    // What somebody put where the copy is made is neither followed nor used.
    QVERIFY(QFile::link(target, unreadable(path) + text(".new")));
    writeContent(path, "not a library");
    m_fixture->newManager();
    QVERIFY(QFile::link(target, unreadable(path) + text(".new")));
    m_fixture->createSoftware(text("a"));
    QCOMPARE(contentOf(unreadable(path)), QByteArray("another copy"));
    QCOMPARE(contentOf(unreadable(path) + text(".3")), QByteArray("not a library"));
    QVERIFY(!QFile::exists(target));
    QCOMPARE(directoryOf(path).size(), 5);
}

QTEST_GUILESS_MAIN(TestUnreadableLibraries)
#include "tst_unreadablelibraries.moc"
