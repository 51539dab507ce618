// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshQualityProgram.h"

#include "meshquality/LiteralPipeline.h"
#include "meshquality/MeshFiles.h"

#include <datamanager/meshquality/MeshQualityPredict.h>
#include <datamanager/meshquality/MeshQualityReport.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>
#include <sys/resource.h>
#include <sys/stat.h>

using Metric = DataManager::MeshQualityReport::Metric;

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
    void reportsForPeople();
    void reportsForPrograms();
    void writesJsonIntoFile();
    void addsSpreadRegionsAndWorstToJson();
    void writesEveryElementIntoCsv();
    void listsTheWorst();
    void drawsHistogram();
    void tellsOfRegions();
    void writesNullForNoNumber();
    void refusesUnreadableMeshes_data();
    void refusesUnreadableMeshes();
    void goesOnAfterUnreadableMesh();
    void tellsOfModelTrouble_data();
    void tellsOfModelTrouble();
    void takesAnyPath();
    void predictsOnTheApplicationLayout();
    void refusesToPredict();

private:
    /// A copy of the program in an application directory of its own.
    QString installedProgram() const
    {
        QDir(m_directory.path()).mkpath(QStringLiteral("application/bin"));
        QDir(m_directory.path()).mkpath(QStringLiteral("application/mesher"));
        QDir(m_directory.path()).mkpath(QStringLiteral("application/temp"));
        const QString program = path("application/bin/meshquality");
        QFile::copy(QStringLiteral(MESHQUALITY_PROGRAM), program);
        return program;
    }
};

namespace {

const QString slivers = QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/slivers.msh");
const QStringList report{QStringLiteral("report")};

/// All keys in the order in which they stand there.
QStringList keysOf(const QByteArray& json)
{
    QStringList keys;
    QRegularExpressionMatchIterator match =
        QRegularExpression(QStringLiteral("\"(\\w+)\":")).globalMatch(QString::fromUtf8(json));
    while (match.hasNext()) {
        keys.append(match.next().captured(1));
    }
    return keys;
}

/// The same table by another road.
DataManager::MeshQualityReport measured(const QString& mesh)
{
    DataManager::MeshQualityReport measures;
    measures.measure(mesh);
    return measures;
}

float scoreOf(const QString& mesh)
{
    std::array<float, 11> features = LiteralPipeline::features(mesh);
    DataManager::MeshQualityPredict predict;
    predict.loadModel(DATAMANAGER_SOURCE_DIR "/model/mesh.onnx", "onnx::Gemm_0", "19");
    predict.setFigureParameter(11);
    return predict.inferFigure(features.data());
}

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

void MeshQualityProgramTest::reportsForPeople()
{
    const ProgramRun run = runMeshQuality(report + QStringList{slivers});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QByteArray());
    const QString output = QString::fromUtf8(run.output);
    const std::array<float, 11> features = LiteralPipeline::features(slivers);
    const QStringList names{
        QStringLiteral("Volume"),      QStringLiteral("EdgeRatio"),           QStringLiteral("AspectRatio"),
        QStringLiteral("AspectGamma"), QStringLiteral("Condition"),           QStringLiteral("Jacobian"),
        QStringLiteral("RadiusRatio"), QStringLiteral("RelativeSizeSquared"), QStringLiteral("ScaledJacobian"),
        QStringLiteral("Shape"),       QStringLiteral("ShapeAndSize")};
    for (int i = 0; i < names.size(); ++i) {
        const QRegularExpression line(QStringLiteral("^  %1 +(\\S+)").arg(names.at(i)),
                                      QRegularExpression::MultilineOption);
        const QString mean = line.match(output).captured(1);
        QCOMPARE(mean, QString::number(static_cast<double>(features[static_cast<std::size_t>(i)]), 'g', 6));
    }
    QVERIFY(output.contains(QStringLiteral("777 nodes, 3156 tetrahedra (0 inverted, 0 flat)")));
    QVERIFY(output.contains(QStringLiteral("score %1 (").arg(static_cast<double>(scoreOf(slivers)), 0, 'g', 6)));
    QVERIFY(!output.contains(QStringLiteral("skipped")));
}

void MeshQualityProgramTest::reportsForPrograms()
{
    const ProgramRun run = runMeshQuality(report + QStringList{QStringLiteral("--json"), QStringLiteral("-"), slivers});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QByteArray());

    const QStringList keys = keysOf(run.output);
    QCOMPARE(keys.mid(0, 19).join(QLatin1Char(' ')),
             QStringLiteral("file nodes tetrahedra inverted flat skippedLines features Volume EdgeRatio AspectRatio "
                            "AspectGamma Condition Jacobian RadiusRatio RelativeSizeSquared ScaledJacobian Shape "
                            "ShapeAndSize score"));

    const QJsonObject mesh = onlyObject(run.output);
    QCOMPARE(mesh.value(QStringLiteral("file")).toString(), slivers);
    QCOMPARE(mesh.value(QStringLiteral("nodes")).toInt(), 777);
    QCOMPARE(mesh.value(QStringLiteral("tetrahedra")).toInt(), 3156);
    QCOMPARE(mesh.value(QStringLiteral("inverted")).toInt(-1), 0);
    QCOMPARE(mesh.value(QStringLiteral("flat")).toInt(-1), 0);
    QCOMPARE(mesh.value(QStringLiteral("skippedLines")).toInt(-1), 0);
    const std::array<float, 11> expected = LiteralPipeline::features(slivers);
    const QJsonObject features = mesh.value(QStringLiteral("features")).toObject();
    for (int i = 0; i < 11; ++i) {
        QCOMPARE(static_cast<float>(features.value(keys.at(7 + i)).toDouble()), expected[static_cast<std::size_t>(i)]);
    }
    QCOMPARE(static_cast<float>(mesh.value(QStringLiteral("score")).toDouble()), scoreOf(slivers));
}

