// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "FileSizeLimit.h"
#include "ProjectContent.h"

#include <support/FilesAndLog.h>
#include <support/Nobody.h>
#include <workbench/file/ReplacementFile.h>
#include <workbench/project/ProjectArchive.h>
#include <workbench/project/Snapshot.h>

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <cstring>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using BaseModule::GlobalHelper;
using namespace Workbench;

namespace {

QString systemText(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

} // namespace

/// How the files of a project come into its archive and out of it.
class tst_ProjectArchive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_directory = std::make_unique<QTemporaryDir>(); }

    void replacesAFile();
    void replacementsExcludeEachOther();
    void abandonedReplacementsGo();
    void refusesWhatIsNoFile();
    void failedWritesAreNotCommitted();
    void keepsPermissions();
    void followsLinks();
    void plantedFilesStayAsTheyAre_data();
    void plantedFilesStayAsTheyAre();
    void savesOnOddSystems_data();
    void savesOnOddSystems();
    void snapshotKeepsWhatWas();
    void packsInBlocks();
    void packingGivesUp();
    void unpackingGivesUp();
    void foldersWithoutPermission();
    void archivesBeyondFourGigabytes();

private:
    QString path(const char* name) const { return m_directory->filePath(QString::fromLatin1(name)); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_ProjectArchive::replacesAFile()
{
    writeFile(path("file"), "old");
    ReplacementFile file(path("file"));
    QVERIFY(file.open());
    QCOMPARE(file.device().write("new content"), qint64(11));
    QCOMPARE(contentOf(path("file")), QByteArray("old"));
    QVERIFY(file.commit());
    QCOMPARE(contentOf(path("file")), QByteArray("new content"));
    QCOMPARE(namesIn(m_directory->path()), QStringList{QStringLiteral("file")});
    {
        ReplacementFile another(path("file"));
        QVERIFY(another.open());
        another.device().write("dropped");
    }
    QCOMPARE(contentOf(path("file")), QByteArray("new content"));
    QCOMPARE(namesIn(m_directory->path()), QStringList{QStringLiteral("file")});
}

void tst_ProjectArchive::replacementsExcludeEachOther()
{
    ReplacementFile first(path("file"));
    ReplacementFile second(path("file"));
    QVERIFY(first.open());
    QVERIFY(!second.open());
    QCOMPARE(second.problem(), systemText(EBUSY));
    first.device().write("first");
    QVERIFY(first.commit());
    QVERIFY(second.open());
    second.device().write("2");
    QVERIFY(second.commit());
    QCOMPARE(contentOf(path("file")), QByteArray("2"));
}

// What a killed process leaves is an unlocked file of that name.
void tst_ProjectArchive::abandonedReplacementsGo()
{
    QString abandoned;
    {
        ReplacementFile file(path("file"));
        QVERIFY(file.open());
        abandoned = m_directory->filePath(namesIn(m_directory->path()).value(0));
        ReplacementFile::removeAbandoned(path("file"));
        QVERIFY(QFileInfo::exists(abandoned)); // still in use
    }
    QVERIFY(!QFileInfo::exists(abandoned));
    writeFile(abandoned, "left behind, and longer than the new content");
    ReplacementFile file(path("file"));
    QVERIFY(file.open());
    file.device().write("new");
    QVERIFY(file.commit());
    QCOMPARE(contentOf(path("file")), QByteArray("new"));
    writeFile(abandoned, "again");
    ReplacementFile::removeAbandoned(path("file"));
    QVERIFY(!QFileInfo::exists(abandoned));
}

void tst_ProjectArchive::refusesWhatIsNoFile()
{
    ReplacementFile directory(m_directory->path());
    QVERIFY(!directory.open());
    QCOMPARE(directory.problem(), systemText(EISDIR));
    ReplacementFile device(QStringLiteral("/dev/null"));
    QVERIFY(!device.open());
    QCOMPARE(device.problem(), systemText(EINVAL));
    ReplacementFile nowhere(path("no/such/file"));
    QVERIFY(!nowhere.open());
    QCOMPARE(nowhere.problem(), systemText(ENOENT));
    ReplacementFile nameless((QString()));
    QVERIFY(!nameless.open());
    QCOMPARE(nameless.problem(), systemText(ENOENT));
    ReplacementFile broken(path("file") + QChar(QChar::Null));
    QVERIFY(!broken.open());
    QCOMPARE(broken.problem(), systemText(EINVAL));
    QCOMPARE(namesIn(m_directory->path()), QStringList());
}

// A part of the content fits, and later something small would again.
void tst_ProjectArchive::failedWritesAreNotCommitted()
{
    writeFile(path("file"), "old");
    {
        ReplacementFile file(path("file"));
        QVERIFY(file.open());
        {
            const FileSizeLimit limit(4096);
            QCOMPARE(file.device().write(QByteArray(5000, 'n')), qint64(-1));
        }
        QCOMPARE(file.device().write("n"), qint64(-1));
        QCOMPARE(file.problem(), systemText(EFBIG));
        QVERIFY(!file.commit());
        QCOMPARE(file.problem(), systemText(EFBIG));
    }
    QCOMPARE(contentOf(path("file")), QByteArray("old"));
    QCOMPARE(namesIn(m_directory->path()), QStringList{QStringLiteral("file")});
}

void tst_ProjectArchive::keepsPermissions()
{
    const QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    writeFile(path("file"), "secret");
    QVERIFY(QFile::setPermissions(path("file"), permissions));
    ReplacementFile file(path("file"));
    QVERIFY(file.open());
    const QStringList names = namesIn(m_directory->path());
    QCOMPARE(names.size(), 2);
    QCOMPARE(QFile::permissions(m_directory->filePath(names.first())), permissions);
    QVERIFY(file.commit());
    QCOMPARE(QFile::permissions(path("file")), permissions);
}

// Links that lead to links, at first to a file that does not exist yet.
void tst_ProjectArchive::followsLinks()
{
    QVERIFY(QFile::link(path("file"), path("last")));
    QVERIFY(QFile::link(path("last"), path("middle")));
    QVERIFY(QFile::link(QStringLiteral("middle"), path("first")));
    for (const char* const content : {"created", "replaced"}) {
        ReplacementFile file(path("first"));
        QVERIFY(file.open());
        file.device().write(content);
        QVERIFY(file.commit());
        QCOMPARE(contentOf(path("file")), QByteArray(content));
        for (const char* const link : {"first", "middle", "last"}) {
            QVERIFY(QFileInfo(path(link)).isSymLink());
        }
    }
    QVERIFY(QFile::link(path("circle"), path("circle")));
    ReplacementFile circle(path("circle"));
    QVERIFY(!circle.open());
    QCOMPARE(circle.problem(), systemText(ELOOP));
}

void tst_ProjectArchive::plantedFilesStayAsTheyAre_data()
{
    QTest::addColumn<QString>("kind");
    for (const char* const kind : {"a file with another name", "a pipe", "a file of another user"}) {
        QTest::newRow(kind) << text(kind);
    }
}

// Who lays a file where the new content goes must not get to read it.
void tst_ProjectArchive::plantedFilesStayAsTheyAre()
{
    QFETCH(QString, kind);
    ReplacementFile file(path("file"));
    QVERIFY(file.open());
    const QByteArray planted = QFile::encodeName(m_directory->filePath(namesIn(m_directory->path()).value(0)));
    QVERIFY(file.commit());
    const QByteArray theirs = QFile::encodeName(writeFile(path("theirs"), "theirs"));
    if (kind.endsWith(text("name"))) {
        QCOMPARE(::link(theirs.constData(), planted.constData()), 0);
    } else if (kind == text("a pipe")) {
        QCOMPARE(::mkfifo(planted.constData(), 0666), 0);
    } else if (::geteuid() == 0) {
        writeFile(QFile::decodeName(planted), "planted");
        QCOMPARE(::chown(planted.constData(), 65534, 65534), 0);
    } else {
        QSKIP("only root may give files away");
    }
    QVERIFY(QFile::remove(path("file")));
    QVERIFY(file.open());
    file.device().write("ours");
    QVERIFY(file.commit());
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(path("file")).constData(), &status), 0);
    QCOMPARE(status.st_uid, ::geteuid());
    QCOMPARE(contentOf(path("file")), QByteArray("ours"));
    QCOMPARE(contentOf(path("theirs")), QByteArray("theirs"));
    QCOMPARE(namesIn(m_directory->path()), (QStringList{text("file"), text("theirs")}));
}

