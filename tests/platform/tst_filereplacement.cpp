// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/private/FileReplacement.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>
#include <csignal>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using BaseModule::FileReplacement;

namespace {

bool areLocksMissing = false;

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<cannot be read>");
}

void create(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

/// No file grows beyond so many bytes.
class SizeLimit
{
public:
    explicit SizeLimit(rlim_t bytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    SizeLimit(const SizeLimit&) = delete;
    SizeLimit& operator=(const SizeLimit&) = delete;

private:
    rlimit m_before = {};
    void (*m_handler)(int) = SIG_DFL;
};

} // namespace

/// Stands before the system's: some file systems have no locks.
extern "C" int flock(int descriptor, int operation) noexcept
{
    if (areLocksMissing) {
        errno = ENOLCK;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_flock, descriptor, operation));
}

/// The replacement of a file, step by step; whole saves are tested through those that use it.
class FileReplacementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        QVERIFY(m_directory->isValid());
        areLocksMissing = false;
    }

    void tellsWhatCannotBeReplaced()
    {
        QVERIFY(QDir(m_directory->path()).mkdir(QStringLiteral("directory")));
        QCOMPARE(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
        QCOMPARE(errorOf(path("directory")), EISDIR);
        QCOMPARE(errorOf(path("pipe")), EINVAL);
        QCOMPARE(errorOf(path("missing/file")), ENOENT);
        QCOMPARE(errorOf(QString()), ENOENT);
        QCOMPARE(errorOf(path("a") + QChar(0)), EINVAL);
    }

    void tellsWhyItCannotBeWritten()
    {
        FileReplacement replacement(path("file"));
        QVERIFY(replacement.open(0));
        {
            const SizeLimit limit(3);
            QVERIFY(!replacement.write("12345", 5));
        }
        QCOMPARE(replacement.error(), EFBIG);
        QVERIFY(!replacement.write("1", 1)); // what came before is missing
        QVERIFY(!replacement.commit());
        QCOMPARE(entries(), QStringList{temporary()});
    }

    void opensAgainAfterAFailure()
    {
        FileReplacement replacement(path("later/file"));
        QCOMPARE(replacement.error(), 0);
        QCOMPARE(replacement.descriptor(), -1);
        QVERIFY(!replacement.open(0));
        QCOMPARE(replacement.error(), ENOENT);
        QCOMPARE(replacement.descriptor(), -1);
        QVERIFY(QDir(m_directory->path()).mkdir(QStringLiteral("later")));
        QVERIFY(replacement.open(0));
        QCOMPARE(replacement.error(), 0);
        QVERIFY(replacement.write("new", 3) && replacement.commit());
        QCOMPARE(contentOf(path("later/file")), QByteArray("new"));
    }

    void dropsWhatWasOpen()
    {
        FileReplacement replacement(path("file"));
        QVERIFY(replacement.open(0) && replacement.write("first", 5));
        QVERIFY(replacement.open(0)); // with the lock that it had itself
        QVERIFY(replacement.write("2nd", 3) && replacement.commit());
        QCOMPARE(contentOf(path("file")), QByteArray("2nd"));
        QCOMPARE(entries(), QStringList{QStringLiteral("file")});
    }

    /// What the number of the file that was open stands for may be another one's by now.
    void hasNoFileAfterAFailure()
    {
        QVERIFY(QDir(m_directory->path()).mkdir(QStringLiteral("below")));
        FileReplacement replacement(path("below/file"));
        QVERIFY(replacement.open(0));
        QVERIFY(QDir(path("below")).removeRecursively());
        QVERIFY(!replacement.open(0));
        QCOMPARE(replacement.descriptor(), -1);
    }

    void removesWhatWasNotPutInPlace()
    {
        create(path("file"), "old");
        {
            FileReplacement replacement(path("file"));
            QVERIFY(replacement.open(0) && replacement.write("new", 3));
            QCOMPARE(entries(), (QStringList{temporary(), QStringLiteral("file")}));
        }
        QCOMPARE(entries(), QStringList{QStringLiteral("file")});
        QCOMPARE(contentOf(path("file")), QByteArray("old"));
    }

    /// Once the content is in place, the temporary's name is free for others.
    void leavesTheNextOnesTemporary()
    {
        FileReplacement first(path("file"));
        QVERIFY(first.open(0));
        const QString name = path(qPrintable(temporary()));
        QVERIFY(first.write("first", 5) && first.commit());
        auto second = std::make_unique<FileReplacement>(path("file"));
        QVERIFY(second->open(0) && second->write("second", 6) && second->commit());
        create(name, "of another process");
        second.reset();
        QCOMPARE(contentOf(name), QByteArray("of another process"));
    }

    void worksWithoutLocks()
    {
        areLocksMissing = true;
        FileReplacement replacement(path("file"));
        QVERIFY(replacement.open(0));
        QVERIFY(replacement.descriptor() >= 0);
        QVERIFY(replacement.write("new", 3) && replacement.commit());
        QCOMPARE(contentOf(path("file")), QByteArray("new"));
    }

    /// Without locks two that name the same process are told apart by the first one's file, which stays.
    void leavesTheFileThatIsInItsWay()
    {
        areLocksMissing = true;
        FileReplacement first(path("file"));
        QVERIFY(first.open(0) && first.write("first", 5));
        {
            FileReplacement second(path("file"));
            QVERIFY(!second.open(0));
            QCOMPARE(second.error(), EEXIST);
        }
        QVERIFY(first.commit());
        QCOMPARE(contentOf(path("file")), QByteArray("first"));
    }

private:
    QString path(const char* name) const { return m_directory->filePath(QString::fromLatin1(name)); }
    static int errorOf(const QString& path)
    {
        FileReplacement replacement(path);
        return replacement.open(0) ? 0 : replacement.error();
    }
    QStringList entries() const
    {
        return QDir(m_directory->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    /// The one that is there now.
    QString temporary() const { return entries().filter(QStringLiteral(".saving")).value(0); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

QTEST_GUILESS_MAIN(FileReplacementTest)
#include "tst_filereplacement.moc"