void MeshQualityProgramTest::writesJsonIntoFile()
{
    const QString json = path("report.json");
    const QStringList arguments = report + QStringList{QStringLiteral("--json"), json, slivers, slivers};
    const ProgramRun run = runMeshQuality(arguments);
    QCOMPARE(run.exitCode, 0);
    QVERIFY(run.output.contains("777 nodes"));
    QFile written(json);
    QVERIFY(written.open(QIODevice::ReadOnly));
    QCOMPARE(QJsonDocument::fromJson(written.readAll()).array().size(), 2);

    const QString impossible = path("no/such/directory/report.json");
    const ProgramRun failed = runMeshQuality(report + QStringList{QStringLiteral("--json"), impossible, slivers});
    QCOMPARE(failed.exitCode, 2);
    QCOMPARE(failed.errors, "meshquality: " + impossible.toUtf8() + ": cannot be written\n");
}

void MeshQualityProgramTest::addsSpreadRegionsAndWorstToJson()
{
    const ProgramRun run = runMeshQuality(
        report + QStringList{QStringLiteral("--json"), QStringLiteral("-"), QStringLiteral("--worst"),
                             QStringLiteral("3"), QStringLiteral("--by"), QStringLiteral("edgeratio"), slivers});
    QCOMPARE(run.exitCode, 0);
    const QJsonObject mesh = onlyObject(run.output);
    const DataManager::MeshQualityReport expected = measured(slivers);
    const auto shape = expected.summary(Metric::Shape);
    const QJsonObject metrics = mesh.value(QStringLiteral("metrics")).toObject();
    QCOMPARE(metrics.size(), 11);
    const QJsonObject spread = metrics.value(QStringLiteral("Shape")).toObject();
    QCOMPARE(spread.value(QStringLiteral("minimum")).toDouble(), shape.minimum);
    QCOMPARE(spread.value(QStringLiteral("percentile5")).toDouble(), shape.percentile5);
    QCOMPARE(spread.value(QStringLiteral("standardDeviation")).toDouble(), shape.standardDeviation);
    QCOMPARE(spread.size(), 10);

    const QJsonArray regions = mesh.value(QStringLiteral("regions")).toArray();
    QCOMPARE(regions.size(), 1);
    QCOMPARE(regions.first().toObject().value(QStringLiteral("name")).toString(), QStringLiteral("solid"));
    QCOMPARE(regions.first().toObject().value(QStringLiteral("tetrahedra")).toInt(), 3156);

    const QJsonArray worst = mesh.value(QStringLiteral("worst")).toArray();
    QCOMPARE(worst.size(), 3);
    for (int i = 0; i < 3; ++i) {
        const int element = expected.worst(Metric::EdgeRatio, 3)[static_cast<std::size_t>(i)];
        QCOMPARE(worst.at(i).toObject().value(QStringLiteral("element")).toInt(), expected.tag(element));
        QCOMPARE(worst.at(i).toObject().value(QStringLiteral("centroid")).toArray().at(2).toDouble(),
                 expected.centroid(element)[2]);
    }
}

