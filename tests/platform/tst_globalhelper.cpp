// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "KilledSave.h"

#include <basemodule/GlobalConfig.h>
#include <basemodule/GlobalHelper.h>

#include <support/Nobody.h>

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

using BaseModule::GlobalHelper;

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<cannot be read>");
}

QByteArray everyByte()
{
    QByteArray bytes;
    for (int i = 0; i < 256; ++i) {
        bytes.append(char(i));
    }
    return bytes;
}

} // namespace

class tst_GlobalHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theFlagValueOfEveryCallerIsTen();
    void writesAndReadsBack_data();
    void writesAndReadsBack();
    void replacesALongerFile();
    void appendsInAppendMode();
    void appendingFails();
    void refusesWhatMayNotBeRead();
    void keepsThePermissionsOfTheOldFile();
    void writesThroughASymbolicLink();
    void writesThroughALinkToNothing();
    void refusesWhatIsNoRegularFile_data();
    void refusesWhatIsNoRegularFile();
    void keepsTheOldFileWhenTheDiskIsFull_data();
    void keepsTheOldFileWhenTheDiskIsFull();
    void leavesNothingBesideTheTarget();
    void anAbandonedTemporaryIsRemoved();
    void readingLeavesWhatIsBeingWritten();
    void readFailureLeavesTheArgument();
    void givesUpOnASaveThatHangs();
    void aPrivateFileStaysPrivateWhileItIsWritten();
    void refusesToFillAPlantedTemporary();
    void givesOneOfSeveralHardLinksItsOwnContent();
    void oddPaths_data();
    void oddPaths();
    void projectDirectory();
    void developmentConfiguration();

private:
    QString temporary() const { return path(temporaryOf(m_directory->path(), QStringLiteral("file"))); }
    QString path(const QString& name) const { return m_directory->filePath(name); }
    QStringList entries() const { return entriesOf(m_directory->path()); }

    QScopedPointer<QTemporaryDir> m_directory;
};

void tst_GlobalHelper::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(m_directory->isValid());
}

void tst_GlobalHelper::theFlagValueOfEveryCallerIsTen()
{
    QCOMPARE(int(replaceWhole), 10);
}

void tst_GlobalHelper::writesAndReadsBack_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("one byte") << QByteArray("x");
    QTest::newRow("every byte value") << everyByte();
    QTest::newRow("16385 bytes") << QByteArray(16385, 'y');
    QTest::newRow("5 MB") << QByteArray(5000000, 'z');
}

void tst_GlobalHelper::writesAndReadsBack()
{
    QFETCH(QByteArray, content);
    QVERIFY(GlobalHelper::writeFile(path(QStringLiteral("file")), content, replaceWhole));
    QByteArray read("before");
    QVERIFY(GlobalHelper::readFile(path(QStringLiteral("file")), read));
    QCOMPARE(read, content);
}

void tst_GlobalHelper::replacesALongerFile()
{
    const QString file = path(QStringLiteral("file"));
    QVERIFY(GlobalHelper::writeFile(file, QByteArray(1000, 'a'), replaceWhole));
    QVERIFY(GlobalHelper::writeFile(file, "short", replaceWhole));
    QCOMPARE(contentOf(file), QByteArray("short"));
}

void tst_GlobalHelper::appendsInAppendMode()
{
    const QString file = path(QStringLiteral("file"));
    QVERIFY(GlobalHelper::writeFile(file, "one,", replaceWhole));
    QVERIFY(GlobalHelper::writeFile(file, "two", QIODevice::WriteOnly | QIODevice::Append));
    QCOMPARE(contentOf(file), QByteArray("one,two"));
}

void tst_GlobalHelper::appendingFails()
{
    const QString file = path(QStringLiteral("file"));
    QVERIFY(GlobalHelper::writeFile(file, QByteArray(4096, 'o'), replaceWhole));
    const auto append = QIODevice::WriteOnly | QIODevice::Append;
    QVERIFY(!GlobalHelper::writeFile(m_directory->path(), "new", append));
    ::signal(SIGXFSZ, SIG_IGN);
    struct rlimit before = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
    struct rlimit small = before;
    small.rlim_cur = 4096;
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const bool isWritten = GlobalHelper::writeFile(file, "new", append);
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &before), 0);
    QVERIFY(!isWritten);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("ReadOnly device")));
    QVERIFY(!GlobalHelper::writeFile(file, "new", QIODevice::ReadOnly));
    QCOMPARE(contentOf(file), QByteArray(4096, 'o'));
}

