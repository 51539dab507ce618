// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/CsvText.h>

#include <QDir>
#include <QProcess>
#include <QtTest>

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

struct Run
{
    int exitCode;
    QString output;
    QString errors;
};

const char* const sampleProperty =
    R"({"label":"p","kind":1,"components":[1,0,0,0,1,0,0,0,1],"remark":"r","flag":false})";

QByteArray material(int id, const char* name, const QByteArray& first = "null", bool isDeleted = false)
{
    return "{\"id\":" + QByteArray::number(id) + ",\"chineseName\":\"C " + name + "\",\"englishName\":\"" + name +
           "\",\"isDeleted\":" + (isDeleted ? "true" : "false") + ",\"property1\":" + first +
           ",\"property2\":null,\"property3\":null,\"property4\":null,\"property5\":null}";
}

QByteArray library(const QList<QByteArray>& materials)
{
    return "{\"materialList\":[" + materials.join(',') + "]}";
}

} // namespace

/// Runs a copy of the program beside libraries of its own.
class TestMaterialsProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void refusesWrongCalls_data();
    void refusesWrongCalls();
    void tellsThatOutputIsLost();
    void lists();
    void shows();
    void importsFromTheSoftwareLibrary();
    void comparesBeforeItImports();
    void importsAndExportsFiles_data();
    void importsAndExportsFiles();
    void refusesFiles_data();
    void refusesFiles();
    void refusesWhatCsvCannotHold();
    void checks_data();
    void checks();
    void acceptsTheDefaultLibrary();
    void reportsFailedSaves();
    void parsesCsv_data();
    void parsesCsv();

private:
    Run run(const QStringList& arguments) const;
    Run run(const char* arguments) const { return run(text(arguments).split(QLatin1Char(' '))); }
    QString path(const char* name) const { return m_directory->filePath(text(name)); }
    void write(const char* name, const QByteArray& content) const;
    QByteArray read(const char* name) const;

    std::unique_ptr<QTemporaryDir> m_directory;
};

void TestMaterialsProgram::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_directory->path()).mkpath(text("bin/ConfigFiles")));
    QVERIFY(QDir(m_directory->path()).mkpath(text("project")));
    QVERIFY(QFile::copy(text(MATERIALS_PROGRAM), path("bin/materials")));
    write("bin/ConfigFiles/MaterialLibrary.json",
          library({material(1, "steel", sampleProperty), material(2, "gone", "null", true), material(3, "copper")}));
}

