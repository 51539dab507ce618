// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/CommandLine.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>

/// The program as its caller sees it.
class tst_WorkbenchProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void calls_data();
    void calls();
    void parses_data();
    void parses();
    void needsNoDisplayForTexts();
    void opensAFile_data();
    void opensAFile();
    void endsInOrder_data();
    void endsInOrder();

private:
    QString path(const char* name) const { return m_directory->filePath(QString::fromLatin1(name)); }
    void prepare(QProcess& process) const;
    QStringList workingDirectories() const;

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_program;
};

// A copy beside the test, so that what it writes beside itself is its own.
void tst_WorkbenchProgram::initTestCase()
{
    m_program = QCoreApplication::applicationDirPath() + QStringLiteral("/workbench");
    QFile::remove(m_program);
    QVERIFY(QFile::copy(QStringLiteral(WORKBENCH_PROGRAM), m_program));
}

void tst_WorkbenchProgram::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QFile file(path("text.msh"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("no mesh\n");
}

void tst_WorkbenchProgram::prepare(QProcess& process) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path("config"));
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), path("cache"));
    environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("qt.qpa.xcb.warning=false"));
    environment.remove(QStringLiteral("DATAMANAGER_LANGUAGE"));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_directory->path());
}

QStringList tst_WorkbenchProgram::workingDirectories() const
{
    return QDir(path("cache/DataManager/workbench/projects")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
}

void tst_WorkbenchProgram::calls_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* name, const char* arguments, int code, const char* output, const char* error) {
        QTest::newRow(name) << QString::fromUtf8(arguments).split(QLatin1Char(' ')) << code << QString::fromUtf8(output)
                            << QString::fromUtf8(error);
    };
    row("help", "--help", 0, "workbench [OPTION...] [FILE]", "");
    row("help in Chinese", "--help --language Chinese", 0, "语言", "");
    row("version", "--version", 0, "workbench " WORKBENCH_VERSION "\n", "");
    row("help wins", "--version --help text.msh", 0, "FILE", "");
    row("unknown option", "--nonsense", 2, "", "workbench: unknown option '--nonsense'; see workbench --help\n");
    row("several files", "a.msh b.msh", 2, "", "workbench: more than one file; see workbench --help\n");
    row("unknown language", "--language Latin", 2, "",
        "workbench: --language takes 'English' or 'Chinese'; see workbench --help\n");
    row("missing file", "absent.msh", 3, "", "workbench: absent.msh: there is no such file\n");
    row("missing in Chinese", "--language Chinese absent.msh", 3, "", "workbench: absent.msh: 没有这个文件\n");
    row("directory", ".", 3, "", "workbench: .: it is not a regular file\n");
    row("file named as an option", "-- --help", 3, "", "workbench: --help: there is no such file\n");
}

void tst_WorkbenchProgram::calls()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QFETCH(QString, output);
    QFETCH(QString, error);
    QProcess process;
    prepare(process);
    process.start(m_program, arguments);
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()), error);
    QCOMPARE(process.exitCode(), code);
    const QString printed = QString::fromUtf8(process.readAllStandardOutput());
    QVERIFY2(output.isEmpty() ? printed.isEmpty() : printed.contains(output), qPrintable(printed));
    QCOMPARE(workingDirectories(), QStringList());
}

void tst_WorkbenchProgram::parses_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isFaulty");
    QTest::newRow("nothing") << QString() << QString() << false;
    QTest::newRow("a file") << QStringLiteral("a.msh") << QStringLiteral("a.msh") << false;
    QTest::newRow("behind the end of options") << QStringLiteral("-- -a.msh") << QStringLiteral("-a.msh") << false;
    QTest::newRow("a short option") << QStringLiteral("-x a.msh") << QStringLiteral("a.msh") << true;
    QTest::newRow("two files") << QStringLiteral("a b") << QStringLiteral("a") << true;
    QTest::newRow("a dash") << QStringLiteral("-") << QStringLiteral("-") << false;
}

void tst_WorkbenchProgram::parses()
{
    QFETCH(QString, arguments);
    QFETCH(QString, file);
    QFETCH(bool, isFaulty);
    const QStringList words = arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const Workbench::CommandLine call = Workbench::parseCommandLine(QStringList{QStringLiteral("workbench")} + words);
    QCOMPARE(call.file, file);
    QCOMPARE(!call.fault.isEmpty(), isFaulty);
}

void tst_WorkbenchProgram::needsNoDisplayForTexts()
{
    QProcess process;
    prepare(process);
    QProcessEnvironment environment = process.processEnvironment();
    environment.remove(QStringLiteral("DISPLAY"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    process.setProcessEnvironment(environment);
    process.start(m_program, {QStringLiteral("--version")});
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardError(), QByteArray());
}

void tst_WorkbenchProgram::opensAFile_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("none") << QString();
    QTest::newRow("a mesh") << QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/slivers.msh");
    QTest::newRow("no mesh") << QStringLiteral("text.msh");
}

// It stays open, whatever it is given, until it is told to end.
void tst_WorkbenchProgram::opensAFile()
{
    QFETCH(QString, file);
    QProcess process;
    prepare(process);
    process.start(m_program, file.isEmpty() ? QStringList() : QStringList{file});
    QTRY_COMPARE_WITH_TIMEOUT(workingDirectories().size(), 2, 60000);
    const QString working = path("cache/DataManager/workbench/projects/") + workingDirectories().first();
    if (file.endsWith(QLatin1String("slivers.msh"))) {
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(working + QStringLiteral("/mesh-1.msh")), 60000);
    }
    QVERIFY(!process.waitForFinished(300));
    process.terminate();
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardError(), QByteArray());
}

void tst_WorkbenchProgram::endsInOrder_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("terminated") << SIGTERM;
    QTest::newRow("interrupted") << SIGINT;
    QTest::newRow("left by its terminal") << SIGHUP;
}

void tst_WorkbenchProgram::endsInOrder()
{
    QFETCH(int, number);
    QProcess process;
    prepare(process);
    process.start(m_program, {QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/slivers.msh")});
    QTRY_COMPARE_WITH_TIMEOUT(workingDirectories().size(), 2, 60000);
    const QString working = path("cache/DataManager/workbench/projects/") + workingDirectories().first();
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(working + QStringLiteral("/mesh-1.msh")), 60000);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), number), 0);
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(workingDirectories(), QStringList());
}

QTEST_MAIN(tst_WorkbenchProgram)
#include "tst_workbenchprogram.moc"