void tst_ProjectArchive::savesOnOddSystems_data()
{
    QTest::addColumn<QString>("calls");
    QTest::addColumn<QString>("fault");
    QTest::newRow("signals interrupt") << text("write,flock") << text("error=EINTR:when=1+2");
    QTest::newRow("no locks") << text("flock") << text("error=ENOLCK");
}

// Has another of these tests run where system calls fail.
void tst_ProjectArchive::savesOnOddSystems()
{
    QFETCH(QString, calls);
    QFETCH(QString, fault);
    const QString strace = QStandardPaths::findExecutable(text("strace"));
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(text("ASAN_OPTIONS"), text("detect_leaks=0")); // cannot look for leaks while it is traced
    process.setProcessEnvironment(environment);
    const auto run = [&](const QStringList& options) {
        process.start(strace, QStringList{text("-f"), text("-y"), text("-o"), path("trace")} + options +
                                  QStringList{QCoreApplication::applicationFilePath(), text("followsLinks")});
        return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    };
    if (strace.isEmpty() || !run({})) {
        QSKIP("strace is not installed, or tracing is not permitted here");
    }
    QVERIFY2(run({text("-e"), text("trace=write,flock"), text("-e"), text("inject=%1:%2").arg(calls, fault)}),
             process.readAllStandardOutput().constData());
    const QString trace = text(contentOf(path("trace")));
    for (const QString& call : calls.split(QLatin1Char(','))) {
        const QRegularExpression injected(call + text("\\(\\d+<[^>]*\\.saving>.*INJECTED"));
        QVERIFY2(trace.contains(injected), qPrintable(trace));
    }
    // Without locks, and only then, the name tells the processes apart.
    QCOMPARE(trace.contains(text(".saving.")), calls == text("flock"));
}

