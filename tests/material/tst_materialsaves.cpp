// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialFixture.h"

#include <basemodule/GlobalConfig.h>
#include <basemodule/GlobalHelper.h>
#include <support/DirectoryWatch.h>
#include <support/Nobody.h>

#include <QDir>
#include <QtTest>

#include <fcntl.h>
#include <functional>
#include <sys/stat.h>

using BaseModule::ProjectLib;
using BaseModule::SoftwareLib;
using Manager = DataManager::MaterialLibraryManager;
using Change = std::function<void(Manager&)>;

Q_DECLARE_METATYPE(Change)

namespace {

struct stat statusOf(const QString& path)
{
    struct stat status = {};
    ::stat(QFile::encodeName(path).constData(), &status);
    return status;
}

/// Until the file system's clock has moved on. `isTimeSetBack` leaves only the time of the change to tell.
void replaceContent(const QString& path, const QByteArray& content, bool isTimeSetBack)
{
    const struct stat before = statusOf(path);
    do {
        QTest::qSleep(5);
        writeContent(path, content);
        const timespec times[] = {before.st_atim, before.st_mtim};
        if (isTimeSetBack) {
            QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0), 0);
        }
    } while (statusOf(path).st_ctim.tv_nsec / 1000000 == before.st_ctim.tv_nsec / 1000000);
}

} // namespace

/// When libraries are saved, and where that is not possible.
class TestMaterialSaves : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void worksUnderUnusualPaths_data();
    void worksUnderUnusualPaths();
    void logsFailedSaves_data();
    void logsFailedSaves();
    void keepsTheFileWhenEncipheringFails();
    void readsWhereNothingCanBeWritten();
    void savesThroughSymbolicLinks();
    void leavesReadOnlyFilesAlone();
    void doesNotWaitForPipes();
    void savesOnce_data();
    void savesOnce();
    void keepsWhatWasDamagedMeanwhile_data();
    void keepsWhatWasDamagedMeanwhile();
    void keepsWhatAppearsAfterClearing();
    void keepsWhatCouldNotBeRemoved();

private:
    Manager& manager() { return m_fixture->manager(); }

    std::unique_ptr<MaterialFixture> m_fixture;
};

void TestMaterialSaves::init()
{
    m_fixture = std::make_unique<MaterialFixture>();
}

void TestMaterialSaves::cleanup()
{
    m_fixture.reset();
}

void TestMaterialSaves::worksUnderUnusualPaths_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << text(" a b ");
    QTest::newRow("placeholders") << text("%1 %2 %%");
    QTest::newRow("Chinese") << text("项目 一");
    QTest::newRow("outside the basic plane") << text("\xf0\x9f\x94\xa9");
    QTest::newRow("as long as a name may be") << QString(255, QLatin1Char('n'));
}

void TestMaterialSaves::worksUnderUnusualPaths()
{
    QFETCH(QString, name);
    const QString directory = m_fixture->projectDirectory() + QLatin1Char('/') + name;
    const QString path = directory + text("/MaterialLibrary.json");
    QVERIFY(QDir().mkpath(directory));
    BaseModule::GlobalHelper::setProjectTempIODir(directory);
    expectLine(text("Read project material library file fail, please check path: ") + path);
    manager().initProjectMaterial();
    m_fixture->createProject(text("a"));
    manager().initProjectMaterial();
    QCOMPARE(m_fixture->project(), text("1:a next 2"));
    writeContent(path, "damaged");
    expectRefusedCipherText();
    manager().initProjectMaterial();
    m_fixture->createProject(text("b"));
    QCOMPARE(contentOf(path + text(".unreadable")), QByteArray("damaged"));
    manager().clearProjectMaterial();
    QVERIFY(!QFile::exists(path));
    BaseModule::GlobalHelper::setProjectTempIODir(directory + text("/none"));
    expectLine(text("Write project material library file fail, please check path: %1/none/MaterialLibrary.json.")
                   .replace(text("%1"), directory));
    m_fixture->createProject(text("c"));
}