Run TestMaterialsProgram::run(const QStringList& arguments) const
{
    QProcess process;
    process.setWorkingDirectory(m_directory->path());
    process.start(path("bin/materials"), arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) {
        return {-1, {}, process.errorString()};
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void TestMaterialsProgram::write(const char* name, const QByteArray& content) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QByteArray TestMaterialsProgram::read(const char* name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestMaterialsProgram::refusesWrongCalls_data()
{
    QTest::addColumn<QString>("arguments");
    for (const char* arguments :
         {"", "remove", "list --colour", "list --library", "list --library hardware", "list --library project:", "show",
          "show 1 2", "import", "check a b", "export --format xml", "export --output"}) {
        QTest::newRow(arguments) << text(arguments);
    }
}

void TestMaterialsProgram::refusesWrongCalls()
{
    QFETCH(QString, arguments);
    const Run result = run(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QCOMPARE(result.exitCode, 2);
    QVERIFY(result.errors.startsWith(text("materials: ")));
    QCOMPARE(result.output, QString());
}

void TestMaterialsProgram::tellsThatOutputIsLost()
{
    if (!QFile::exists(text("/dev/full"))) {
        QSKIP("there is no device that is always full");
    }
    for (const char* command : {"list", "list --json", "show 1", "export", "--help"}) {
        QProcess process;
        process.setStandardOutputFile(text("/dev/full"));
        process.start(path("bin/materials"), text(command).split(QLatin1Char(' ')));
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.readAllStandardError(), QByteArray("materials: standard output: cannot be written\n"));
        QCOMPARE(process.exitCode(), 3);
    }
}

void TestMaterialsProgram::lists()
{
    const Run table = run("list");
    QCOMPARE(table.exitCode, 0);
    QCOMPARE(table.errors, QString());
    const QStringList lines = table.output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.at(0).simplified(), text("1 live steel C steel"));
    QCOMPARE(lines.at(1).simplified(), text("2 deleted gone C gone"));
    const QJsonObject json = QJsonDocument::fromJson(run("list --json").output.toUtf8()).object();
    QCOMPARE(json.value(text("library")).toString(), text("software"));
    const QJsonArray materials = json.value(text("materials")).toArray();
    QCOMPARE(materials.size(), 3);
    QCOMPARE(materials.at(1).toObject().value(text("isDeleted")).toBool(), true);
    const Run missing = run("list --library project:project");
    QCOMPARE(missing.exitCode, 3);
    QCOMPARE(missing.errors, text("materials: project/MaterialLibrary.json: cannot be read\n"));
}

void TestMaterialsProgram::shows()
{
    const QString steel = text("1  steel  C steel\n  p (kind 1, flag 0)\n      1 0 0 | 0 1 0 | 0 0 1\n      r\n");
    QCOMPARE(run("show 1").output, steel);
    QCOMPARE(run("show steel").output, steel);
    QCOMPARE(run({text("show"), text("C steel")}).output, steel);
    const QJsonObject json = QJsonDocument::fromJson(run("show copper --json").output.toUtf8()).object();
    QCOMPARE(json.value(text("id")).toInt(), 3);
    for (const char* arguments : {"show 2", "show gone", "show 4", "show brass"}) {
        QCOMPARE(run(arguments).exitCode, 1);
    }
}

void TestMaterialsProgram::importsFromTheSoftwareLibrary()
{
    const Run result = run("import --library project:project software");
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.output.simplified(), text("new steel C steel new copper C copper"));
    QVERIFY(read("project/MaterialLibrary.json").startsWith("DMTC1:"));
    const Run listed = run("list --library project:project");
    QCOMPARE(listed.output.simplified(), text("1 live steel C steel 2 live copper C copper"));
    QCOMPARE(run("import --library project:project software").output.simplified(),
             text("same steel C steel same copper C copper"));
    QCOMPARE(run("list --library project:project").output, listed.output);
    // Back again, only what is named.
    QCOMPARE(run("import project:project copper").output.simplified(), text("same copper C copper"));
    QCOMPARE(run("import project:project brass").exitCode, 1);
}

void TestMaterialsProgram::comparesBeforeItImports()
{
    const QByteArray other = QByteArray(sampleProperty).replace("\"r\"", "\"R\"");
    write("other.json", library({material(1, "steel", other), material(2, "brass"), material(3, "copper"),
                                 material(4, "Free Space"), material(5, "gone", "null", true)}));
    const QByteArray before = read("bin/ConfigFiles/MaterialLibrary.json");
    const QString compared = text("changed steel C steel new brass C brass same copper C copper refused Free Space "
                                  "C Free Space");
    QCOMPARE(run("import other.json --dry-run").output.simplified(), compared);
    QCOMPARE(read("bin/ConfigFiles/MaterialLibrary.json"), before);
    QCOMPARE(run("import other.json").output.simplified(), compared);
    QVERIFY(run("show steel").output.endsWith(text("      r\n")));
    QCOMPARE(run("import other.json --update").exitCode, 0);
    QVERIFY(run("show steel").output.endsWith(text("      R\n")));
    QCOMPARE(run("list").output.simplified(),
             text("1 live steel C steel 2 deleted gone C gone 3 live copper C copper 4 live brass C brass"));
}

void TestMaterialsProgram::importsAndExportsFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("CSV") << text("out.csv");
    QTest::newRow("JSON") << text("out.json");
}

void TestMaterialsProgram::importsAndExportsFiles()
{
    QFETCH(QString, file);
    const QByteArray hard =
        R"({"label":"a, \"b\"\nc","kind":-2,"components":[0.1,1e-300,"Infinity","-Infinity","NaN",3e22,1e-12,"-0",123456789.123],)"
        R"("remark":"","flag":true})";
    write("bin/ConfigFiles/MaterialLibrary.json", library({material(1, "hard", hard), material(2, "bare")}));
    QCOMPARE(run({text("export"), text("--output"), file}).exitCode, 0);
    QCOMPARE(run({text("import"), text("--plain"), text("--library"), text("project:project"), file}).exitCode, 0);
    const QString shown = run("show hard --json").output;
    QVERIFY(shown.contains(text("Infinity")));
    QCOMPARE(run("show hard --json --plain --library project:project").output, shown);
    QCOMPARE(run("show bare --json --plain --library project:project").output, run("show bare --json").output);
    // Onto standard output the same bytes.
    const QString format = file.section(QLatin1Char('.'), -1);
    QCOMPARE(run({text("export"), text("--format"), format}).output.toUtf8(), read(file.toUtf8().constData()));
}

