// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialFixture.h"

#include <basemodule/GlobalConfig.h>
#include <basemodule/GlobalHelper.h>

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QtTest>

#include <csignal>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using BaseModule::ProjectLib;

namespace {

constexpr int materialCount = 40;

QString saver()
{
    return QStringLiteral(MATERIAL_SAVER);
}

/// Standard output of a program that must end well.
QString outputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        return QStringLiteral("failed: ") + QString::fromLocal8Bit(process.readAllStandardError());
    }
    return QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
}

/// Until the saver has finished so many saves and begins another.
bool waitForSaves(QProcess& process, int count)
{
    int lines = 0;
    while (lines <= count && process.waitForReadyRead()) {
        lines += process.readAllStandardOutput().count('\n');
    }
    return lines > count;
}

struct SystemCall
{
    QString name;
    int count; ///< how many of this name there were, this one included
};

/// The calls of a trace behind the mark that the saver sets.
QList<SystemCall> callsOfTheSave(const QString& trace)
{
    static const QRegularExpression line(QStringLiteral("^(?:\\d+ +)?(\\w+)\\("));
    QHash<QString, int> counts;
    QList<SystemCall> calls;
    bool isSaving = false;
    for (const QString& entry : trace.split(QLatin1Char('\n'))) {
        const auto match = line.match(entry);
        if (!match.hasMatch()) {
            continue;
        }
        const int count = ++counts[match.captured(1)];
        if (isSaving) {
            calls.append({match.captured(1), count});
        }
        isSaving = isSaving || entry.contains(QLatin1String("/save-begins-here"));
    }
    return calls;
}

} // namespace

class TestMaterialSaving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void survivesDeathAtEverySystemCall();
    void survivesDeathAtAnyTime_data();
    void survivesDeathAtAnyTime();
    void loadsWhileAnotherProcessSaves();
    void survivesTheFileSizeLimit_data();
    void survivesTheFileSizeLimit();
    void survivesTheFullDisk_data();
    void survivesTheFullDisk();

