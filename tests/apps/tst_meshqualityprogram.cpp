// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshQualityProgram.h"

#include "meshquality/MeshFiles.h"

#include <QDir>
#include <QJsonObject>
#include <QRegularExpression>
#include <QtTest>

#include <sys/stat.h>

/// How the program is called, and what it does when that cannot work.
class MeshQualityProgramTest : public QObject, private ScratchFiles
{
    Q_OBJECT

private Q_SLOTS:
    void tellsAboutItself_data();
    void tellsAboutItself();
    void listsOptionsAndExitCodes();
    void tellsThatOutputIsLost_data();
    void tellsThatOutputIsLost();
    void refusesWrongCalls_data();
    void refusesWrongCalls();
    void refusesUnreadableMeshes_data();
    void refusesUnreadableMeshes();
    void goesOnAfterUnreadableMesh();
    void tellsOfModelTrouble_data();
    void tellsOfModelTrouble();
    void takesAnyPath();
    void predictsOnTheApplicationLayout();
    void refusesToPredict();
    void refusesToPredictFromOtherFiles_data();
    void refusesToPredictFromOtherFiles();
    void tellsWhatPredictionsMiss();

private:
    /// A copy of the program in an application directory of its own.
    QString installedProgram() const
    {
        QDir(m_directory.path()).mkpath(QStringLiteral("application/bin"));
        QDir(m_directory.path()).mkpath(QStringLiteral("application/mesher"));
        QDir(m_directory.path()).mkpath(QStringLiteral("application/temp"));
        for (const char* name : {"application/mesher/mesh.onnx", "application/temp/mesh.msh"}) {
            QFile::remove(path(name));
        }
        const QString program = path("application/bin/meshquality");
        QFile::copy(QStringLiteral(MESHQUALITY_PROGRAM), program);
        return program;
    }
};

namespace {

const QString slivers = QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/slivers.msh");
const QStringList report{QStringLiteral("report")};

} // namespace

void MeshQualityProgramTest::tellsAboutItself_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("--version") << QStringList{QStringLiteral("--version")}
                               << QByteArray("meshquality " MESHQUALITY_VERSION "\n");
    QTest::newRow("--help") << QStringList{QStringLiteral("--help")} << QByteArray("Quality of tetrahedral meshes");
    QTest::newRow("report --help") << (report + QStringList{QStringLiteral("--help")})
                                   << QByteArray("Quality of tetrahedral meshes");
}

void MeshQualityProgramTest::tellsAboutItself()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, start);
    const ProgramRun run = runMeshQuality(arguments);
    QCOMPARE(run.exitCode, 0);
    QVERIFY(run.output.startsWith(start));
    QCOMPARE(run.errors, QByteArray());
}

void MeshQualityProgramTest::listsOptionsAndExitCodes()
{
    const QString help = QString::fromUtf8(runMeshQuality({QStringLiteral("--help")}).output);
    const QString ofReport =
        help.mid(help.indexOf(QStringLiteral("meshquality report"))).section(QStringLiteral("meshquality check"), 0, 0);
    QStringList options;
    QRegularExpressionMatchIterator match =
        QRegularExpression(QStringLiteral("^ +--([a-z-]+)( [A-Z]+)? "), QRegularExpression::MultilineOption)
            .globalMatch(ofReport);
    while (match.hasNext()) {
        const QRegularExpressionMatch option = match.next();
        options.append(option.captured(1));
        // Each is an option indeed, and takes a value only if the list says so.
        QStringList call = report + QStringList{QStringLiteral("--") + option.captured(1)};
        const QByteArray errors = runMeshQuality(call).errors;
        QVERIFY2(!errors.contains("Unknown option"), errors.constData());
        QCOMPARE(errors.contains("Missing value"), !option.captured(2).isEmpty());
    }
    for (const char* name : {"json", "jsonl", "csv", "vtu", "html", "worst", "by", "histogram", "by-region", "model"}) {
        QVERIFY2(options.contains(QString::fromLatin1(name)), name);
    }
    for (const char* call : {"check [--profile FILE] MESH...", "check --print-profile", "compare [--model FILE] A B",
                             "model [--json] [FILE]", "predict"}) {
        QVERIFY2(help.contains(QStringLiteral("  meshquality ") + QString::fromLatin1(call)), call);
    }
    QVERIFY(help.simplified().endsWith(
        QStringLiteral("Exit codes: 0 ok, 1 a mesh fails its check or a model does not meet the contract, 2 wrong call "
                       "or a result cannot be written, 3 a mesh or the model to be judged cannot be read, 4 the model "
                       "cannot be used for scores; of several the highest.")));
}