void tst_GlobalHelper::refusesWhatMayNotBeRead()
{
    const QString file = path(QStringLiteral("file"));
    QVERIFY(GlobalHelper::writeFile(file, "old", replaceWhole));
    QVERIFY(QFile::setPermissions(m_directory->path(), QFile::Permissions(0x7777)));
    QVERIFY(QFile::setPermissions(file, QFile::Permissions()));
    const Nobody nobody;
    QByteArray read("before");
    QVERIFY(!GlobalHelper::readFile(file, read));
    QCOMPARE(read, QByteArray("before"));
}

void tst_GlobalHelper::keepsThePermissionsOfTheOldFile()
{
    const QString file = path(QStringLiteral("file"));
    QVERIFY(GlobalHelper::writeFile(file, "old", replaceWhole));
    QCOMPARE(::chmod(QFile::encodeName(file).constData(), 0640), 0);
    QVERIFY(GlobalHelper::writeFile(file, "new", replaceWhole));
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(file).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), 0640);
}

void tst_GlobalHelper::writesThroughASymbolicLink()
{
    QVERIFY(QDir(m_directory->path()).mkdir(QStringLiteral("elsewhere")));
    const QString target = path(QStringLiteral("elsewhere/target"));
    const QString link = path(QStringLiteral("link"));
    QVERIFY(GlobalHelper::writeFile(target, "old", replaceWhole));
    QVERIFY(QFile::link(QStringLiteral("elsewhere/target"), link));
    QVERIFY(GlobalHelper::writeFile(link, "new", replaceWhole));
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(contentOf(target), QByteArray("new"));
}

void tst_GlobalHelper::writesThroughALinkToNothing()
{
    const QString link = path(QStringLiteral("link"));
    QVERIFY(QFile::link(QStringLiteral("absent"), link));
    QVERIFY(GlobalHelper::writeFile(link, "new", replaceWhole));
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(contentOf(path(QStringLiteral("absent"))), QByteArray("new"));
}

void tst_GlobalHelper::refusesWhatIsNoRegularFile_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("empty path") << QString();
    QTest::newRow("directory") << QStringLiteral("folder");
    QTest::newRow("directory with separator") << QStringLiteral("folder/");
    QTest::newRow("FIFO") << QStringLiteral("pipe");
    QTest::newRow("missing directory") << QStringLiteral("absent/file");
    QTest::newRow("link to itself") << QStringLiteral("loop");
    QTest::newRow("a file as directory") << QStringLiteral("plain/file");
    QTest::newRow("device") << QStringLiteral("device");
    QTest::newRow("NUL in the name") << QString(QStringLiteral("plain") + QChar(0) + QStringLiteral("b"));
}

void tst_GlobalHelper::refusesWhatIsNoRegularFile()
{
    QFETCH(QString, target);
    QVERIFY(QDir(m_directory->path()).mkdir(QStringLiteral("folder")));
    QCOMPARE(::mkfifo(QFile::encodeName(path(QStringLiteral("pipe"))).constData(), 0600), 0);
    QVERIFY(QFile::link(QStringLiteral("loop"), path(QStringLiteral("loop"))));
    // Not one of the system's, which a defect would replace.
    if (target == QLatin1String("device") &&
        ::mknod(QFile::encodeName(path(target)).constData(), S_IFCHR | 0600, makedev(1, 3)) != 0) {
        QSKIP("only root may make a device");
    }
    QVERIFY(GlobalHelper::writeFile(path(QStringLiteral("plain")), "content", replaceWhole));
    const QStringList before = entries();
    const QString file = target.isEmpty() ? target : path(target);

    QVERIFY(!GlobalHelper::writeFile(file, "new", replaceWhole));
    QByteArray read("before");
    QVERIFY(!GlobalHelper::readFile(file, read));
    QCOMPARE(read, QByteArray("before"));
    QCOMPARE(entries(), before);
    QCOMPARE(contentOf(path(QStringLiteral("plain"))), QByteArray("content"));
}

void tst_GlobalHelper::keepsTheOldFileWhenTheDiskIsFull_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("one byte too many") << 8193;
    QTest::newRow("16384") << 16384;
    QTest::newRow("16385") << 16385;
    QTest::newRow("1 MB") << 1000000;
}