void tst_ProjectArchive::snapshotKeepsWhatWas()
{
    writeFile(path("a"), "first");
    writeFile(path("b"), "second");
    QString snapshotPath;
    {
        const Snapshot snapshot(m_directory->path());
        QVERIFY(snapshot.isComplete());
        snapshotPath = snapshot.path();
        QVERIFY(GlobalHelper::writeFile(path("a"), "changed", QIODevice::WriteOnly | QIODevice::Truncate));
        QVERIFY(QFile::remove(path("b")));
        QCOMPARE(contentOf(snapshotPath + QStringLiteral("/a")), QByteArray("first"));
        QCOMPARE(contentOf(snapshotPath + QStringLiteral("/b")), QByteArray("second"));
    }
    QVERIFY(!QFileInfo::exists(snapshotPath));
    QCOMPARE(contentOf(path("a")), QByteArray("changed"));
    QVERIFY(!Snapshot(path("absent")).isComplete());
}

void tst_ProjectArchive::packsInBlocks()
{
    writeFile(path("large"), noise(5 << 20));
    QList<double> told;
    const auto note = [&told](double done) {
        told.append(done);
        return true;
    };
    const QStringList names{QStringLiteral("large")};
    QCOMPARE(ProjectArchive::pack(m_directory->path(), names, path("archive"), note), QString());
    QCOMPARE(told.size(), 5); // a megabyte each
    QCOMPARE(told.first(), 0.2);
    QCOMPARE(told.last(), 1.0);
    told.clear();
    QVERIFY(QDir(m_directory->path()).mkpath(QStringLiteral("out")));
    QCOMPARE(ProjectArchive::unpack(path("archive"), path("out"), note), QString());
    QCOMPARE(told.size(), 5);
    QCOMPARE(contentOf(path("out/large")), noise(5 << 20));
    // Others can read it, too.
    QCOMPARE(QProcess::execute(QStringLiteral("unzip"), {QStringLiteral("-tqq"), path("archive")}), 0);
}

