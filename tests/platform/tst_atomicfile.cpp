// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/GlobalHelper.h>

#include <support/DirectoryWatch.h>
#include <support/Nobody.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <chrono>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using BaseModule::GlobalHelper;

namespace {

// The first 16 digits that sha1sum prints for "file".
const QString temporaryName = QStringLiteral(".971c419dd6093313.saving");

bool save(const QString& path, const QByteArray& content)
{
    return GlobalHelper::writeFile(path, content, QIODevice::WriteOnly | QIODevice::Truncate);
}

/// The temporary of a file while another process has it.
class HeldTemporary
{
public:
    explicit HeldTemporary(const QString& path)
        : m_path(QFile::encodeName(path)), m_descriptor(::open(m_path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600))
    {
        ::flock(m_descriptor, LOCK_EX);
    }
    ~HeldTemporary() { ::close(m_descriptor); }
    Q_DISABLE_COPY(HeldTemporary)

    void renameTo(const QString& path) const { ::rename(m_path.constData(), QFile::encodeName(path).constData()); }
    /// Another file takes the name.
    void makeWay() const
    {
        ::unlink(m_path.constData());
        ::close(::open(m_path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    }

private:
    QByteArray m_path;
    int m_descriptor;
};

int openFileCount()
{
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System).size();
}

} // namespace

class tst_AtomicFile : public QObject
{
    Q_OBJECT

private:
    QString path(const QString& name) const { return m_directory->filePath(name); }
    QString file() const { return path(QStringLiteral("file")); }
    QByteArray content() const
    {
        QFile opened(file());
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray("<cannot be read>");
    }
    struct stat status() const
    {
        struct stat status = {};
        ::stat(QFile::encodeName(file()).constData(), &status);
        return status;
    }
    QStringList entries() const
    {
        return QDir(m_directory->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    /// Saves while another process has the temporary, which after a moment acts and lets go of it.
    template <class Act>
    void saveMeanwhile(Act act)
    {
        auto other = std::make_unique<HeldTemporary>(path(temporaryName));
        std::thread end([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
            act(*other);
            other.reset();
        });
        const bool isSaved = save(file(), "ours");
        end.join();
        QVERIFY(isSaved);
        QCOMPARE(content(), QByteArray("ours"));
        QCOMPARE(entries(), QStringList{QStringLiteral("file")});
    }

    QScopedPointer<QTemporaryDir> m_directory;

private Q_SLOTS:
    void init()
    {
        m_directory.reset(new QTemporaryDir);
        QVERIFY(m_directory->isValid());
    }

    // Programs of different versions take turns by this name.
    void namesTheTemporaryAfterTheFile()
    {
        DirectoryWatch watch(m_directory->path());
        QVERIFY(save(file(), "new"));
        QCOMPARE(watch.take(), (QStringList{QStringLiteral("created ") + temporaryName, QStringLiteral("moved file")}));
    }

    void writesBesideARelativePath()
    {
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_directory->path()));
        DirectoryWatch watch(m_directory->path());
        const bool isSaved = save(QStringLiteral("file"), "new");
        QVERIFY(QDir::setCurrent(before));
        QVERIFY(isSaved);
        QCOMPARE(watch.take(), (QStringList{QStringLiteral("created ") + temporaryName, QStringLiteral("moved file")}));
        QCOMPARE(content(), QByteArray("new"));
    }

    void waitsForAnotherSave()
    {
        saveMeanwhile([this](const HeldTemporary& other) { other.renameTo(file()); });
    }

    // The other one may hang.
    void waitsTwoSecondsAtMost()
    {
        QVERIFY(save(file(), "old"));
        const HeldTemporary other(path(temporaryName));
        QElapsedTimer time;
        time.start();
        QVERIFY(!save(file(), "new"));
        QVERIFY2(time.elapsed() >= 1900, qPrintable(QString::number(time.elapsed())));
        QCOMPARE(content(), QByteArray("old"));
        QCOMPARE(entries(), (QStringList{temporaryName, QStringLiteral("file")}));
    }

    void leavesATemporaryThatLostItsName()
    {
        saveMeanwhile([](const HeldTemporary& other) { other.makeWay(); });
    }