private:
    QStringList directoryContent() const
    {
        return QDir(m_fixture->projectDirectory()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    void createLibrary(int bytesPerMaterial);
    QString loaded() const { return outputOf(saver(), {m_fixture->projectDirectory(), text("load")}); }

    std::unique_ptr<MaterialFixture> m_fixture;
};

void TestMaterialSaving::init()
{
    m_fixture = std::make_unique<MaterialFixture>();
}

void TestMaterialSaving::cleanup()
{
    m_fixture.reset();
}

void TestMaterialSaving::createLibrary(int bytesPerMaterial)
{
    auto& manager = m_fixture->manager();
    manager.createSoftwareMat(QString(bytesPerMaterial, QLatin1Char('x')), text("old"),
                              MaterialFixture::property(text("p"), 0.1), {}, {}, {}, {});
    QList<int> ids;
    for (int i = 0; i < materialCount; ++i) {
        ids.append(1);
    }
    QVERIFY(manager.importMaterial(BaseModule::SoftwareLib, ids));
    QVERIFY(QFileInfo(m_fixture->projectPath()).size() > qint64(materialCount) * bytesPerMaterial);
}

void TestMaterialSaving::survivesDeathAtEverySystemCall()
{
    const QString strace = QStandardPaths::findExecutable(text("strace"));
    if (strace.isEmpty()) {
        QSKIP("strace is not installed");
    }
    createLibrary(100);
    const QByteArray before = contentOf(m_fixture->projectPath());
    const QString trace = m_fixture->softwarePath() + text(".trace");
    const QStringList save = {saver(), m_fixture->projectDirectory(), text("save"), text("new")};
    const QString traced = outputOf(strace, QStringList{text("-f"), text("-o"), trace} + save);
    if (traced.startsWith(text("failed"))) {
        QSKIP("a traced process fails: tracing is not permitted here, or the build is one for finding leaks");
    }
    const QList<SystemCall> calls = callsOfTheSave(QString::fromLocal8Bit(contentOf(trace)));
    QSet<QString> killedAt;
    int oldCount = 0;
    int newCount = 0;
    for (const SystemCall& call : calls) {
        writeContent(m_fixture->projectPath(), before);
        QProcess process;
        process.start(strace, QStringList{text("-f"), text("-o"), trace, text("-e"),
                                          text("inject=%1:signal=SIGKILL:when=%2").arg(call.name).arg(call.count)} +
                                  save);
        QVERIFY(process.waitForFinished());
        const bool isKilled = contentOf(trace).contains("+++ killed by SIGKILL");
        const QString state = loaded();
        oldCount += state == text("40 of old") ? 1 : 0;
        newCount += state == text("40 of new") ? 1 : 0;
        const QByteArray place = QStringLiteral("%1 number %2: %3").arg(call.name).arg(call.count).arg(state).toUtf8();
        QVERIFY2(state == text("40 of old") || state == text("40 of new"), place.constData());
        if (isKilled) {
            killedAt.insert(call.name);
        }
        // The reader above has cleared away what the killed process left.
        QCOMPARE(directoryContent(), QStringList{text("MaterialLibrary.json")});
    }
    QVERIFY2(killedAt.contains(QSet<QString>{text("openat"), text("write"), text("fsync"), text("rename")}),
             qPrintable(QStringList(killedAt.values()).join(QLatin1Char(' '))));
    QVERIFY(oldCount > 0);
    QVERIFY(newCount > 0);
}

void TestMaterialSaving::survivesDeathAtAnyTime_data()
{
#ifdef DATAMANAGER_EXHAUSTIVE_TESTS
    constexpr int rounds = 40;
#else
    constexpr int rounds = 1;
#endif
    QTest::addColumn<int>("kills");
    for (int round = 1; round <= rounds; ++round) {
        QTest::addRow("round %d", round) << 25;
    }
}

void TestMaterialSaving::survivesDeathAtAnyTime()
{
    QFETCH(int, kills);
    createLibrary(20000);
    auto& random = *QRandomGenerator::global();
    QSet<QString> states;
    for (int i = 0; i < kills; ++i) {
        QProcess process;
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(saver(), {m_fixture->projectDirectory(), text("loop")});
        QVERIFY(waitForSaves(process, random.bounded(3)));
        QThread::usleep(ulong(random.bounded(50000)));
        process.kill();
        QVERIFY(process.waitForFinished());
        m_fixture->manager().initProjectMaterial();
        const auto materials = m_fixture->manager().getMatLibDataByType(ProjectLib);
        QCOMPARE(materials.size(), materialCount);
        for (const auto& material : materials) {
            QCOMPARE(material->englishName, materials.first()->englishName);
        }
        states.insert(materials.first()->englishName);
        QCOMPARE(directoryContent(), QStringList{text("MaterialLibrary.json")});
    }
    QVERIFY2(states.size() > 1, "no process was killed after a save");
}

void TestMaterialSaving::loadsWhileAnotherProcessSaves()
{
    createLibrary(20000);
    QProcess savers[2];
    for (QProcess& process : savers) {
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(saver(), {m_fixture->projectDirectory(), text("loop")});
        QVERIFY(process.waitForStarted());
    }
    QElapsedTimer timer;
    timer.start();
    QSet<QString> states;
    while (timer.elapsed() < 1500 || states.size() < 3) {
        m_fixture->manager().initProjectMaterial();
        const auto materials = m_fixture->manager().getMatLibDataByType(ProjectLib);
        QCOMPARE(materials.size(), materialCount);
        for (const auto& material : materials) {
            QCOMPARE(material->englishName, materials.first()->englishName);
        }
        states.insert(materials.first()->englishName);
    }
    for (QProcess& process : savers) {
        QCOMPARE(process.state(), QProcess::Running);
        process.kill();
        QVERIFY(process.waitForFinished());
    }
    m_fixture->manager().initProjectMaterial();
    QCOMPARE(directoryContent(), QStringList{text("MaterialLibrary.json")});
}

void TestMaterialSaving::survivesTheFileSizeLimit_data()
{
    QTest::addColumn<int>("limit");
    for (const int limit : {0, 1, 16383, 16384, 16385, 1000000, 1048576}) {
        QTest::addRow("%d bytes", limit) << limit;
    }
}

void TestMaterialSaving::survivesTheFileSizeLimit()
{
    QFETCH(int, limit);
    createLibrary(50000);
    const QByteArray before = contentOf(m_fixture->projectPath());
    rlimit old = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &old), 0);
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit narrow = {rlim_t(limit), old.rlim_max};
    QTest::ignoreMessage(
        QtDebugMsg,
        qPrintable(
            text("Write project material library file fail, please check path: %1.").arg(m_fixture->projectPath())));
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &narrow), 0);
    m_fixture->createProject(text("more"));
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &old), 0);
    QCOMPARE(contentOf(m_fixture->projectPath()), before);
    QCOMPARE(directoryContent(), QStringList{text("MaterialLibrary.json")});
    m_fixture->manager().writeProjectMatConfig();
    m_fixture->manager().initProjectMaterial();
    QVERIFY(m_fixture->manager().getProjectMatByName(text("more")));
}

void TestMaterialSaving::survivesTheFullDisk_data()
{
    QTest::addColumn<int>("free");
    for (const int free : {1, 16384, 16385, 1000000, 1048576}) {
        QTest::addRow("%d bytes left", free) << free;
    }
}

void TestMaterialSaving::survivesTheFullDisk()
{
    QFETCH(int, free);
    createLibrary(50000);
    const QByteArray before = contentOf(m_fixture->projectPath());
    // Mounts of this process alone, gone with it at the latest.
    static const bool isAlone = ::geteuid() == 0 && ::unshare(CLONE_NEWNS) == 0 &&
                                ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    // Whole pages; the full one holds the old library and what is free.
    const QByteArray size = "size=" + QByteArray::number(((before.size() + 4095) & ~4095) + free);
    const QByteArray place = QFile::encodeName(m_fixture->projectDirectory());
    if (!isAlone || ::mount("tmpfs", place.constData(), "tmpfs", 0, size.constData()) != 0) {
        QSKIP("mounting a small disk needs root");
    }
    const auto unmount = qScopeGuard([&place] { ::umount(place.constData()); });
    writeContent(m_fixture->projectPath(), before);
    QTest::ignoreMessage(
        QtDebugMsg,
        qPrintable(
            text("Write project material library file fail, please check path: %1.").arg(m_fixture->projectPath())));
    m_fixture->createProject(text("more"));
    QCOMPARE(contentOf(m_fixture->projectPath()), before);
    QCOMPARE(directoryContent(), QStringList{text("MaterialLibrary.json")});
    m_fixture->manager().initProjectMaterial();
    QCOMPARE(m_fixture->manager().getMatLibDataByType(ProjectLib).size(), materialCount);
}

QTEST_GUILESS_MAIN(TestMaterialSaving)
#include "tst_materialsaving.moc"