void TestMaterialsProgram::refusesFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("message");
    const QByteArray head = "id,chineseName,englishName,property,label,kind,xx,xy,xz,yx,yy,yz,zx,zy,zz,remark,flag\n";
    const auto row = [](const char* title, const char* name, const QByteArray& content, const char* message) {
        QTest::newRow(title) << text(name) << content << text(message);
    };
    row("no head", "f.csv", "1,2,3\n", "f.csv:1: the head line is not");
    row("too few cells", "f.csv", head + "1,a,b,0\n", "f.csv:2: 4 cells, expected 17");
    row("number", "f.csv", head + "1,a,b,1,l,1,1,0,0,0,x,0,0,0,1,r,0\n", "f.csv:2: yy 'x' is no number");
    row("number with comma", "f.csv", head + "1,a,b,1,l,1,\"1,5\",0,0,0,1,0,0,0,1,r,0\n",
        "f.csv:2: xx '1,5' is no number");
    row("kind", "f.csv", head + "1,a,b,1,l,k,1,0,0,0,1,0,0,0,1,r,0\n", "f.csv:2: kind 'k' is no whole number");
    row("flag", "f.csv", head + "1,a,b,1,l,1,1,0,0,0,1,0,0,0,1,r,2\n", "f.csv:2: flag '2' is neither 0 nor 1");
    row("identifier", "f.csv", head + "x,a,b,0,,,,,,,,,,,,,\n", "f.csv:2: id 'x' is no whole number");
    row("property", "f.csv", head + "1,a,b,6,,,,,,,,,,,,,\n", "f.csv:2: property '6' is not 0 to 5");
    row("line behind a text of two lines", "f.csv", head + "1,a,b,1,\"l\nl\",1,1,0,0,0,1,0,0,0,1,r,0\n2\n",
        "f.csv:4: 1 cells, expected 17");
    row("JSON syntax", "f.json", "{\n \"materialList\": [}\n", "f.json:2:");
    row("JSON root", "f.json", "[]", "f.json:1:1: a JSON object is expected at the root");
    row("no list", "f.json", "{}", "f.json: the root has no list 'materialList'");
}

void TestMaterialsProgram::refusesFiles()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, message);
    const QByteArray before = read("bin/ConfigFiles/MaterialLibrary.json");
    write(name.toUtf8().constData(), content);
    const Run result = run({text("import"), name});
    QCOMPARE(result.exitCode, 3);
    QVERIFY2(result.errors.startsWith(text("materials: ") + message), qPrintable(result.errors));
    QCOMPARE(read("bin/ConfigFiles/MaterialLibrary.json"), before);
    QCOMPARE(run("import nowhere.csv").exitCode, 3);
    // A library that cannot be read is not written to either.
    write("bin/ConfigFiles/MaterialLibrary.json", "damaged");
    QCOMPARE(run("import --library software project:project").exitCode, 3);
    QCOMPARE(read("bin/ConfigFiles/MaterialLibrary.json"), QByteArray("damaged"));
}

void TestMaterialsProgram::refusesWhatCsvCannotHold()
{
    write("bin/ConfigFiles/MaterialLibrary.json",
          library({material(1, "short", R"({"label":"p","kind":1,"components":[1],"remark":"","flag":false})")}));
    const Run result = run("export");
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.output, QString());
    QVERIFY(result.errors.contains(text("material 1, property 1: 1 components")));
    QCOMPARE(run("export --format json").exitCode, 0);
}

void TestMaterialsProgram::checks_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("faults");
    const auto row = [](const char* name, const QByteArray& content, const char* faults) {
        QTest::newRow(name) << content << text(faults);
    };
    const auto with = [](const char* from, const char* to) { return QByteArray(sampleProperty).replace(from, to); };
    row("good", library({material(1, "a", sampleProperty), material(2, "b", "null", true), material(3, "c")}), "");
    row("empty", library({}), "");
    row("gap", library({material(1, "a"), material(3, "c")}), "materialList[1].id: is 3, expected 2\n");
    row("repeated", library({material(1, "a"), material(1, "b")}),
        "materialList[1].id: 1 is taken by materialList[0]\n");
    row("no identifier", library({material(1, "a").replace("\"id\":1", "\"id\":1.5")}),
        "materialList[0].id: is no identifier\n");
    row("tombstone at the end", library({material(1, "a"), material(2, "b", "null", true)}),
        "materialList[1]: the last material is a tombstone\n");
    row("same name", library({material(1, "a"), material(2, "a")}),
        "materialList[1].chineseName: 'C a' is also the name of materialList[0]\n"
        "materialList[1].englishName: 'a' is also the name of materialList[0]\n");
    row("reserved name", library({material(1, "Free Space")}),
        "materialList[0].englishName: 'Free Space' is reserved\n");
    row("empty name", library({material(1, "")}), "materialList[0].englishName: is empty\n");
    row("no material", library({"null", material(2, "a")}),
        "materialList[0]: is no material\nmaterialList[1].id: is 2, expected 1\n");
    row("unknown members", library({material(1, "a").replace("}", ",\"colour\":1}")}).replace("]}", "],\"more\":1}"),
        "more: unknown member\nmaterialList[0].colour: unknown member\n");
    row("missing member", library({material(1, "a").replace(",\"isDeleted\":false", "")}),
        "materialList[0].isDeleted: is missing\n");
    row("other type", library({material(1, "a").replace("\"isDeleted\":false", "\"isDeleted\":0")}),
        "materialList[0].isDeleted: is of another type\n");
    row("no property", library({material(1, "a", "5")}), "materialList[0].property1: is no property\n");
    row("eight components", library({material(1, "a", with("[1,0,", "[1,"))}),
        "materialList[0].property1.components: has 8 values, expected 9\n");
    row("no number", library({material(1, "a", with("[1,", "[\"1\","))}),
        "materialList[0].property1.components[0]: is no number\n");
    row("not finite", library({material(1, "a", with("[1,", "[\"NaN\","))}),
        "materialList[0].property1.components[0]: is NaN\n");
    row("kind", library({material(1, "a", with("\"kind\":1", "\"kind\":\"1\""))}),
        "materialList[0].property1.kind: is no whole number\n");
}