void MeshQualityProgramTest::writesEveryElementIntoCsv()
{
    const QString mesh = file("with \"quotes\", and comma.msh", MeshFiles::oneTetrahedron(MeshFiles::rightCorner()));
    const QString csv = path("elements.csv");
    const ProgramRun run = runMeshQuality(report + QStringList{QStringLiteral("--csv"), csv, mesh, slivers});
    QCOMPARE(run.exitCode, 0);
    QFile written(csv);
    QVERIFY(written.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = written.readAll().split('\n');
    QCOMPARE(lines.size(), 1 + 1 + 3156 + 1);
    QCOMPARE(lines.at(0),
             QByteArray("file,element,region,line,x,y,z,Volume,EdgeRatio,AspectRatio,AspectGamma,Condition,"
                        "Jacobian,RadiusRatio,RelativeSizeSquared,ScaledJacobian,Shape,ShapeAndSize"));
    QVERIFY(lines.at(1).startsWith('"' + mesh.toUtf8().replace('"', "\"\"") +
                                   "\",1,0,13,0.25,0.25,0.25,0.16666666666666666,"));
    const DataManager::MeshQualityReport expected = measured(slivers);
    for (int element = 0; element < 3156; ++element) {
        const QList<QByteArray> fields = lines.at(2 + element).split(',');
        QCOMPARE(fields.size(), 18);
        QCOMPARE(fields.at(1).toInt(), expected.tag(element));
        QCOMPARE(fields.at(16).toDouble(), expected.values(Metric::Shape)[static_cast<std::size_t>(element)]);
    }
    const QString impossible = path("no/such/directory/elements.csv");
    const ProgramRun failed = runMeshQuality(report + QStringList{QStringLiteral("--csv"), impossible, slivers});
    QCOMPARE(failed.exitCode, 2);
    QCOMPARE(failed.errors, "meshquality: " + impossible.toUtf8() + ": cannot be written\n");
}

void MeshQualityProgramTest::listsTheWorst()
{
    const ProgramRun run =
        runMeshQuality(report + QStringList{QStringLiteral("--worst"), QStringLiteral("2"), slivers});
    QCOMPARE(run.exitCode, 0);
    const DataManager::MeshQualityReport expected = measured(slivers);
    int from = run.output.indexOf("worst by Shape:");
    QVERIFY(from > 0);
    for (const int element : expected.worst(Metric::Shape, 2)) {
        const QByteArray text = "element " + QByteArray::number(expected.tag(element)) + " (line " +
                                QByteArray::number(expected.line(element)) + "), region 1 \"solid\", at ";
        from = run.output.indexOf(text, from);
        QVERIFY(from > 0);
    }
    QCOMPARE(run.output.count("    element "), 2);
}

void MeshQualityProgramTest::drawsHistogram()
{
    const ProgramRun run =
        runMeshQuality(report + QStringList{QStringLiteral("--histogram"), QStringLiteral("ScaledJacobian"), slivers});
    QCOMPARE(run.exitCode, 0);
    const QByteArray drawing = run.output.mid(run.output.indexOf("  ScaledJacobian:\n"));
    const QList<QByteArray> lines = drawing.split('\n');
    QCOMPARE(lines.size(), 1 + 20 + 1);
    int total = 0;
    for (int bin = 1; bin <= 20; ++bin) {
        total += lines.at(bin).simplified().split(' ').at(1).toInt();
    }
    QCOMPARE(total, 3156);
    QVERIFY(drawing.contains(QByteArray(50, '#')));
    QVERIFY(!drawing.contains(QByteArray(51, '#')));
}

void MeshQualityProgramTest::tellsOfRegions()
{
    const QString housing = QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/bearing-housing.msh");
    const ProgramRun run = runMeshQuality(report + QStringList{QStringLiteral("--by-region"), housing});
    QCOMPARE(run.exitCode, 0);
    const std::vector<DataManager::MeshQualityReport::Region> regions = measured(housing).regions();
    QCOMPARE(regions.size(), std::size_t(3));
    for (const DataManager::MeshQualityReport::Region& region : regions) {
        const QByteArray start = "  region " + QByteArray::number(region.physicalTag) + " \"" + region.name.toUtf8() +
                                 "\": " + QByteArray::number(region.elementCount) +
                                 " tetrahedra (0 inverted, 0 flat)\n";
        QVERIFY(run.output.contains(start));
    }
}

void MeshQualityProgramTest::writesNullForNoNumber()
{
    const QString mesh = file("turned.msh", MeshFiles::oneTetrahedron(MeshFiles::inverted(MeshFiles::rightCorner())));
    const ProgramRun run = runMeshQuality(report + QStringList{QStringLiteral("--json"), QStringLiteral("-"), mesh});
    QCOMPARE(run.exitCode, 0);
    const QJsonObject object = onlyObject(run.output);
    QCOMPARE(object.value(QStringLiteral("inverted")).toInt(), 1);
    QVERIFY(object.value(QStringLiteral("score")).isNull());
    const QJsonObject features = object.value(QStringLiteral("features")).toObject();
    QVERIFY(features.value(QStringLiteral("Shape")).isNull());
    QCOMPARE(features.value(QStringLiteral("Jacobian")).toDouble(), -1.0);
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
    QFile::remove(path("application/mesher/mesh.onnx"));
    QFile::remove(path("application/temp/mesh.msh"));
    const ProgramRun withoutMesh = runMeshQuality({QStringLiteral("predict")}, program);
    QCOMPARE(withoutMesh.exitCode, 3);
    QVERIFY(withoutMesh.errors.endsWith("/../temp/mesh.msh: no such file\n"));
    QVERIFY(QFile::copy(slivers, path("application/temp/mesh.msh")));
    const ProgramRun withoutModel = runMeshQuality({QStringLiteral("predict")}, program);
    QCOMPARE(withoutModel.exitCode, 4);
    QCOMPARE(withoutModel.output, QByteArray());
    QVERIFY(withoutModel.errors.contains("/../mesher/mesh.onnx: "));
}

QTEST_GUILESS_MAIN(MeshQualityProgramTest)
#include "tst_meshqualityprogram.moc"
