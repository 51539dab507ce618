// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "SavedFile.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QtTest>

#include <sys/statfs.h>

namespace {

#ifdef DATAMANAGER_EXHAUSTIVE_TESTS
constexpr bool isExhaustive = true;
#else
constexpr bool isExhaustive = false;
#endif

const char* const errors[] = {"ENOSPC", "EIO", "EACCES", "EMFILE", "EDQUOT"};
const char* const kinds[] = {"software", "project", "example", "coordinates", "plain"};
// Of directory entries: what exists() asks with.
const QString markCalls = QStringLiteral("?access,?faccessat,?faccessat2,?stat,?newfstatat,?statx");

#if defined(__SANITIZE_ADDRESS__)
// The sanitizer's allocator ends the process where the kernel gives it no memory.
const QStringList neverFailing = {text("futex"), text("mmap"), text("munmap"), text("madvise"), text("mprotect")};
#else
// A lock within the process never fails with one of these; the C library ends the process if it does.
const QStringList neverFailing = {text("futex")};
#endif

struct SystemCall
{
    QString name;
    int count; ///< how many of this name there were, this one included
};

/// The calls between the marks of a trace.
QList<SystemCall> callsOfTheSave(const QString& trace)
{
    static const QRegularExpression line(QStringLiteral("^(?:\\d+ +)?(\\w+)\\("));
    QHash<QString, int> counts;
    QList<SystemCall> calls;
    bool isSaving = false;
    for (const QString& entry : trace.split(QLatin1Char('\n'))) {
        if (entry.contains(QLatin1String("/save-ends-here"))) {
            break;
        }
        const auto match = line.match(entry);
        const int count = match.hasMatch() ? ++counts[match.captured(1)] : 0;
        if (isSaving && match.hasMatch()) {
            calls.append({match.captured(1), count});
        }
        isSaving = isSaving || entry.contains(QLatin1String("/save-begins-here"));
    }
    return calls;
}

/// A process that is traced cannot look for leaks of its own.
QProcessEnvironment tracedEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(text("ASAN_OPTIONS"), text("detect_leaks=0"));
    return environment;
}

/// Until so many saves are finished and another one begins.
bool waitForSaves(QProcess& process, int count)
{
    int lines = 0;
    while (lines <= count && process.waitForReadyRead()) {
        lines += process.readAllStandardOutput().count('\n');
    }
    return lines > count;
}

/// A place in memory and one on a disk.
QStringList places()
{
    QStringList list = {QStringLiteral(DATAMANAGER_DISK_DIRECTORY)};
    struct statfs memory = {};
    constexpr auto tmpfs = 0x01021994;
    if (::statfs("/dev/shm", &memory) == 0 && memory.f_type == tmpfs) {
        list.prepend(QStringLiteral("/dev/shm"));
    }
    return list;
}

} // namespace

/// Every system call of every save fails once, and the process is killed there once: the file holds the old content or
/// the new one, the failure is logged, and the next start leaves nothing beside the file.
class TestSaveFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void survivesEveryFault_data();
    void survivesEveryFault();
    void goesOnWhenInterrupted();
    void savesWithoutLocks();
    void forcesTheNewFileToTheDisk();
    void survivesDeathAtAnyTime_data();
    void survivesDeathAtAnyTime();
    void cleanupTestCase();

private:
    /// One save of new content over old, traced.
    struct Sweep
    {
        const SavedFile& file;
        QByteArray old;
        QString oldState;
        QString newState;
        QStringList save;
    };

    QList<SystemCall> trace(const SavedFile& file, const QStringList& options, QString* log = nullptr) const;
    static QStringList injection(const SystemCall& call, const QString& fault);
    void tryFault(const Sweep& sweep, const SystemCall& call, const QString& fault);
    void checkEnd(const Sweep& sweep, const QString& place, const QString& log, bool isKilled);

    QString m_strace = QStandardPaths::findExecutable(QStringLiteral("strace"));
    int m_points = 0;
    int m_oldContents = 0;
    int m_newContents = 0;
};

void TestSaveFaults::survivesEveryFault_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("size");
    const QList<int> sizes = isExhaustive ? QList<int>{1, 16384, 16385, 1048576} : QList<int>{16385};
    for (const QString& place : isExhaustive ? places() : places().mid(0, 1)) {
        for (const char* const kind : kinds) {
            for (const int size : sizes) {
                QTest::addRow("%s, %d bytes, %s", kind, size, qPrintable(place.section(QLatin1Char('/'), -1)))
                    << place << text(kind) << size;
            }
        }
    }
}

