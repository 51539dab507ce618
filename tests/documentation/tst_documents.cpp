// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

QDir source()
{
    return QDir(text(DATAMANAGER_SOURCE_DIR));
}

QString read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The lines between two fences, with what stands in the line before them.
struct Block
{
    QString language;
    QString lineBefore;
    int number; ///< the line of its fence, from 1
    QStringList lines;
};

QList<Block> blocksOf(const QString& page)
{
    const QStringList lines = read(source().filePath(page)).split(QLatin1Char('\n'));
    const QString fence = text("```");
    QList<Block> blocks;
    bool isInside = false;
    for (int i = 0; i < lines.size(); ++i) {
        if (lines.at(i).startsWith(fence)) {
            isInside = !isInside;
            if (isInside) {
                blocks.append({lines.at(i).mid(3), lines.value(i - 1), i + 1, {}});
            }
        } else if (isInside) {
            blocks.last().lines.append(lines.at(i));
        }
    }
    return blocks;
}

/// A line "..." stands for any lines, and "..." at the end of one for its rest.
QString problemOf(const QStringList& shown, const QStringList& real)
{
    int place = 0;
    bool mayPass = false;
    for (const QString& line : shown) {
        if (line.trimmed() == text("...")) {
            mayPass = true;
            continue;
        }
        const bool isCut = line.endsWith(text("..."));
        const auto fits = [&](const QString& candidate) {
            return isCut ? candidate.startsWith(line.chopped(3)) : candidate == line;
        };
        while (mayPass && place < real.size() && !fits(real.at(place))) {
            ++place;
        }
        if (place >= real.size() || !fits(real.at(place))) {
            return text("shown: %1\nreal:  %2").arg(line, real.value(place, text("(end)")));
        }
        mayPass = false;
        ++place;
    }
    return mayPass || place == real.size() ? QString() : text("not shown: %1").arg(real.at(place));
}

struct Command
{
    QString call;
    QStringList output;
};

QList<Command> commandsOf(const Block& block)
{
    QList<Command> commands;
    for (const QString& line : block.lines) {
        if (line.startsWith(text("$ "))) {
            commands.append({line.mid(2), {}});
        } else if (!commands.isEmpty()) {
            commands.last().output.append(line);
        }
    }
    return commands;
}

QStringList linesOf(QString output)
{
    if (output.endsWith(QLatin1Char('\n'))) {
        output.chop(1);
    }
    return output.isEmpty() ? QStringList() : output.split(QLatin1Char('\n'));
}

const char* const mark = "=====command=====";

/// The output of each command of one shell, both streams as they come.
QList<QStringList> run(const QList<Command>& commands, const QString& directory)
{
    QString script;
    for (const Command& command : commands) {
        script += command.call + text("\nstatus=$?; echo '%1'; (exit $status)\n").arg(text(mark));
    }
    QProcess shell;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(text("PATH"), text(PROGRAM_DIRECTORY ":") + environment.value(text("PATH")));
    environment.remove(text("DATAMANAGER_LANGUAGE"));
    shell.setProcessEnvironment(environment);
    shell.setWorkingDirectory(directory);
    shell.setProcessChannelMode(QProcess::MergedChannels);
    shell.start(text("bash"), {text("-c"), script});
    shell.waitForFinished(120000);
    QList<QStringList> outputs;
    const QString output = QString::fromUtf8(shell.readAll());
    for (const QString& part : output.split(text(mark) + QLatin1Char('\n'))) {
        outputs.append(linesOf(part));
    }
    return outputs;
}

QStringList pages()
{
    QStringList names = {text("README.md"), text("CHANGELOG.md"), text("CONTRIBUTING.md")};
    for (const QString& name : QDir(source().filePath(text("docs"))).entryList({text("*.md")})) {
        names.append(text("docs/") + name);
    }
    return names;
}

} // namespace

/// What the pages show, against what it is.
class TestDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linksLeadSomewhere_data();
    void linksLeadSomewhere();
    void showsItsFiles();
    void showsSequences_data();
    void showsSequences();
    void showsCommands_data();
    void showsCommands();
    void readmeShowsTheFirstRun();
    void comparesLines_data();
    void comparesLines();
};

void TestDocuments::linksLeadSomewhere_data()
{
    QTest::addColumn<QString>("page");
    for (const QString& page : pages()) {
        QTest::newRow(page.toUtf8().constData()) << page;
    }
}

void TestDocuments::linksLeadSomewhere()
{
    QFETCH(QString, page);
    static const QRegularExpression link(text("\\]\\(([^)#:]+)(#[^)]*)?\\)"));
    static const QRegularExpression fenced(text("```.*?```"), QRegularExpression::DotMatchesEverythingOption);
    const QString content = read(source().filePath(page)).remove(fenced);
    QVERIFY(!content.isEmpty());
    const QDir directory = QFileInfo(source().filePath(page)).dir();
    QRegularExpressionMatchIterator matches = link.globalMatch(content);
    while (matches.hasNext()) {
        const QString target = matches.next().captured(1);
        QVERIFY2(directory.exists(target), qPrintable(target));
    }
}