void TestMaterialsProgram::checks()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, faults);
    write("library.json", content);
    const Run result = run("check library.json");
    QCOMPARE(result.exitCode, faults.isEmpty() ? 0 : 1);
    QCOMPARE(QString(result.output).remove(text("library.json: ")), faults);
    const QJsonObject json = QJsonDocument::fromJson(run("check --json library.json").output.toUtf8()).object();
    QCOMPARE(json.value(text("faults")).toArray().size(), faults.count(QLatin1Char('\n')));
}

void TestMaterialsProgram::acceptsTheDefaultLibrary()
{
    QFile::remove(path("bin/ConfigFiles/MaterialLibrary.json"));
    QVERIFY(QFile::copy(text(DATAMANAGER_SOURCE_DIR "/samples/libraries/MaterialLibrary.json"),
                        path("bin/ConfigFiles/MaterialLibrary.json")));
    const Run checked = run("check");
    QCOMPARE(checked.output, QString());
    QCOMPARE(checked.exitCode, 0);
    const QStringList rows = run("export").output.split(QLatin1Char('\n'), Qt::SkipEmptyParts).mid(1);
    QVERIFY(run("list").output.count(QLatin1Char('\n')) >= 25);
    for (const QString& row : rows) {
        const QString remark = Materials::parseCsv(row).first().cells.at(15);
        QVERIFY2(remark.startsWith(text("unit ")), qPrintable(row));
        QVERIFY2(remark.contains(text("; source ")) || remark.contains(text("by convention")), qPrintable(row));
    }
}

void TestMaterialsProgram::reportsFailedSaves()
{
    QVERIFY(QDir(m_directory->path()).mkpath(text("project/MaterialLibrary.json")));
    QCOMPARE(run("import --library project:project software").exitCode, 3);
    QVERIFY(QDir(m_directory->path()).rmdir(text("project/MaterialLibrary.json")));
    // The copy of the unreadable cipher key leaves nothing to encipher with.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(text("DATAMANAGER_CIPHER_KEY_FILE"), text("/nonexistent"));
    QProcess process;
    process.setWorkingDirectory(m_directory->path());
    process.setProcessEnvironment(environment);
    process.start(path("bin/materials"),
                  {text("import"), text("--library"), text("project:project"), text("software")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 3);
    QVERIFY(process.readAllStandardError().contains("Write project material library file fail"));
    QVERIFY(!QFile::exists(path("project/MaterialLibrary.json")));
}

void TestMaterialsProgram::parsesCsv_data()
{
    QTest::addColumn<QString>("csv");
    QTest::addColumn<QString>("rows");
    // Rows as LINE:CELL/CELL and so on.
    QTest::newRow("plain") << text("a,b\nc,d\n") << text("1:a/b 2:c/d");
    QTest::newRow("CRLF, blank lines, no end") << text("a,b\r\n\r\nc,d") << text("1:a/b 3:c/d");
    QTest::newRow("empty cells") << text(",\n\"\"\n") << text("1:/ 2:");
    QTest::newRow("quotes") << text("\"a,\"\"b\"\"\",c\n") << text("1:a,\"b\"/c");
    QTest::newRow("line end in a cell") << text("\"a\nb\",c\nd\n") << text("1:a\nb/c 3:d");
    QTest::newRow("open quote") << text("a,\"b\nc") << text("1:a/b\nc");
    QTest::newRow("nothing") << QString() << QString();
}

void TestMaterialsProgram::parsesCsv()
{
    QFETCH(QString, csv);
    QFETCH(QString, rows);
    QStringList parsed;
    for (const Materials::CsvRow& row : Materials::parseCsv(csv)) {
        parsed.append(QString::number(row.line) + QLatin1Char(':') + row.cells.join(QLatin1Char('/')));
    }
    QCOMPARE(parsed.join(QLatin1Char(' ')), rows);
}

QTEST_GUILESS_MAIN(TestMaterialsProgram)
#include "tst_materialsprogram.moc"