void TestSaveFaults::survivesEveryFault()
{
    if (m_strace.isEmpty()) {
        QSKIP("strace is not installed");
    }
    QFETCH(QString, place);
    QFETCH(QString, kind);
    QFETCH(int, size);
    const SavedFile file(place, kind);
    const int length = file.lengthFor(size);
    QCOMPARE(file.log(file.saveArguments(QLatin1Char('o'), length)), QString());
    const Sweep sweep = {file, contentOf(file.path()), QStringLiteral("o %1").arg(length),
                         QStringLiteral("n %1").arg(length),
                         QStringList(file.program()) + file.saveArguments(QLatin1Char('n'), length)};
    QVERIFY(kind == text("project") || kind != text("plain") || sweep.old.size() == size);
    QCOMPARE(file.loaded(), sweep.oldState);
    file.restore(sweep.old);
    const QString trace = file.program() + QStringLiteral(".trace");
    QProcess process;
    process.setProcessEnvironment(tracedEnvironment());
    process.start(m_strace, QStringList{text("-f"), text("-o"), trace} + sweep.save);
    QVERIFY(process.waitForFinished());
    if (process.exitCode() != 0) {
        QSKIP("a traced process fails: tracing is not permitted here");
    }
    QCOMPARE(file.loaded(), sweep.newState);
    const QList<SystemCall> calls = callsOfTheSave(QString::fromLocal8Bit(contentOf(trace)));
    QVERIFY(calls.size() > 5);
    const int errorCount = int(std::size(errors));
    for (int i = 0; i < calls.size(); ++i) {
        for (int error = 0; error < errorCount; ++error) {
            // The quick tier gives each call one of the errors, and kills at every other one.
            const bool isDue = isExhaustive || i % errorCount == error;
            if (isDue && !neverFailing.contains(calls.at(i).name)) {
                tryFault(sweep, calls.at(i), QStringLiteral("error=") + text(errors[error]));
            }
        }
        if (isExhaustive || i % 2 == 0) {
            tryFault(sweep, calls.at(i), QStringLiteral("signal=SIGKILL"));
        }
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

/// The options of strace for a fault at a call.
QStringList TestSaveFaults::injection(const SystemCall& call, const QString& fault)
{
    // The kernel answers brk with the old end of the heap, never with an error.
    const bool isHeap = call.name == text("brk") && fault.startsWith(text("error"));
    const QString what = isHeap ? text("retval=0") : fault;
    QStringList options = {text("-e"), text("trace=") + call.name + QLatin1Char(',') + markCalls, text("-e"),
                           text("inject=%1:%2:when=%3").arg(call.name, what).arg(call.count)};
    // Quicker, but forgets about signals.
    return fault.startsWith(text("signal")) ? options : options << text("--seccomp-bpf");
}

void TestSaveFaults::tryFault(const Sweep& sweep, const SystemCall& call, const QString& fault)
{
    const bool isKilled = fault.startsWith(text("signal"));
    const QString trace = sweep.file.program() + QStringLiteral(".trace");
    const QStringList options = injection(call, fault);
    // How often memory is asked for differs from run to run.
    constexpr int attempts = 100;
    bool isHit = false;
    QProcess process;
    process.setProcessEnvironment(tracedEnvironment());
    for (int i = 0; i < attempts && !isHit; ++i) {
        sweep.file.restore(sweep.old);
        process.start(m_strace, QStringList{text("-f"), text("-o"), trace} + options + sweep.save);
        QVERIFY(process.waitForFinished());
        const QByteArray traced = contentOf(trace);
        const int begin = traced.indexOf("/save-begins-here");
        const int end = traced.indexOf("/save-ends-here");
        const int struck = traced.indexOf(isKilled ? "+++ killed by SIGKILL" : "(INJECTED)");
        isHit = begin >= 0 && struck > begin && (end < 0 || struck < end);
    }
    // Nothing may be concluded from a save that went undisturbed.
    const QString place = options.join(QLatin1Char(' '));
    QVERIFY2(isHit, qPrintable(place));
    ++m_points;
    checkEnd(sweep, place, QString::fromLocal8Bit(process.readAllStandardError()).trimmed(), isKilled);
}

void TestSaveFaults::checkEnd(const Sweep& sweep, const QString& place, const QString& log, bool isKilled)
{
    const bool isOld = contentOf(sweep.file.path()) == sweep.old;
    const QString state = sweep.file.loaded();
    QVERIFY2(state == (isOld ? sweep.oldState : sweep.newState), qPrintable(place + QStringLiteral(": ") + state));
    if (!isKilled) {
        const QString expected = isOld ? sweep.file.failureLine() : QString();
        // The cipher says first what failed.
        QVERIFY2(log == expected || log == text("Encrypt text fail!\n") + expected,
                 qPrintable(place + QStringLiteral(": ") + log));
    }
    QVERIFY2(sweep.file.neighbours() == QStringList{sweep.file.name()},
             qPrintable(place + QStringLiteral(": ") + sweep.file.neighbours().join(QLatin1Char(' '))));
    ++(isOld ? m_oldContents : m_newContents);
}

/// The calls of one traced save of new content; none when tracing fails.
QList<SystemCall> TestSaveFaults::trace(const SavedFile& file, const QStringList& options, QString* log) const
{
    const QString path = file.program() + QStringLiteral(".trace");
    QProcess process;
    process.setProcessEnvironment(tracedEnvironment());
    process.start(m_strace, QStringList{text("-f"), text("-o"), path} + options + QStringList(file.program()) +
                                file.saveArguments(QLatin1Char('n'), 100));
    const bool isSaved = process.waitForFinished() && process.exitCode() == 0;
    if (log != nullptr) {
        *log = QString::fromLocal8Bit(process.readAllStandardError());
    }
    return isSaved ? callsOfTheSave(QString::fromLocal8Bit(contentOf(path))) : QList<SystemCall>();
}

/// A signal may interrupt writing and locking: both begin again, and the save succeeds.
void TestSaveFaults::goesOnWhenInterrupted()
{
    const SavedFile file(places().first(), text("plain"));
    const QList<SystemCall> calls = m_strace.isEmpty() ? QList<SystemCall>() : trace(file, {});
    if (calls.isEmpty()) {
        QSKIP("strace is not installed, or tracing is not permitted here");
    }
    QStringList interrupted;
    for (const SystemCall& call : calls) {
        if (call.name == text("write") || call.name == text("flock")) {
            file.restore("old");
            QString log;
            trace(file, injection(call, text("error=EINTR")), &log);
            QVERIFY(contentOf(file.program() + text(".trace")).contains("EINTR"));
            QCOMPARE(log, QString());
            QCOMPARE(file.loaded(), text("n 100"));
            interrupted.append(call.name);
        }
    }
    QVERIFY(interrupted.contains(text("write")));
    QVERIFY(interrupted.contains(text("flock")));
}

/// Some file systems have no locks.
void TestSaveFaults::savesWithoutLocks()
{
    const SavedFile file(places().first(), text("plain"));
    if (m_strace.isEmpty() || trace(file, {}).isEmpty()) {
        QSKIP("strace is not installed, or tracing is not permitted here");
    }
    for (const char* const error : {"ENOLCK", "ENOSYS"}) {
        file.restore("old");
        QString log;
        QVERIFY(!trace(file, {text("-e"), text("inject=flock:error=") + text(error)}, &log).isEmpty());
        QCOMPARE(log, QString());
        QCOMPARE(file.loaded(), text("n 100"));
        QVERIFY(file.neighbours().contains(file.name()));
    }
}

/// First the content, then the name: a loss of power finds the old file or the new one.
void TestSaveFaults::forcesTheNewFileToTheDisk()
{
    const SavedFile file(places().first(), text("plain"));
    file.restore("old");
    if (m_strace.isEmpty() || trace(file, {text("-y")}).isEmpty()) {
        QSKIP("strace is not installed, or tracing is not permitted here");
    }
    const QString directory = QFileInfo(file.directory()).canonicalFilePath() + QLatin1Char('>');
    QStringList steps;
    for (const QString& entry :
         QString::fromLocal8Bit(contentOf(file.program() + text(".trace"))).split(QLatin1Char('\n'))) {
        if (entry.contains(text("fsync(")) || (entry.contains(text("rename")) && entry.contains(text(".saving")))) {
            const bool isRename = entry.contains(text("rename"));
            const bool isDirectory = entry.contains(directory);
            steps.append(isRename ? text("rename") : isDirectory ? text("directory") : text("content"));
            QVERIFY2(entry.endsWith(text("= 0")) && (isDirectory || entry.contains(text(".saving"))),
                     qPrintable(entry));
        } else if (entry.contains(text("write(")) && entry.contains(text(".saving>"))) {
            steps.append(text("write"));
        }
    }
    QCOMPARE(steps, (QStringList{text("write"), text("content"), text("rename"), text("directory")}));
}

void TestSaveFaults::survivesDeathAtAnyTime_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("kills");
    for (const char* const kind : kinds) {
        QTest::newRow(kind) << text(kind) << (isExhaustive ? 200 : 5);
    }
}

void TestSaveFaults::survivesDeathAtAnyTime()
{
    QFETCH(QString, kind);
    QFETCH(int, kills);
    constexpr int length = 1000000;
    const SavedFile file(QStringLiteral(DATAMANAGER_DISK_DIRECTORY), kind);
    file.log(file.saveArguments(QLatin1Char('o'), length));
    auto& random = *QRandomGenerator::global();
    QSet<QString> states;
    for (int i = 0; i < kills; ++i) {
        QProcess process;
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(file.program(), file.loopArguments(length));
        QVERIFY(waitForSaves(process, i % 3));
        QThread::usleep(ulong(random.bounded(60000)));
        process.kill();
        QVERIFY(process.waitForFinished());
        const QString state = file.loaded();
        QVERIFY2(state.endsWith(QStringLiteral(" %1").arg(length)), qPrintable(state));
        QCOMPARE(file.neighbours(), QStringList{file.name()});
        states.insert(state);
    }
    states.remove(QStringLiteral("o %1").arg(length));
    QVERIFY2(!states.isEmpty(), "no process was killed after a save");
}

void TestSaveFaults::cleanupTestCase()
{
    std::printf("%d faults injected and hit: %d left the old content, %d the new one\n", m_points, m_oldContents,
                m_newContents);
    QVERIFY(m_strace.isEmpty() || m_points == 0 || (m_oldContents > 0 && m_newContents > 0));
}

QTEST_GUILESS_MAIN(TestSaveFaults)
#include "tst_savefaults.moc"