void MeshQualityProgramTest::tellsThatOutputIsLost_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("table") << (report + QStringList{slivers, slivers});
    QTest::newRow("JSON") << (report + QStringList{QStringLiteral("--json"), QStringLiteral("-"), slivers});
    QTest::newRow("compare") << QStringList{QStringLiteral("compare"), slivers, slivers};
    QTest::newRow("help") << QStringList{QStringLiteral("--help")};
}

void MeshQualityProgramTest::tellsThatOutputIsLost()
{
    if (!QFile::exists(QStringLiteral("/dev/full"))) {
        QSKIP("there is no device that is always full");
    }
    QFETCH(QStringList, arguments);
    const ProgramRun run = runMeshQualityInto(QStringLiteral("/dev/full"), arguments);
    QCOMPARE(run.errors, QByteArray("meshquality: standard output: cannot be written\n"));
    QCOMPARE(run.exitCode, 2);
}

void MeshQualityProgramTest::refusesWrongCalls_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("what");
    const auto row = [](const char* call, const char* what) {
        QTest::newRow(call) << QString::fromLatin1(call).split(QLatin1Char(' '), Qt::SkipEmptyParts)
                            << QByteArray(what);
    };
    row("", "no command is given");
    row("rate a.msh", "unknown command 'rate'");
    row("report", "no mesh is given");
    row("report --json out.json", "no mesh is given");
    row("report --jsn a.msh", "Unknown option 'jsn'");
    row("report a.msh --model", "Missing value after '--model'");
    row("report --version a.msh", "Unknown option 'version'");
    row("report --json= a.msh", "--json needs a file");
    row("report --vtu= a.msh", "--vtu needs a file");
    row("report --html= a.msh", "--html needs a file");
    row("report --vtu out.vtu a.msh b.msh", "--vtu goes with one mesh");
    row("report --jsonl --json - a.msh", "--jsonl and --json - both need standard output");
    row("report --worst 0 a.msh", "--worst needs a number from 1");
    row("report --worst x a.msh", "--worst needs a number from 1");
    row("report --by Shape a.msh", "--by goes with --worst");
    row("report --worst 3 --by Beauty a.msh", "there is no metric 'Beauty'");
    row("report --histogram Beauty a.msh", "there is no metric 'Beauty'");
    row("predict a.msh", "predict takes no arguments");
}

void MeshQualityProgramTest::refusesWrongCalls()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, what);
    const ProgramRun run = runMeshQuality(arguments);
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.output, QByteArray());
    QCOMPARE(run.errors, "meshquality: " + what + "; see meshquality --help\n");
}

void MeshQualityProgramTest::refusesUnreadableMeshes_data()
{
    QTest::addColumn<QString>("mesh");
    QTest::addColumn<QByteArray>("what");
    const QString pipe = path("pipe");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QTest::newRow("missing") << path("none.msh") << QByteArray("no such file");
    QTest::newRow("directory") << m_directory.path() << QByteArray("not a regular file");
    QTest::newRow("pipe") << pipe << QByteArray("not a regular file");
    const QString script = file("script.msh", "// $MeshFormat\n4.1 0 8\n$EndMeshFormat\n");
    QTest::newRow("version") << script
                             << QByteArray("MSH 4.1 ASCII, not MSH 2 ASCII; convert it with: "
                                           "gmsh -save -format msh22 -o converted.msh '" +
                                           script.toUtf8() + "'");
    QTest::newRow("no tetrahedra") << file("flat.msh", MeshFiles::mesh({"1 0 0 0"}, {})) << QByteArray("no tetrahedra");
    QTest::newRow("only broken tetrahedra")
        << file("broken.msh", MeshFiles::mesh({"1 0 0 0"}, {"1 4 2 0 1 1 2 3 4", "2 4 2"}))
        << QByteArray("no tetrahedra (2 lines skipped, first: line 10: names a node that is not there (nodes are "
                      "numbered by their place in the file))");
}