void tst_ProjectArchive::packingGivesUp()
{
    writeFile(path("large"), noise(5 << 20));
    writeFile(path("archive"), "old");
    int asked = 0;
    const QString problem = ProjectArchive::pack(m_directory->path(), {QStringLiteral("large")}, path("archive"),
                                                 [&asked](double) { return ++asked < 3; });
    QVERIFY(!problem.isEmpty());
    QCOMPARE(asked, 3);
    QCOMPARE(contentOf(path("archive")), QByteArray("old"));
    QCOMPARE(namesIn(m_directory->path()), (QStringList{QStringLiteral("archive"), QStringLiteral("large")}));
    QVERIFY(!ProjectArchive::pack(m_directory->path(), {QStringLiteral("absent")}, path("archive")).isEmpty());
    QCOMPARE(contentOf(path("archive")), QByteArray("old"));
}

void tst_ProjectArchive::unpackingGivesUp()
{
    writeFile(path("large"), noise(5 << 20));
    QCOMPARE(ProjectArchive::pack(m_directory->path(), {QStringLiteral("large")}, path("archive")), QString());
    QVERIFY(QDir(m_directory->path()).mkpath(QStringLiteral("out")));
    const auto stop = [](double done) { return done < 0.5; };
    QVERIFY(!ProjectArchive::unpack(path("archive"), path("out"), stop).isEmpty());
    QVERIFY(QFileInfo(path("out/large")).size() < 5 << 20);
}

void tst_ProjectArchive::archivesBeyondFourGigabytes()
{
#ifndef DATAMANAGER_EXHAUSTIVE_TESTS
    QSKIP("takes minutes and nine gigabytes of disk");
#else
    const QTemporaryDir directory(QDir::currentPath() + QStringLiteral("/large"));
    const qint64 size = (Q_INT64_C(9) << 29) + 1; // 4.5 GB
    QFile file(directory.filePath(QStringLiteral("mesh.msh")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(size) && file.seek(size - 1) && file.putChar('x'));
    file.close();
    writeFile(directory.filePath(QStringLiteral("noise")), noise(1 << 20));
    const QString archive = directory.filePath(QStringLiteral("archive"));
    const QStringList names{QStringLiteral("mesh.msh"), QStringLiteral("noise")};
    QCOMPARE(ProjectArchive::pack(directory.path(), names, archive), QString());
    QVERIFY(QDir(directory.path()).mkpath(QStringLiteral("out")));
    QCOMPARE(ProjectArchive::unpack(archive, directory.filePath(QStringLiteral("out"))), QString());
    QCOMPARE(QFileInfo(directory.filePath(QStringLiteral("out/mesh.msh"))).size(), size);
    QCOMPARE(contentOf(directory.filePath(QStringLiteral("out/noise"))), noise(1 << 20));
#endif
}

void tst_ProjectArchive::foldersWithoutPermission()
{
    QVERIFY(QDir(m_directory->path()).mkpath(QStringLiteral("closed")));
    writeFile(path("file"), "x");
    QCOMPARE(ProjectArchive::pack(m_directory->path(), {QStringLiteral("file")}, path("closed/project.wbproj")),
             QString());
    const QByteArray before = contentOf(path("closed/project.wbproj"));
    QFile::setPermissions(m_directory->path(), QFile::Permissions(0x7755));
    QFile::setPermissions(path("closed"), QFile::Permissions(0x5555));
    QString problem;
    {
        const Nobody nobody;
        problem =
            ProjectArchive::pack(path("closed"), {QStringLiteral("project.wbproj")}, path("closed/project.wbproj"));
    }
    QFile::setPermissions(path("closed"), QFile::Permissions(0x7755));
    QFile::setPermissions(path("closed/project.wbproj"), QFile::ReadOwner);
    QString unreadable;
    {
        const Nobody nobody;
        QFile::setPermissions(path("closed/project.wbproj"), QFile::Permissions());
        unreadable = ProjectArchive::unpack(path("closed/project.wbproj"), path("closed"));
    }
    QVERIFY2(unreadable.contains(QStringLiteral("may not read")), qPrintable(unreadable));
    QFile::setPermissions(path("closed/project.wbproj"), QFile::ReadOwner | QFile::WriteOwner);
    QVERIFY2(problem.contains(systemText(EACCES)), qPrintable(problem));
    QCOMPARE(contentOf(path("closed/project.wbproj")), before);
}

QTEST_GUILESS_MAIN(tst_ProjectArchive)
#include "tst_projectarchive.moc"
