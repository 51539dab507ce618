// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "FileSizeLimit.h"
#include "Samples.h"

#include <support/FilesAndLog.h>
#include <workbench/file/FileCopy.h>
#include <workbench/mesh/MeshLoader.h>

#include <QTemporaryDir>

#include <algorithm>
#include <memory>

using namespace Workbench;

namespace {

QByteArray severalPieces()
{
    return QByteArray((5 << 20) / 2, 'x') + "end";
}

FileCopy copied(const QString& from, const QString& target, const CopyProgress& progress)
{
    QFile source(from);
    source.open(QIODevice::ReadOnly);
    return replaceByCopy(source, target, progress);
}

} // namespace

/// How a mesh comes into the project and to the predictor.
class tst_MeshLoader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void copiesInPieces();
    void givenUpCopyLeavesWhatWas();
    void failedCopyLeavesWhatWas();
    void copiesAndReads();
    void givesUpCopying_data();
    void givesUpCopying();
    void givesUpTheOtherCopy();
    void readsWithoutTheOtherCopy();
    void unreadableFileIsRemoved();
    void projectsFileStays();
    void cancelledAtTheEndLeavesNoCopy();
    void copyKeepsTheSourcePrivate();

private:
    QString path(const char* name) const { return m_directory->filePath(QString::fromLatin1(name)); }
    QStringList files() const { return QDir(m_directory->path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    MeshLoader::Job job() const { return {samplePath("slivers.msh"), path("copy.msh"), path("other.msh")}; }
    KernelReading read(const MeshLoader::Job& job, const KernelProgress& progress) const
    {
        return MeshLoader::read({job}, progress).constLast();
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_MeshLoader::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
}

void tst_MeshLoader::copiesInPieces()
{
    writeContent(path("source"), severalPieces());
    writeContent(path("target"), "before");
    QVector<double> told;
    const FileCopy copy = copied(path("source"), path("target"), [&](double done) {
        told.append(done);
        return contentOf(path("target")) == QByteArray("before");
    });
    QVERIFY(copy.isDone && !copy.isGivenUp);
    QCOMPARE(contentOf(path("target")), severalPieces());
    QCOMPARE(files(), QStringList({text("source"), text("target")}));
    QVERIFY(told.size() > 2 && told.first() < 0.5);
    QVERIFY(std::is_sorted(told.begin(), told.end()));
    QCOMPARE(told.last(), 1.0);
    // Also to a place where there is nothing.
    QVERIFY(copied(path("source"), path("new"), [](double) { return true; }).isDone);
    QCOMPARE(contentOf(path("new")), severalPieces());
}

void tst_MeshLoader::givenUpCopyLeavesWhatWas()
{
    writeContent(path("source"), severalPieces());
    writeContent(path("target"), "before");
    for (const double last : {0.0, 0.9}) {
        const FileCopy copy = copied(path("source"), path("target"), [last](double done) { return done <= last; });
        QVERIFY(copy.isGivenUp && !copy.isDone);
        QCOMPARE(contentOf(path("target")), QByteArray("before"));
        QCOMPARE(files(), QStringList({text("source"), text("target")}));
    }
}

void tst_MeshLoader::failedCopyLeavesWhatWas()
{
    writeContent(path("source"), severalPieces());
    writeContent(path("target"), "before");
    const auto goOn = [](double) { return true; };
    const FileSizeLimit limit(3 << 19);
    const FileCopy copy = copied(path("source"), path("target"), goOn);
    QVERIFY(!copy.isDone && !copy.isGivenUp && !copy.problem.isEmpty());
    QCOMPARE(contentOf(path("target")), QByteArray("before"));
    QCOMPARE(files(), QStringList({text("source"), text("target")}));
    // A directory is no file that could be replaced.
    QVERIFY(!copied(path("source"), m_directory->path(), goOn).problem.isEmpty());
}

void tst_MeshLoader::copiesAndReads()
{
    QVector<double> told;
    const KernelReading reading = read(job(), [&told](double done) {
        told.append(done);
        return true;
    });
    QVERIFY(reading.mesh && !reading.isCancelled);
    const QByteArray content = contentOf(samplePath("slivers.msh"));
    QCOMPARE(contentOf(path("copy.msh")), content);
    QCOMPARE(contentOf(path("other.msh")), content);
    QCOMPARE(files(), QStringList({text("copy.msh"), text("other.msh")}));
    QVERIFY(std::is_sorted(told.begin(), told.end()));
    QCOMPARE(told.last(), 1.0);
    QVERIFY(told.first() <= 0.1);
}

void tst_MeshLoader::givesUpCopying_data()
{
    QTest::addColumn<bool>("isReplaced");
    QTest::newRow("a new file") << false;
    QTest::newRow("a file that is there") << true;
}

void tst_MeshLoader::givesUpCopying()
{
    QFETCH(bool, isReplaced);
    writeContent(path("other.msh"), "before");
    if (isReplaced) {
        writeContent(path("copy.msh"), "before");
    }
    const KernelReading reading = read(job(), [](double) { return false; });
    QVERIFY(!reading.mesh && reading.isCancelled && reading.problem.isEmpty());
    QCOMPARE(contentOf(path("other.msh")), QByteArray("before"));
    QCOMPARE(contentOf(path("copy.msh")), isReplaced ? QByteArray("before") : QByteArray());
}

// The mesh is read already, and something lies beside the other copy's place.
void tst_MeshLoader::givesUpTheOtherCopy()
{
    writeContent(path("other.msh"), "before");
    bool isBegun = false;
    const KernelReading reading = read(job(), [this, &isBegun](double) {
        isBegun = files().size() == 3;
        return !isBegun;
    });
    QVERIFY(isBegun);
    QVERIFY(!reading.mesh && reading.isCancelled);
    QCOMPARE(contentOf(path("other.msh")), QByteArray("before"));
    QCOMPARE(files(), QStringList(text("other.msh")));
}

void tst_MeshLoader::readsWithoutTheOtherCopy()
{
    QVERIFY(QDir().mkpath(path("other.msh/inside")));
    const KernelReading reading = read(job(), [](double) { return true; });
    QVERIFY(reading.mesh && !reading.isCancelled);
    QCOMPARE(files(), QStringList(text("copy.msh")));
}

void tst_MeshLoader::unreadableFileIsRemoved()
{
    writeContent(path("bad.msh"), "no mesh");
    writeContent(path("other.msh"), "before");
    const KernelReading reading =
        read({path("bad.msh"), path("copy.msh"), path("other.msh")}, [](double) { return true; });
    QVERIFY(!reading.mesh && !reading.isCancelled && !reading.problem.isEmpty());
    QCOMPARE(files(), QStringList({text("bad.msh"), text("other.msh")}));
    QCOMPARE(contentOf(path("other.msh")), QByteArray("before"));
}

// A mesh of the project that is given up is still the project's.
void tst_MeshLoader::projectsFileStays()
{
    QVERIFY(QFile::copy(samplePath("slivers.msh"), path("copy.msh")));
    MeshLoader::Job own = job();
    own.source = own.copy;
    QVERIFY(read(own, [](double) { return false; }).isCancelled);
    QCOMPARE(files(), QStringList(text("copy.msh")));
    QVERIFY(read(own, [](double) { return true; }).mesh);
    QCOMPARE(files(), QStringList({text("copy.msh"), text("other.msh")}));
}

/// All is done, but nobody was told.
void tst_MeshLoader::cancelledAtTheEndLeavesNoCopy()
{
    MeshLoader loader;
    QVector<KernelReading> told;
    loader.start({job()}, [&told](const QVector<KernelReading>& readings) { told = readings; });
    // No events meanwhile; the other copy comes last.
    for (int i = 0; i < 2000 && !files().contains(QStringLiteral("other.msh")); ++i) {
        QTest::qSleep(5);
    }
    QTest::qSleep(200);
    QCOMPARE(files(), (QStringList{QStringLiteral("copy.msh"), QStringLiteral("other.msh")}));
    loader.cancel();
    QTRY_COMPARE(told.size(), 1);
    QVERIFY(told.first().isCancelled && !told.first().mesh);
    QCOMPARE(files(), QStringList{QStringLiteral("other.msh")});
}

void tst_MeshLoader::copyKeepsTheSourcePrivate()
{
    const auto permissions = [this](const char* name) {
        return QFile::permissions(path(name)) & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser);
    };
    writeContent(path("source"), "private");
    writeContent(path("target"), "before");
    QVERIFY(QFile::setPermissions(path("source"), QFile::ReadOwner));
    QVERIFY(QFile::setPermissions(path("target"), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
    for (const char* const target : {"target", "new"}) {
        QVERIFY(copied(path("source"), path(target), [](double) { return true; }).isDone);
        QCOMPARE(contentOf(path(target)), QByteArray("private"));
        QCOMPARE(permissions(target), QFile::ReadOwner | QFile::WriteOwner);
    }
}

QTEST_GUILESS_MAIN(tst_MeshLoader)
#include "tst_meshloader.moc"