    void leavesNoFileOpen()
    {
        QVERIFY(save(file(), "old"));
        QByteArray read;
        const int before = openFileCount();
        QVERIFY(save(file(), "new"));
        QCOMPARE(openFileCount(), before);
        // A temporary that a killed process left behind.
        QFile abandoned(path(temporaryName));
        QVERIFY(abandoned.open(QIODevice::WriteOnly));
        abandoned.close();
        QVERIFY(GlobalHelper::readFile(file(), read));
        QCOMPARE(openFileCount(), before);
        // A temporary of several names is no one's own.
        QVERIFY(abandoned.open(QIODevice::WriteOnly));
        abandoned.close();
        QCOMPARE(::link(QFile::encodeName(path(temporaryName)).constData(),
                        QFile::encodeName(path(QStringLiteral("other"))).constData()),
                 0);
        QVERIFY(save(file(), "newer"));
        QCOMPARE(openFileCount(), before);
        QCOMPARE(content(), QByteArray("newer"));
    }

    void followsAsManyLinksAsTheKernel_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<bool>("isFollowed");
        QTest::newRow("one") << 1 << true;
        QTest::newRow("all that the kernel follows") << 40 << true;
        QTest::newRow("one too many") << 41 << false;
    }
    void followsAsManyLinksAsTheKernel()
    {
        QFETCH(int, count);
        QFETCH(bool, isFollowed);
        QVERIFY(save(file(), "old"));
        QString target = file();
        for (int i = 0; i < count; ++i) {
            const QString link = path(QStringLiteral("link%1").arg(i));
            QVERIFY(QFile::link(target, link));
            target = link;
        }
        QCOMPARE(save(target, "new"), isFollowed);
        QCOMPARE(content(), QByteArray(isFollowed ? "new" : "old"));
    }

    void keepsTheOwnerWhereItMay()
    {
        if (::geteuid() != 0) {
            QSKIP("Only root can give a file away.");
        }
        QVERIFY(save(file(), "old"));
        QCOMPARE(::chown(QFile::encodeName(file()).constData(), 65534, 65534), 0);
        QCOMPARE(::chmod(QFile::encodeName(file()).constData(), 04755), 0);
        QVERIFY(save(file(), "new"));
        QCOMPARE(status().st_uid, uid_t(65534));
        QCOMPARE(status().st_gid, gid_t(65534));
        QCOMPARE(int(status().st_mode & 07777), 04755);
    }

    void keepsTheGroup()
    {
        if (::geteuid() != 0) {
            QSKIP("Only root can give a file to a group that is not its own.");
        }
        QVERIFY(save(file(), "old"));
        QCOMPARE(::chown(QFile::encodeName(file()).constData(), 0, 65534), 0);
        QVERIFY(save(file(), "new"));
        QCOMPARE(status().st_gid, gid_t(65534));
    }

    void fillsNoFileThatItCannotRemove()
    {
        if (::geteuid() != 0) {
            QSKIP("Only root can be somebody else.");
        }
        QVERIFY(save(file(), "old"));
        QFile planted(path(temporaryName));
        QVERIFY(planted.open(QIODevice::WriteOnly));
        planted.close();
        for (const QString& name : {file(), path(temporaryName)}) {
            QCOMPARE(::chmod(QFile::encodeName(name).constData(), 0666), 0);
        }
        QCOMPARE(::chmod(QFile::encodeName(m_directory->path()).constData(), 0755), 0);
        bool isSaved = true;
        {
            const Nobody nobody;
            isSaved = save(file(), "new");
        }
        QVERIFY(!isSaved);
        QCOMPARE(content(), QByteArray("old"));
        QCOMPARE(planted.size(), qint64(0));
    }

    // What ran with the rights of the old owner, or for others, must not do so with those of the new one.
    void dropsRightsToRunWhenTheOwnerChanges()
    {
        if (::geteuid() != 0) {
            QSKIP("Only root can leave a file to somebody else.");
        }
        QVERIFY(save(file(), "old"));
        QCOMPARE(::chmod(QFile::encodeName(file()).constData(), 04757), 0);
        QCOMPARE(::chmod(QFile::encodeName(m_directory->path()).constData(), 0777), 0);
        bool isSaved = false;
        {
            const Nobody nobody;
            isSaved = save(file(), "new");
        }
        QVERIFY(isSaved);
        QCOMPARE(status().st_uid, uid_t(65534));
        QCOMPARE(int(status().st_mode & 07777), 0646);
        QCOMPARE(content(), QByteArray("new"));
    }
};

QTEST_GUILESS_MAIN(tst_AtomicFile)
#include "tst_atomicfile.moc"
