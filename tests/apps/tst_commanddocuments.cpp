// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

QString content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString manualOf(const QString& program)
{
    return text(DATAMANAGER_SOURCE_DIR "/docs/man/") + program + text(".1");
}

QString output(const QString& program, const QStringList& arguments, const QString& directory = QString())
{
    QProcess process;
    process.setWorkingDirectory(directory);
    process.start(program, arguments);
    process.waitForFinished();
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0
               ? QString::fromUtf8(process.readAllStandardOutput())
               : text("failed: ") + QString::fromUtf8(process.readAllStandardError());
}

QSet<QString> matches(const QString& text, const char* pattern)
{
    const QRegularExpression expression(QString::fromLatin1(pattern), QRegularExpression::MultilineOption);
    QSet<QString> found;
    for (auto match = expression.globalMatch(text); match.hasNext();) {
        found.insert(match.next().captured(1));
    }
    return found;
}

QStringList sorted(const QSet<QString>& set)
{
    QStringList list = set.values();
    list.sort();
    return list;
}

/// What bash offers for a command line that ends in the last word, in the given directory.
QSet<QString> completions(const QString& program, const QStringList& words, const QString& directory = QString())
{
    const QString script = text(R"(
        source "$1"; function=$2; shift 2
        COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1))
        "$function" || exit 1
        printf '%s\n' "${COMPREPLY[@]}")");
    const QStringList arguments{text("--norc"),
                                text("-c"),
                                script,
                                text("bash"),
                                text(DATAMANAGER_SOURCE_DIR "/completions/") + program + text(".bash"),
                                QLatin1Char('_') + program};
    const QString lines = output(text("bash"), arguments + QStringList{program} + words, directory);
    const QStringList list = lines.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    return QSet<QString>(list.begin(), list.end());
}

QSet<QString> set(const char* words)
{
    const QStringList list = text(words).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return QSet<QString>(list.begin(), list.end());
}

} // namespace

/// The manual pages and the completion of the shell say what the programs' own help says.
class TestCommandDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sayTheSame_data();
    void sayTheSame();
    void manualIsWellFormed_data();
    void manualIsWellFormed();
    void completes_data();
    void completes();
};

void TestCommandDocuments::sayTheSame_data()
{
    QTest::addColumn<QString>("program");
    for (const char* program : {"meshquality", "materials"}) {
        QTest::newRow(program) << text(program);
    }
}

void TestCommandDocuments::sayTheSame()
{
    QFETCH(QString, program);
    const QString help = output(text(PROGRAM_DIRECTORY "/") + program, {text("--help")});
    const QString manual = content(manualOf(program));

    const QSet<QString> commands = matches(help, qPrintable(text("^  ") + program + text(" ([a-z]+)\\b")));
    QVERIFY2(commands.size() > 1, qPrintable(help));
    QCOMPARE(sorted(matches(manual, "^\\.Nm\\n\\.Cm ([a-z]+)")), sorted(commands));
    QCOMPARE(sorted(matches(manual, "^\\.It Cm ([a-z]+)$")), sorted(commands));

    QSet<QString> offeredCommands = completions(program, {QString()});
    QSet<QString> offered;
    for (const QString& word : offeredCommands.values()) {
        if (word.startsWith(QLatin1String("--"))) {
            offered.insert(word);
            offeredCommands.remove(word);
        }
    }
    QCOMPARE(sorted(offeredCommands), sorted(commands));
    for (const QString& command : commands) {
        offered += completions(program, {command, text("--")});
    }

    // Every program answers --help, whether or not its help says so.
    const QSet<QString> options = matches(help, "(--[a-z][a-z-]*)") + set("--help");
    QSet<QString> described;
    for (const QString& option : matches(manual, "^\\.It Fl -([a-z-]+)")) {
        described.insert(text("--") + option);
    }
    QCOMPARE(sorted(described), sorted(options));
    QCOMPARE(sorted(offered), sorted(options));
}

void TestCommandDocuments::manualIsWellFormed_data()
{
    sayTheSame_data();
    QTest::newRow("workbench") << text("workbench");
}

void TestCommandDocuments::manualIsWellFormed()
{
    QFETCH(QString, program);
    if (QStandardPaths::findExecutable(text("mandoc")).isEmpty()) {
        QSKIP("mandoc is not installed");
    }
    QCOMPARE(output(text("mandoc"), {text("-T"), text("lint"), text("-W"), text("warning"), manualOf(program)}),
             QString());
}

void TestCommandDocuments::completes_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QSet<QString>>("offered");
    const auto row = [](const char* line, const char* offered) {
        const QStringList words = text(line).split(QLatin1Char(' '));
        QTest::newRow(line) << words.first() << QStringList(words.mid(1)) << set(offered);
    };
    row("meshquality c", "check compare");
    row("meshquality --v", "--version");
    row("meshquality report --h", "--html --histogram --help");
    row("meshquality report --by ", "Volume EdgeRatio AspectRatio AspectGamma Condition Jacobian RadiusRatio "
                                    "RelativeSizeSquared ScaledJacobian Shape ShapeAndSize");
    row("meshquality report --worst 3 --by Asp", "AspectRatio AspectGamma");
    row("meshquality report --histogram Sh", "Shape ShapeAndSize");
    row("meshquality report --worst ", "");
    row("meshquality report o", "one.msh other.json");
    row("meshquality report --json o", "one.msh other.json");
    row("meshquality check --pr", "--profile --print-profile");
    row("meshquality compare --", "--model --language --help");
    row("meshquality model --json --", "--json --language --help");
    row("meshquality check --language ", "English Chinese");
    row("meshquality model o", "one.msh other.json");
    row("meshquality predict o", "");
    row("meshquality nonsense --", "");
    row("materials l", "list");
    row("materials export --f", "--format");
    row("materials export --format ", "csv json");
    row("materials export --output o", "one.msh other.json");
    row("materials list --language C", "Chinese");
    row("materials list --library ", "software project:");
    row("materials list --library s", "software");
    // Bash hands "project:pla" over as three words, and takes back what follows the colon.
    row("materials list --library project :", "plant");
    row("materials list --library project : pla", "plant");
    row("materials list --library project : other", "");
    row("materials import --d", "--dry-run");
    row("materials import so", "software");
    row("materials import o", "one.msh other.json");
    row("materials check oth", "other.json");
    row("materials show o", "");
    row("materials nonsense ", "");
    row("workbench o", "one.msh other.json");
    row("workbench -pl", "-platform");
    row("workbench -platform of", "offscreen");
}

void TestCommandDocuments::completes()
{
    QFETCH(QString, program);
    QFETCH(QStringList, words);
    QFETCH(QSet<QString>, offered);
    const QTemporaryDir directory;
    QVERIFY(QDir(directory.path()).mkdir(text("plant")));
    for (const char* name : {"one.msh", "other.json"}) {
        QFile file(directory.filePath(text(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QCOMPARE(sorted(completions(program, words, directory.path())), sorted(offered));
}

QTEST_GUILESS_MAIN(TestCommandDocuments)

#include "tst_commanddocuments.moc"