// The file-size limit of the process stands for a full disk: a write beyond it fails in the middle, too.
void tst_GlobalHelper::keepsTheOldFileWhenTheDiskIsFull()
{
    QFETCH(int, size);
    const QString file = path(QStringLiteral("file"));
    QVERIFY(GlobalHelper::writeFile(file, "old", replaceWhole));
    ::signal(SIGXFSZ, SIG_IGN);
    struct rlimit before = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
    struct rlimit small = before;
    small.rlim_cur = 8192;
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const bool isWritten = GlobalHelper::writeFile(file, QByteArray(size, 'n'), replaceWhole);
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &before), 0);
    QVERIFY(!isWritten);
    QCOMPARE(contentOf(file), QByteArray("old"));
    QCOMPARE(entries(), QStringList{QStringLiteral("file")});
}

void tst_GlobalHelper::leavesNothingBesideTheTarget()
{
    QVERIFY(GlobalHelper::writeFile(path(QStringLiteral("file")), "one", replaceWhole));
    QVERIFY(GlobalHelper::writeFile(path(QStringLiteral("file")), "two", replaceWhole));
    QCOMPARE(entries(), QStringList{QStringLiteral("file")});
}

void tst_GlobalHelper::anAbandonedTemporaryIsRemoved()
{
    const QString file = path(QStringLiteral("file"));
    QVERIFY(GlobalHelper::writeFile(file, "old", replaceWhole));
    QVERIFY(dieWhileWriting(file));
    QCOMPARE(entries().size(), 2);
    QByteArray read;
    QVERIFY(GlobalHelper::readFile(file, read));
    QCOMPARE(read, QByteArray("old"));
    QCOMPARE(entries(), QStringList{QStringLiteral("file")});

    QVERIFY(dieWhileWriting(file));
    QVERIFY(GlobalHelper::writeFile(file, "new", replaceWhole));
    QCOMPARE(contentOf(file), QByteArray("new"));
    QCOMPARE(entries(), QStringList{QStringLiteral("file")});
}

void tst_GlobalHelper::readingLeavesWhatIsBeingWritten()
{
    const QString file = path(QStringLiteral("file"));
    QVERIFY(GlobalHelper::writeFile(file, "old", replaceWhole));
    QVERIFY(dieWhileWriting(file));
    const QStringList both = entries();
    QCOMPARE(both.size(), 2);
    const QString temporary = both.at(0) == QLatin1String("file") ? both.at(1) : both.at(0);
    const int descriptor = ::open(QFile::encodeName(path(temporary)).constData(), O_RDWR);
    QCOMPARE(::flock(descriptor, LOCK_EX), 0);
    QByteArray read;
    QVERIFY(GlobalHelper::readFile(file, read));
    QCOMPARE(entries(), both);
    ::close(descriptor);
    QVERIFY(GlobalHelper::readFile(file, read));
    QCOMPARE(entries(), QStringList{QStringLiteral("file")});
}

void tst_GlobalHelper::readFailureLeavesTheArgument()
{
    QByteArray read("before");
    QVERIFY(!GlobalHelper::readFile(path(QStringLiteral("absent")), read));
    QCOMPARE(read, QByteArray("before"));
}

void tst_GlobalHelper::givesUpOnASaveThatHangs()
{
    const QString file = path(QStringLiteral("file"));
    QVERIFY(GlobalHelper::writeFile(file, "old", replaceWhole));
    const QString temporary = this->temporary();
    const int descriptor = ::open(QFile::encodeName(temporary).constData(), O_RDWR);
    QCOMPARE(::flock(descriptor, LOCK_EX), 0);
    QVERIFY(!GlobalHelper::writeFile(file, "new", replaceWhole));
    QCOMPARE(contentOf(file), QByteArray("old"));
    ::close(descriptor);
    QVERIFY(GlobalHelper::writeFile(file, "new", replaceWhole));
    QCOMPARE(contentOf(file), QByteArray("new"));
}

void tst_GlobalHelper::aPrivateFileStaysPrivateWhileItIsWritten()
{
    const QString file = path(QStringLiteral("file"));
    QVERIFY(GlobalHelper::writeFile(file, "old", replaceWhole));
    QCOMPARE(::chmod(QFile::encodeName(file).constData(), 0600), 0);
    const QString temporary = this->temporary();
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(temporary).constData(), &status), 0);
    QVERIFY(status.st_size > 0);
    QCOMPARE(int(status.st_mode & 07777), 0600);
}

