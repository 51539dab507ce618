// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "ProjectContent.h"

#include <support/FilesAndLog.h>
#include <support/Nobody.h>
#include <workbench/project/ProjectArchive.h>
#include <workbench/project/ReplacementFile.h>
#include <workbench/project/Snapshot.h>

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <cstring>
#include <memory>

using BaseModule::GlobalHelper;
using namespace Workbench;

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
    void keepsPermissions();
    void followsALink();
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
    QCOMPARE(second.problem(), QString::fromLocal8Bit(std::strerror(EBUSY)));
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
    QCOMPARE(directory.problem(), QString::fromLocal8Bit(std::strerror(EISDIR)));
    ReplacementFile device(QStringLiteral("/dev/null"));
    QVERIFY(!device.open());
    ReplacementFile nowhere(path("no/such/file"));
    QVERIFY(!nowhere.open());
    QCOMPARE(nowhere.problem(), QString::fromLocal8Bit(std::strerror(ENOENT)));
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

void tst_ProjectArchive::followsALink()
{
    writeFile(path("file"), "old");
    QVERIFY(QFile::link(path("file"), path("link")));
    ReplacementFile file(path("link"));
    QVERIFY(file.open());
    file.device().write("new");
    QVERIFY(file.commit());
    QVERIFY(QFileInfo(path("link")).isSymLink());
    QCOMPARE(contentOf(path("file")), QByteArray("new"));
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
    QVERIFY2(problem.contains(QString::fromLocal8Bit(std::strerror(EACCES))), qPrintable(problem));
    QCOMPARE(contentOf(path("closed/project.wbproj")), before);
}

QTEST_GUILESS_MAIN(tst_ProjectArchive)
#include "tst_projectarchive.moc"