void TestDocuments::showsItsFiles()
{
    QStringList shown;
    for (const Block& block : blocksOf(text("docs/getting-started.md"))) {
        static const QRegularExpression name(text("^<!-- (getting-started/[^ ]+) -->$"));
        const QRegularExpressionMatch match = name.match(block.lineBefore);
        if (match.hasMatch()) {
            QCOMPARE(block.lines.join(QLatin1Char('\n')) + QLatin1Char('\n'),
                     read(source().filePath(text("docs/") + match.captured(1))));
            shown.append(match.captured(1));
        }
    }
    QCOMPARE(shown, (QStringList{text("getting-started/CMakeLists.txt"), text("getting-started/main.cpp")}));
}

void TestDocuments::showsSequences_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"frame", "selection", "materials", "coordinates", "meshquality"}) {
        QTest::newRow(name) << text(name);
    }
}

void TestDocuments::showsSequences()
{
    QFETCH(QString, name);
    QProcess program;
    program.start(text(SEQUENCES_PROGRAM), {name});
    QVERIFY(program.waitForFinished(60000));
    QCOMPARE(program.exitCode(), 0);
    const QStringList real = linesOf(QString::fromUtf8(program.readAllStandardOutput()));
    int count = 0;
    for (const Block& block : blocksOf(text("docs/%1.md").arg(name))) {
        if (block.lineBefore == text("<!-- sequences %1 -->").arg(name)) {
            QCOMPARE(block.lines.join(QLatin1Char('\n')), real.join(QLatin1Char('\n')));
            ++count;
        }
    }
    QCOMPARE(count, 1);
}

void TestDocuments::showsCommands_data()
{
    QTest::addColumn<int>("number");
    for (const Block& block : blocksOf(text("docs/commands.md"))) {
        if (block.language == text("console")) {
            QTest::newRow(qPrintable(text("line %1").arg(block.number))) << block.number;
        }
    }
}

void TestDocuments::showsCommands()
{
    QFETCH(int, number);
    const QList<Block> blocks = blocksOf(text("docs/commands.md"));
    const auto block =
        std::find_if(blocks.begin(), blocks.end(), [number](const Block& b) { return b.number == number; });
    const QTemporaryDir directory;
    QDir(directory.path()).mkdir(text("project"));
    for (const QString& mesh : QDir(source().filePath(text("samples"))).entryList({text("*.msh")})) {
        QVERIFY(QFile::link(source().filePath(text("samples/") + mesh), directory.filePath(mesh)));
    }
    const QList<Command> commands = commandsOf(*block);
    QVERIFY(!commands.isEmpty());
    const QList<QStringList> outputs = run(commands, directory.path());
    QCOMPARE(outputs.size(), commands.size() + 1);
    for (int i = 0; i < commands.size(); ++i) {
        const QString problem = problemOf(commands.at(i).output, outputs.at(i));
        QVERIFY2(problem.isEmpty(), qPrintable(commands.at(i).call + QLatin1Char('\n') + problem));
    }
}

void TestDocuments::readmeShowsTheFirstRun()
{
    const QStringList lines = read(source().filePath(text("README.md"))).split(QLatin1Char('\n'));
    QVERIFY(lines.size() < 150);
    const int start = lines.indexOf(text("    samples/plate-with-hole.msh"));
    QVERIFY(start > 0);
    QStringList shown;
    for (int i = start; lines.at(i).startsWith(text("    ")); ++i) {
        shown.append(lines.at(i).mid(4));
    }
    const QList<QStringList> outputs =
        run({{text("meshquality report samples/plate-with-hole.msh"), {}}}, source().path());
    QCOMPARE(problemOf(shown, outputs.first()), QString());
}

void TestDocuments::comparesLines_data()
{
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QStringList>("real");
    QTest::addColumn<bool>("isSame");
    const auto row = [](const char* shown, const char* real, bool isSame) {
        QTest::newRow(shown) << linesOf(text(shown)) << linesOf(text(real)) << isSame;
    };
    row("a\nb", "a\nb", true);
    row("a\nc", "a\nb", false);
    row("a", "a\nb", false);
    row("a\nb\nc", "a\nb", false);
    row("a\n...", "a\nb\nc", true);
    row("a\n...\nc", "a\nb\nb\nc", true);
    row("a\n  ...\nd", "a\nb\nc", false);
    row("ab...", "abc", true);
    row("ab...\nx", "aXc", false);
    row("", "a", false);
}

void TestDocuments::comparesLines()
{
    QFETCH(QStringList, shown);
    QFETCH(QStringList, real);
    QTEST(problemOf(shown, real).isEmpty(), "isSame");
}

QTEST_GUILESS_MAIN(TestDocuments)
#include "tst_documents.moc"
