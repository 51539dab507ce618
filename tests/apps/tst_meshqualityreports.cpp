// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshQualityProgram.h"

#include "meshquality/LiteralPipeline.h"
#include "meshquality/MeshFiles.h"

#include <datamanager/meshquality/MeshQualityPredict.h>
#include <datamanager/meshquality/MeshQualityReport.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QtTest>

using Metric = DataManager::MeshQualityReport::Metric;

/// What `meshquality report` tells of a mesh, as text, JSON and CSV.
class MeshQualityReportsTest : public QObject, private ScratchFiles
{
    Q_OBJECT

private Q_SLOTS:
    void reportsForPeople();
    void reportsForPrograms();
    void writesJsonIntoFile();
    void addsSpreadRegionsAndWorstToJson();
    void writesEveryElementIntoCsv();
    void listsTheWorst();
    void drawsHistogram();
    void drawsNoHistogramOfNothing();
    void tellsTheSameOfRegions();
    void tellsOfRegions();
    void writesNullForNoNumber();
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

void MeshQualityReportsTest::reportsForPeople()
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

void MeshQualityReportsTest::reportsForPrograms()
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

void MeshQualityReportsTest::writesJsonIntoFile()
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

void MeshQualityReportsTest::addsSpreadRegionsAndWorstToJson()
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

void MeshQualityReportsTest::writesEveryElementIntoCsv()
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

void MeshQualityReportsTest::listsTheWorst()
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

void MeshQualityReportsTest::drawsHistogram()
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
    QVERIFY(!run.output.contains("no finite value"));
    QVERIFY(drawing.contains(QByteArray(50, '#')));
    QVERIFY(!drawing.contains(QByteArray(51, '#')));
}

void MeshQualityReportsTest::drawsNoHistogramOfNothing()
{
    const QString mesh = file("turned.msh", MeshFiles::oneTetrahedron(MeshFiles::inverted(MeshFiles::rightCorner())));
    const ProgramRun run =
        runMeshQuality(report + QStringList{QStringLiteral("--histogram"), QStringLiteral("Shape"), mesh});
    QCOMPARE(run.exitCode, 0);
    QVERIFY(run.output.endsWith("  Shape:\n    no finite value\n"));
}

void MeshQualityReportsTest::tellsTheSameOfRegions()
{
    const QString mesh =
        file("two.msh",
             MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0 0 1", "5 0 0 2"},
                             {"1 4 2 7 1 1 2 3 4", "2 4 2 8 1 1 2 3 5", "3 4 2 8 1 1 2 3 4", "4 4 2 8 1 1 2 3 3"}));
    const ProgramRun run =
        runMeshQuality(report + QStringList{QStringLiteral("--by-region"), QStringLiteral("--worst"),
                                            QStringLiteral("2"), QStringLiteral("--by"), QStringLiteral("Volume"),
                                            QStringLiteral("--histogram"), QStringLiteral("Volume"), mesh});
    QCOMPARE(run.exitCode, 0);
    const QByteArray seventh = run.output.mid(run.output.indexOf("\n  region 7: 1 tetrahedra (0 inverted, 0 flat)\n"));
    const int place = seventh.indexOf("\n  region 8: 3 tetrahedra (0 inverted, 1 flat)\n"
                                      "    1 tetrahedra name a node twice\n");
    QVERIFY2(place > 0, run.output.constData());
    const QByteArray eighth = seventh.mid(place);
    QVERIFY(seventh.left(place).contains("\n    worst by Volume:\n      element 1 (line 14), region 7, at "));
    QCOMPARE(seventh.left(place).count("      element "), 1);
    QVERIFY(eighth.contains("\n    worst by Volume:\n      element 4 (line 17), region 8, at "));
    QVERIFY(eighth.indexOf("      element 3 (line 16)") > eighth.indexOf("      element 4 "));
    QCOMPARE(eighth.count("      element "), 2);
    const QList<QByteArray> bins = eighth.mid(eighth.indexOf("\n    Volume:\n")).split('\n');
    QCOMPARE(bins.size(), 1 + 1 + 20 + 1);
    QCOMPARE(bins.at(2).simplified(), QByteArray("0 1 ") + QByteArray(50, '#'));
    QCOMPARE(bins.at(12).simplified(), QByteArray("0.166667 1 ") + QByteArray(50, '#'));
    QVERIFY(bins.at(21).endsWith(" 1 " + QByteArray(50, '#')));

    const QJsonArray regions =
        onlyObject(runMeshQuality(report + QStringList{QStringLiteral("--json"), QStringLiteral("-"), mesh}).output)
            .value(QStringLiteral("regions"))
            .toArray();
    QCOMPARE(regions.at(0).toObject().value(QStringLiteral("duplicateNodes")).toInt(-1), 0);
    QCOMPARE(regions.at(1).toObject().value(QStringLiteral("duplicateNodes")).toInt(-1), 1);
}

void MeshQualityReportsTest::tellsOfRegions()
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

void MeshQualityReportsTest::writesNullForNoNumber()
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

QTEST_GUILESS_MAIN(MeshQualityReportsTest)
#include "tst_meshqualityreports.moc"
