// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "KilledSave.h"
#include "OtherProcess.h"

#include <support/FilesAndLog.h>
#include <support/Nobody.h>

#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>
#include <sched.h>

using BaseModule::GlobalHelper;

namespace {

bool save(const QString& file, const QByteArray& content)
{
    return GlobalHelper::writeFile(file, content, replaceWhole);
}

QByteArray loaded(const QString& file)
{
    QByteArray content;
    return GlobalHelper::readFile(file, content) ? content : QByteArray("<cannot be read>");
}

struct stat statusOf(const QString& path)
{
    struct stat status = {};
    ::lstat(QFile::encodeName(path).constData(), &status);
    return status;
}

int permissionsOf(const QString& path)
{
    return int(statusOf(path).st_mode & 07777);
}

bool setPermissions(const QString& path, mode_t mode)
{
    return ::chmod(QFile::encodeName(path).constData(), mode) == 0;
}

bool giveAway(const QString& path, uid_t user, gid_t group)
{
    return ::chown(QFile::encodeName(path).constData(), user, group) == 0;
}

int openFiles()
{
    return entriesOf(QStringLiteral("/proc/self/fd")).size();
}

} // namespace

/// Saves beside other processes and users, and in processes whose own state is odd.
class TestSavingProcesses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void knowsAnAbandonedTemporaryUnderEverySpelling_data();
    void knowsAnAbandonedTemporaryUnderEverySpelling();
    void takesTurnsWithOtherProcesses();
    void savesInTheRootDirectory();
    void doesNotMindErrorsOfEarlierCalls();
    void worksWithoutStandardInput();
    void givesNewFilesTheUsualPermissions();
    void keepsTheUser();
    void replacesPlantedTemporaries_data();
    void replacesPlantedTemporaries();

private:
    QString path(const QString& name) const { return m_directory->filePath(name); }
    QString file() const { return path(text("file")); }
    QString temporary(const QString& name = text("file")) const { return path(temporaryOf(m_directory->path(), name)); }
    QStringList entries() const { return entriesOf(m_directory->path()); }

    QScopedPointer<QTemporaryDir> m_directory;
};

void TestSavingProcesses::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(m_directory->isValid());
    QVERIFY(save(file(), "old"));
}

void TestSavingProcesses::knowsAnAbandonedTemporaryUnderEverySpelling_data()
{
    QTest::addColumn<QString>("spelling");
    for (const char* const spelling : {"./file", "folder/../file", "/file", "link"}) {
        QTest::newRow(spelling) << text(spelling);
    }
    QTest::newRow("relative") << QString();
}

void TestSavingProcesses::knowsAnAbandonedTemporaryUnderEverySpelling()
{
    QFETCH(QString, spelling);
    QVERIFY(QDir(m_directory->path()).mkdir(text("folder")));
    QVERIFY(QFile::link(text("file"), path(text("link"))));
    const QStringList before = entries();
    QVERIFY(dieWhileWriting(file()));
    QCOMPARE(entries().size(), before.size() + 1);
    const QString current = QDir::currentPath();
    const auto back = qScopeGuard([&current] { QDir::setCurrent(current); });
    QVERIFY(QDir::setCurrent(m_directory->path()));
    const QString written = m_directory->path() + QLatin1Char('/') + spelling;
    QCOMPARE(loaded(spelling.isEmpty() ? text("file") : written), QByteArray("old"));
    QCOMPARE(entries(), before);
}

/// A second process waits for the first one and then for a third, which began a save before the second could.
void TestSavingProcesses::takesTurnsWithOtherProcesses()
{
    const QString temporary = this->temporary();
    LockedFile first(temporary);
    QVERIFY(first.isLocked());
    OtherProcess second([this] {
        const int before = openFiles();
        return save(file(), "of the second") && openFiles() == before ? 0 : 1;
    });
    QTRY_VERIFY(second.hasOpened(first, 1));
    QVERIFY(first.finish("of the first", file()));
    LockedFile third(temporary);
    QVERIFY(third.isLocked());
    first.unlock();
    QTRY_VERIFY(second.hasOpened(third, 0));
    QVERIFY(third.isAt(temporary));
    QCOMPARE(contentOf(file()), QByteArray("of the first"));
    QVERIFY(third.finish("of the third", file()));
    third.unlock();
    QCOMPARE(second.answer(), 0);
    QCOMPARE(contentOf(file()), QByteArray("of the second"));
    QCOMPARE(entries(), QStringList{text("file")});
}