void MeshQualityProgramTest::refusesUnreadableMeshes()
{
    QFETCH(QString, mesh);
    QFETCH(QByteArray, what);
    const ProgramRun run = runMeshQuality(report + QStringList{QStringLiteral("--json"), QStringLiteral("-"), mesh});
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.output, QByteArray("[]\n"));
    QCOMPARE(run.errors, "meshquality: " + mesh.toUtf8() + ": " + what + '\n');
}

void MeshQualityProgramTest::goesOnAfterUnreadableMesh()
{
    const ProgramRun run = runMeshQuality(report + QStringList{slivers, path("none.msh"), slivers});
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.output.count("777 nodes"), 2);
    QCOMPARE(run.errors, "meshquality: " + path("none.msh").toUtf8() + ": no such file\n");
}

void MeshQualityProgramTest::tellsOfModelTrouble_data()
{
    QTest::addColumn<QString>("modelFile");
    QTest::newRow("missing") << path("none.onnx");
    QTest::newRow("text") << file("text.onnx", "no model");
    QTest::newRow("wrong names") << model("other-input-name");
    QTest::newRow("wrong type") << model("double-input");
}

void MeshQualityProgramTest::tellsOfModelTrouble()
{
    QFETCH(QString, modelFile);
    const ProgramRun run = runMeshQuality(report + QStringList{QStringLiteral("--model"), modelFile, slivers});
    QCOMPARE(run.exitCode, 4);
    QVERIFY(run.output.contains("  777 nodes, 3156 tetrahedra (0 inverted, 0 flat)\n"));
    QVERIFY(run.output.endsWith("  no score: the model cannot be used\n"));
    const QByteArray start = "meshquality: " + modelFile.toUtf8() + ": ";
    QVERIFY2(run.errors.contains(start), run.errors.constData());
    QVERIFY(run.errors.mid(run.errors.indexOf(start)).size() > start.size() + 10);

    const ProgramRun json = runMeshQuality(report + QStringList{QStringLiteral("--json"), QStringLiteral("-"),
                                                                QStringLiteral("--model"), modelFile, slivers});
    QCOMPARE(json.exitCode, 4);
    const QJsonObject mesh = onlyObject(json.output);
    QCOMPARE(mesh.value(QStringLiteral("tetrahedra")).toInt(), 3156);
    QVERIFY(mesh.value(QStringLiteral("score")).isNull());
    QCOMPARE(mesh.value(QStringLiteral("features")).toObject().size(), 11);
    QVERIFY(json.errors.contains(start));
}

void MeshQualityProgramTest::takesAnyPath()
{
    const QString mesh = file("a b %1 é'.msh", MeshFiles::oneTetrahedron(MeshFiles::regular()));
    const ProgramRun run = runMeshQuality(report + QStringList{QStringLiteral("--json"), QStringLiteral("-"),
                                                               QStringLiteral("--model"), model("volume"), mesh});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(onlyObject(run.output).value(QStringLiteral("tetrahedra")).toInt(), 1);
}