void tst_GlobalHelper::refusesToFillAPlantedTemporary()
{
    const QString file = path(QStringLiteral("file"));
    const QString victim = path(QStringLiteral("victim"));
    QVERIFY(GlobalHelper::writeFile(file, "old", replaceWhole));
    QVERIFY(GlobalHelper::writeFile(victim, "precious", replaceWhole));
    const QString temporary = this->temporary();
    QVERIFY(QFile::remove(temporary));

    QCOMPARE(::link(QFile::encodeName(victim).constData(), QFile::encodeName(temporary).constData()), 0);
    QVERIFY(GlobalHelper::writeFile(file, "new", replaceWhole));
    QCOMPARE(contentOf(file), QByteArray("new"));
    QCOMPARE(contentOf(victim), QByteArray("precious"));

    QVERIFY(QFile::link(victim, temporary));
    QVERIFY(!GlobalHelper::writeFile(file, "newer", replaceWhole));
    QCOMPARE(contentOf(file), QByteArray("new"));
    QCOMPARE(contentOf(victim), QByteArray("precious"));
}

void tst_GlobalHelper::givesOneOfSeveralHardLinksItsOwnContent()
{
    const QString one = path(QStringLiteral("one"));
    const QString other = path(QStringLiteral("other"));
    QVERIFY(GlobalHelper::writeFile(one, "old", replaceWhole));
    QCOMPARE(::link(QFile::encodeName(one).constData(), QFile::encodeName(other).constData()), 0);
    QVERIFY(GlobalHelper::writeFile(one, "new", replaceWhole));
    QCOMPARE(contentOf(one), QByteArray("new"));
    QCOMPARE(contentOf(other), QByteArray("old"));
}

void tst_GlobalHelper::oddPaths_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isPossible");
    QTest::newRow("spaces") << QStringLiteral("a b  c ") << true;
    QTest::newRow("placeholder") << QStringLiteral("%1 %2") << true;
    QTest::newRow("not ASCII") << QString::fromUtf8("\u6750\u6599 \u00e4\u00f6\u00fc") << true;
    QTest::newRow("newline") << QStringLiteral("a\nb") << true;
    QTest::newRow("longest name") << QString(255, QLatin1Char('n')) << true;
    QTest::newRow("name too long") << QString(256, QLatin1Char('n')) << false;
    QTest::newRow("4000 characters") << QString(4000, QLatin1Char('n')) << false;
}

void tst_GlobalHelper::oddPaths()
{
    QFETCH(QString, name);
    QFETCH(bool, isPossible);
    QCOMPARE(GlobalHelper::writeFile(path(name), "content", replaceWhole), isPossible);
    QByteArray read;
    QCOMPARE(GlobalHelper::readFile(path(name), read), isPossible);
    QCOMPARE(read, isPossible ? QByteArray("content") : QByteArray());
    QCOMPARE(entries().size(), isPossible ? 1 : 0);
}

void tst_GlobalHelper::projectDirectory()
{
    const QString standard = QCoreApplication::applicationDirPath() + QStringLiteral("/../temp");
    QCOMPARE(GlobalHelper::getProjectTempIODir(), standard);
    GlobalHelper::setProjectTempIODir(QStringLiteral("/some/where/"));
    QCOMPARE(GlobalHelper::getProjectTempIODir(), QStringLiteral("/some/where"));
    GlobalHelper::setProjectTempIODir(QStringLiteral("/some/else"));
    QCOMPARE(GlobalHelper::getProjectTempIODir(), QStringLiteral("/some/else"));
    GlobalHelper::setProjectTempIODir(QStringLiteral("a/"));
    QCOMPARE(GlobalHelper::getProjectTempIODir(), QStringLiteral("a"));
    GlobalHelper::setProjectTempIODir(QStringLiteral("/"));
    QCOMPARE(GlobalHelper::getProjectTempIODir(), QStringLiteral("/"));
    GlobalHelper::setProjectTempIODir(QString());
    QCOMPARE(GlobalHelper::getProjectTempIODir(), standard);
}

void tst_GlobalHelper::developmentConfiguration()
{
    QCOMPARE(GlobalConfig::getIsDevelop(), false);
    GlobalConfig::setIsDevelop(true);
    QCOMPARE(BaseModule::GlobalConfig::getIsDevelop(), true);
    GlobalConfig::setIsDevelop(false);
    QCOMPARE(GlobalConfig::getIsDevelop(), false);
}

QTEST_GUILESS_MAIN(tst_GlobalHelper)
#include "tst_globalhelper.moc"