/// The working directory does not matter to it, even one that does not exist any more.
void TestSavingProcesses::savesInTheRootDirectory()
{
    constexpr int notPermitted = 2;
    OtherProcess process([this] {
        const QByteArray root = QFile::encodeName(m_directory->path());
        const QByteArray gone = root + "/gone";
        if ((::geteuid() != 0 && ::unshare(CLONE_NEWUSER) != 0) || ::mkdir(gone.constData(), 0700) != 0 ||
            ::chdir(gone.constData()) != 0 || ::chroot(root.constData()) != 0 || ::rmdir("/gone") != 0) {
            return notPermitted;
        }
        return save(text("/file"), "new") && loaded(text("/file")) == "new" ? 0 : 1;
    });
    const int answer = process.answer();
    if (answer == notPermitted) {
        QSKIP("a process may not change its root directory here");
    }
    QCOMPARE(answer, 0);
    QCOMPARE(contentOf(file()), QByteArray("new"));
    QCOMPARE(entries(), QStringList{text("file")});
}

void TestSavingProcesses::doesNotMindErrorsOfEarlierCalls()
{
    for (const int error : {EINTR, EWOULDBLOCK, ENOLCK}) {
        QVERIFY(dieWhileWriting(file()));
        errno = error;
        QVERIFY(save(file(), "new"));
        QVERIFY(dieWhileWriting(file()));
        errno = error;
        QCOMPARE(loaded(file()), QByteArray("new"));
        QCOMPARE(entries(), QStringList{text("file")});
    }
}

/// The first file that such a process opens gets the number 0.
void TestSavingProcesses::worksWithoutStandardInput()
{
    QVERIFY(dieWhileWriting(file()));
    OtherProcess reading([this] {
        ::close(0);
        return loaded(file()) == "old" && entries() == QStringList{text("file")} ? 0 : 1;
    });
    QCOMPARE(reading.answer(), 0);
    OtherProcess saving([this] {
        ::close(0);
        return save(file(), "new") ? 0 : 1;
    });
    QCOMPARE(saving.answer(), 0);
    QCOMPARE(contentOf(file()), QByteArray("new"));
}

void TestSavingProcesses::givesNewFilesTheUsualPermissions()
{
    const QByteArray usual = QFile::encodeName(path(text("usual")));
    const int descriptor = ::open(usual.constData(), O_WRONLY | O_CREAT, 0666);
    QVERIFY(descriptor >= 0);
    ::close(descriptor);
    QCOMPARE(permissionsOf(file()), permissionsOf(path(text("usual"))));
}

/// Of a file that another user has, but the same group.
void TestSavingProcesses::keepsTheUser()
{
    if (::geteuid() != 0) {
        QSKIP("only root may give files away");
    }
    QVERIFY(giveAway(file(), 65534, 0));
    QVERIFY(setPermissions(file(), 07751));
    QVERIFY(save(file(), "new"));
    QCOMPARE(contentOf(file()), QByteArray("new"));
    QCOMPARE(statusOf(file()).st_uid, uid_t(65534));
    QCOMPARE(statusOf(file()).st_gid, gid_t(0));
    QCOMPARE(permissionsOf(file()), 07751);
}

void TestSavingProcesses::replacesPlantedTemporaries_data()
{
    QTest::addColumn<bool>("isPipe");
    QTest::newRow("a pipe") << true;
    QTest::newRow("a file of another user") << false;
}

void TestSavingProcesses::replacesPlantedTemporaries()
{
    QFETCH(bool, isPipe);
    const QString planted = temporary();
    if (isPipe) {
        QVERIFY(QFile::remove(planted));
        QCOMPARE(::mkfifo(QFile::encodeName(planted).constData(), 0666), 0);
    } else if (!giveAway(planted, 65534, 65534)) {
        QSKIP("only root may give files away");
    }
    QVERIFY(QFile::remove(file()));
    const int before = openFiles();
    QVERIFY(save(file(), "new"));
    QCOMPARE(openFiles(), before);
    QCOMPARE(contentOf(file()), QByteArray("new"));
    QCOMPARE(statusOf(file()).st_uid, ::geteuid());
    QCOMPARE(entries(), QStringList{text("file")});
}

QTEST_GUILESS_MAIN(TestSavingProcesses)
#include "tst_savingprocesses.moc"