void MeshQualityProgramTest::predictsOnTheApplicationLayout()
{
    const QString program = installedProgram();
    QVERIFY(QFile::copy(model("above-one"), path("application/mesher/mesh.onnx")));
    QVERIFY(QFile::copy(slivers, path("application/temp/mesh.msh")));
    const ProgramRun run = runMeshQuality({QStringLiteral("predict")}, program);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output, QByteArray("0 0 0 0 0 0 0 0 0 1\n"));
    // The default model is the same one.
    const ProgramRun reported =
        runMeshQuality(report + QStringList{QStringLiteral("--json"), QStringLiteral("-"), slivers}, program);
    QCOMPARE(onlyObject(reported.output).value(QStringLiteral("score")).toDouble(), 1.0);
}

void MeshQualityProgramTest::refusesToPredict()
{
    const QString program = installedProgram();
    const ProgramRun withoutMesh = runMeshQuality({QStringLiteral("predict")}, program);
    QCOMPARE(withoutMesh.exitCode, 3);
    QVERIFY(withoutMesh.errors.endsWith("/../temp/mesh.msh: no such file\n"));
    QVERIFY(QFile::copy(slivers, path("application/temp/mesh.msh")));
    const ProgramRun withoutModel = runMeshQuality({QStringLiteral("predict")}, program);
    QCOMPARE(withoutModel.exitCode, 4);
    QCOMPARE(withoutModel.output, QByteArray());
    QVERIFY(withoutModel.errors.contains("/../mesher/mesh.onnx: "));
}

void MeshQualityProgramTest::refusesToPredictFromOtherFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("problem");
    const QByteArray good = MeshFiles::oneTetrahedron(MeshFiles::regular());
    const QByteArray advice = ", not MSH 2 ASCII; convert it with: gmsh -save -format msh22 -o converted.msh '";
    const auto withFormat = [&good](const char* format) { return QByteArray(good).replace("2.2 0 8", format); };
    QTest::newRow("version 4") << withFormat("4.1 0 8") << "MSH 4.1 ASCII" + advice;
    QTest::newRow("version 1") << QByteArray("$NOD\n1\n1 0 0 0\n$ENDNOD\n") << "MSH 1 ASCII" + advice;
    QTest::newRow("no version") << withFormat("2.x 0 8") << "MSH 2.x ASCII" + advice;
    QTest::newRow("binary") << withFormat("2.2 1 8") << "MSH 2.2 binary" + advice;
    QTest::newRow("no header") << good.mid(good.indexOf("$Nodes")) << "a file without $MeshFormat" + advice;
    QTest::newRow("no tetrahedra") << MeshFiles::mesh({"1 0 0 0"}, {}) << QByteArray("no tetrahedra\n");
}

void MeshQualityProgramTest::refusesToPredictFromOtherFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, problem);
    const QString program = installedProgram();
    QVERIFY(QFile::copy(model("above-one"), path("application/mesher/mesh.onnx")));
    file("application/temp/mesh.msh", content);
    const ProgramRun run = runMeshQuality({QStringLiteral("predict")}, program);
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.output, QByteArray());
    QVERIFY2(run.errors.contains("/../temp/mesh.msh: " + problem), run.errors.constData());
}

void MeshQualityProgramTest::tellsWhatPredictionsMiss()
{
    const QString program = installedProgram();
    QVERIFY(QFile::copy(model("not-a-number"), path("application/mesher/mesh.onnx")));
    file("application/temp/mesh.msh",
         MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0 0 1"}, {"1 4 2 0 1 1 2 3 4", "2 4 2 0 1 1 2 3"}));
    const ProgramRun run = runMeshQuality({QStringLiteral("predict")}, program);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output, QByteArray("0 0 0 0 0 0 0 0 0 nan\n"));
    const QByteArray mesh = path("application/bin").toUtf8() + "/../temp/mesh.msh";
    QCOMPARE(run.errors, "meshquality: " + mesh +
                             ": warning: 1 lines skipped: line 14: a tetrahedron needs nine columns\n" +
                             "meshquality: " + mesh +
                             ": warning: the score is no number; why is told by: meshquality report '" + mesh + "'\n");
}

QTEST_GUILESS_MAIN(MeshQualityProgramTest)
#include "tst_meshqualityprogram.moc"