void TestMaterialSaves::logsFailedSaves_data()
{
    QTest::addColumn<bool>("isProject");
    QTest::newRow("software") << false;
    QTest::newRow("project") << true;
}

void TestMaterialSaves::logsFailedSaves()
{
    QFETCH(bool, isProject);
    const QString path = isProject ? m_fixture->projectPath() : m_fixture->softwarePath();
    const QString line = isProject ? text("Write project material library file fail, please check path: %1.")
                                   : text("Write software material library file fail, please check path: %1.");
    QVERIFY(QDir().mkpath(path));
    expectLine(line.arg(path));
    isProject ? m_fixture->createProject(text("a")) : m_fixture->createSoftware(text("a"));
    QCOMPARE(isProject ? m_fixture->project() : m_fixture->software(), text("1:a next 2"));
    QVERIFY(QDir().rmdir(path));
    isProject ? m_fixture->createProject(text("b")) : m_fixture->createSoftware(text("b"));
    QVERIFY(QFileInfo(path).isFile());
}

void TestMaterialSaves::keepsTheFileWhenEncipheringFails()
{
    m_fixture->createProject(text("a"));
    const QByteArray before = contentOf(m_fixture->projectPath());
    qputenv("DATAMANAGER_CIPHER_KEY_FILE", "/nonexistent/key");
    LogLines log;
    m_fixture->createProject(text("b"));
    QCOMPARE(
        log.take(),
        (QStringList{
            text("Encrypt text fail!"),
            text("Write project material library file fail, please check path: %1.").arg(m_fixture->projectPath())}));
    qunsetenv("DATAMANAGER_CIPHER_KEY_FILE");
    QCOMPARE(contentOf(m_fixture->projectPath()), before);
    QCOMPARE(m_fixture->project(), text("1:a 2:b next 3"));
}

void TestMaterialSaves::readsWhereNothingCanBeWritten()
{
    QTemporaryDir directory;
    const QString path = directory.filePath(text("MaterialLibrary.json"));
    manager().m_softwareLibPath = path;
    m_fixture->createSoftware(text("a"));
    const auto readOnly = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
    QVERIFY(QFile::setPermissions(path, readOnly));
    QVERIFY(QFile::setPermissions(directory.path(), readOnly));
    const auto restore = qScopeGuard([&] { QFile::setPermissions(directory.path(), readOnly | QFile::WriteOwner); });
    const Nobody nobody;
    QVERIFY(!QFileInfo(directory.path()).isWritable());
    manager().initSoftwareMaterial();
    QCOMPARE(m_fixture->software(), text("1:a next 2"));
    expectLine(text("Write software material library file fail, please check path: %1.").arg(path));
    m_fixture->createSoftware(text("b"));
    QCOMPARE(m_fixture->software(), text("1:a 2:b next 3"));
}

void TestMaterialSaves::savesThroughSymbolicLinks()
{
    const QString target = m_fixture->projectDirectory() + text("/elsewhere.json");
    QVERIFY(QFile::link(target, m_fixture->projectPath()));
    m_fixture->createProject(text("a"));
    m_fixture->createProject(text("b"));
    QVERIFY(QFileInfo(m_fixture->projectPath()).isSymLink());
    QCOMPARE(contentOf(m_fixture->projectPath()), contentOf(target));
    manager().initProjectMaterial();
    QCOMPARE(m_fixture->project(), text("1:a 2:b next 3"));
    QCOMPARE(QDir(m_fixture->projectDirectory()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void TestMaterialSaves::leavesReadOnlyFilesAlone()
{
    m_fixture->createProject(text("a"));
    const QByteArray before = contentOf(m_fixture->projectPath());
    const auto everything = QFile::Permissions(0x7777);
    QVERIFY(QFile::setPermissions(m_fixture->projectDirectory(), everything));
    QVERIFY(QFile::setPermissions(m_fixture->projectPath(), QFile::ReadOwner | QFile::ReadOther));
    QStringList lines;
    {
        const Nobody nobody;
        LogLines log;
        manager().initProjectMaterial();
        m_fixture->createProject(text("b"));
        lines = log.take();
    }
    QCOMPARE(
        lines,
        QStringList{
            text("Write project material library file fail, please check path: %1.").arg(m_fixture->projectPath())});
    QCOMPARE(m_fixture->project(), text("1:a 2:b next 3"));
    QCOMPARE(contentOf(m_fixture->projectPath()), before);
    QCOMPARE(QDir(m_fixture->projectDirectory()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

/// A pipe that nobody writes to would block whoever opens it.
void TestMaterialSaves::doesNotWaitForPipes()
{
    const QString path = m_fixture->projectPath();
    QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0666), 0);
    LogLines log;
    manager().initProjectMaterial();
    m_fixture->createProject(text("a"));
    QCOMPARE(log.take(),
             (QStringList{text("Read project material library file fail, please check path: ") + path,
                          text("Write project material library file fail, please check path: %1.").arg(path)}));
    QCOMPARE(m_fixture->project(), text("1:a next 2"));
    manager().clearProjectMaterial();
    QCOMPARE(log.take(), QStringList());
    QVERIFY(QDir(m_fixture->projectDirectory()).isEmpty());
}

void TestMaterialSaves::savesOnce_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("softwareSaves");
    QTest::addColumn<int>("projectSaves");
    const auto row = [](const char* name, const Change& change, int softwareSaves, int projectSaves) {
        QTest::newRow(name) << change << softwareSaves << projectSaves;
    };
    row(
        "create in project", [](Manager& m) { m.createProjectMat({}, text("x"), {}, {}, {}, {}, {}); }, 0, 1);
    row(
        "create in software", [](Manager& m) { m.createSoftwareMat({}, text("x"), {}, {}, {}, {}, {}); }, 1, 0);
    row(
        "update in project", [](Manager& m) { m.updateProjectMat(1, {}, text("x"), {}, {}, {}, {}, {}); }, 0, 1);
    row(
        "update in software", [](Manager& m) { m.updateSoftwareMat(1, {}, text("x"), {}, {}, {}, {}, {}); }, 1, 0);
    row(
        "tombstone in project", [](Manager& m) { m.deleteProjectMat(1); }, 0, 1);
    row(
        "tombstone in software", [](Manager& m) { m.deleteSoftwareMat(1); }, 1, 0);
    row(
        "trim in project", [](Manager& m) { m.deleteProjectMat(3); }, 0, 1);
    row(
        "trim in software", [](Manager& m) { m.deleteSoftwareMat(3); }, 1, 0);
    row(
        "import of many into project",
        [](Manager& m) {
            m.importMaterial(SoftwareLib, {1, 3, 1, 3});
        },
        0, 1);
    row(
        "import of many into software",
        [](Manager& m) {
            m.importMaterial(ProjectLib, {1, 3, 1, 3});
        },
        1, 0);
    row(
        "import of nothing", [](Manager& m) { m.importMaterial(SoftwareLib, {}); }, 0, 1);
    row(
        "import of all", [](Manager& m) { m.importAllMaterial(ProjectLib); }, 1, 0);
    row(
        "load", [](Manager& m) { m.initProjectMaterial(); }, 0, 0);
    row(
        "clear", [](Manager& m) { m.clearProjectMaterial(); }, 0, 0);
    row(
        "refused import",
        [](Manager& m) {
            m.importMaterial(SoftwareLib, {1, 99});
        },
        0, 0);
    row(
        "refused deletion", [](Manager& m) { m.deleteProjectMat(99); }, 0, 0);
    row(
        "refused update", [](Manager& m) { m.updateProjectMat(99, {}, text("x"), {}, {}, {}, {}, {}); }, 0, 0);
}

void TestMaterialSaves::savesOnce()
{
    QFETCH(Change, change);
    QFETCH(int, softwareSaves);
    QFETCH(int, projectSaves);
    for (const char* const name : {"a", "b", "c"}) {
        m_fixture->createSoftware(text(name));
        m_fixture->createProject(text(name));
    }
    DirectoryWatch software(QFileInfo(m_fixture->softwarePath()).path());
    DirectoryWatch project(m_fixture->projectDirectory());
    change(manager());
    QCOMPARE(software.take().count(text("moved MaterialLibrary.json")), softwareSaves);
    QCOMPARE(project.take().count(text("moved MaterialLibrary.json")), projectSaves);
}

void TestMaterialSaves::keepsWhatWasDamagedMeanwhile_data()
{
    QTest::addColumn<QByteArray>("beginning");
    QTest::addColumn<char>("end");
    QTest::addColumn<bool>("isCleared");
    QTest::addColumn<bool>("isTimeSetBack");
    const QByteArray library = R"({"materialList":[]})";
    QTest::newRow("saved") << QByteArray("x") << 'x' << false << false;
    QTest::newRow("saved, time set back") << QByteArray("x") << 'x' << false << true;
    QTest::newRow("saved, another object") << QByteArray(R"({"colour":"red"})") << ' ' << false << true;
    QTest::newRow("saved, letter behind the library") << library << 'x' << false << true;
    QTest::newRow("cleared") << QByteArray("x") << 'x' << true << false;
    QTest::newRow("cleared, time set back") << QByteArray("x") << 'x' << true << true;
    QTest::newRow("cleared, another object") << QByteArray(R"({"colour":"red"})") << ' ' << true << true;
    QTest::newRow("cleared, letter behind the library") << library << 'x' << true << true;
}

/// By another program after this one has saved it, without a change of its size.
void TestMaterialSaves::keepsWhatWasDamagedMeanwhile()
{
    QFETCH(QByteArray, beginning);
    QFETCH(char, end);
    QFETCH(bool, isCleared);
    QFETCH(bool, isTimeSetBack);
    GlobalConfig::setIsDevelop(true);
    m_fixture->createProject(text("a"));
    const QString path = m_fixture->projectPath();
    const QByteArray damaged = beginning.leftJustified(contentOf(path).size() - 1) + end;
    replaceContent(path, damaged, isTimeSetBack);
    isCleared ? manager().clearProjectMaterial() : m_fixture->createProject(text("b"));
    QCOMPARE(contentOf(path + text(".unreadable")), damaged);
    QCOMPARE(QFile::exists(path), !isCleared);
}

/// A library of somebody else, in place of the one that was known.
void TestMaterialSaves::keepsWhatAppearsAfterClearing()
{
    GlobalConfig::setIsDevelop(true);
    m_fixture->createProject(text("a"));
    manager().clearProjectMaterial();
    const QByteArray other = R"({"materialList":[{"id":1,"englishName":"theirs"}]})";
    writeContent(m_fixture->projectPath(), other);
    m_fixture->createProject(text("b"));
    QCOMPARE(contentOf(m_fixture->projectPath() + text(".unreadable")), other);
}

/// Memory does not hold it any more.
void TestMaterialSaves::keepsWhatCouldNotBeRemoved()
{
    m_fixture->createProject(text("a"));
    const QString path = m_fixture->projectPath();
    const QByteArray before = contentOf(path);
    const auto readable = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
    QVERIFY(QFile::setPermissions(m_fixture->projectDirectory(), readable));
    {
        const Nobody nobody;
        expectLine(text("Remove project material library file fail, please check path: %1.").arg(path));
        manager().clearProjectMaterial();
    }
    QVERIFY(QFile::setPermissions(m_fixture->projectDirectory(), readable | QFile::WriteOwner));
    QCOMPARE(contentOf(path), before);
    m_fixture->createProject(text("b"));
    QCOMPARE(contentOf(path + text(".unreadable")), before);
    QCOMPARE(m_fixture->project(), text("1:b next 2"));
}

QTEST_GUILESS_MAIN(TestMaterialSaves)
#include "tst_materialsaves.moc"
