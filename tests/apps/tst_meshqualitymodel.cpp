// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshQualityProgram.h"

#include "meshquality/MeshFiles.h"
#include "meshquality/ModelFiles.h"
#include "support/JsonSchema.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

#include <sys/stat.h>

/// What the program says about models: `meshquality model`, and beside the scores.
class MeshQualityModelTest : public QObject, private ScratchFiles
{
    Q_OBJECT

private Q_SLOTS:
    void printsTheCard();
    void judgesItsOwnModel();
    void tellsOfViolations();
    void steersNoTerminal();
    void refusesWhatIsNoModel_data();
    void refusesWhatIsNoModel();
    void refusesWrongCalls_data();
    void refusesWrongCalls();
    void writesJson_data();
    void writesJson();
    void reportsNameAndExplain();
    void reportsOnBareModels();
    void reportsWarnOutsideOfTraining();
    void explainsNoSpoiltScore();
    void scoresNotByOtherFeatures();
    void saysWhyAModelDoesNotFit();
    void waitsForNoPipe();
    void comparisonsNameTheModel();

private:
    QString described() const { return file("described.onnx", ModelFiles::described()); }
    /// A regular tetrahedron, whose Shape of 1 lies outside of what described() was trained on.
    QString regular() const { return file("regular.msh", MeshFiles::oneTetrahedron(MeshFiles::regular())); }
    static ProgramRun report(const QStringList& arguments)
    {
        return runMeshQuality(QStringList{QStringLiteral("report"), QStringLiteral("--model")} + arguments);
    }
    static QByteArray fromScore(const QByteArray& text) { return text.mid(text.indexOf("  score ")); }
};

namespace {

const QString slivers = QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/slivers.msh");
const QString card = QStringLiteral("model");
const QString json = QStringLiteral("--json");
const QByteArray outside = "Shape 1 lies outside of the range that the model was trained on, 0.5 to 0.9";

} // namespace

void MeshQualityModelTest::printsTheCard()
{
    const QByteArray content = ModelFiles::withMetadata(ModelFiles::described(), {{"mine", "as\nit is"}});
    const QString path = file("described.onnx", content);
    const ProgramRun run = runMeshQuality({card, path});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.exitCode, 0);
    const QByteArray any = "          any\n";
    const QByteArray expected = path.toUtf8() +
                                "\n"
                                "  meets the contract of a quality model\n"
                                "  scores 0.45 for ordinary features, 0 for zeros, nan for NaN\n"
                                "  name             last\n"
                                "  version          3.1\n"
                                "  meaning          the last\n"
                                "                   feature\n"
                                "  explanation      %1 is one %2th of all, in 100 % of %3\n"
                                "  trainedOn        nothing\n"
                                "  licence          BSD-3-Clause\n"
                                "  dataSha256       0\n"
                                "  featureOrder     [\"Volume\", \"EdgeRatio\", \"AspectRatio\", \"AspectGamma\", "
                                "\"Condition\", \"Jacobian\", \"RadiusRatio\", \"RelativeSizeSquared\", "
                                "\"ScaledJacobian\", \"Shape\", \"ShapeAndSize\"]\n"
                                "  trainingRanges\n"
                                "    Volume              " +
                                any + "    EdgeRatio           " + any + "    AspectRatio         " + any +
                                "    AspectGamma         " + any + "    Condition           " + any +
                                "    Jacobian            " + any + "    RadiusRatio         " + any +
                                "    RelativeSizeSquared " + any + "    ScaledJacobian      " + any +
                                "    Shape                         0.5          0.9\n"
                                "    ShapeAndSize        " +
                                any +
                                "  mine             as\n"
                                "                   it is\n";
    QCOMPARE(run.output, expected);
}

void MeshQualityModelTest::judgesItsOwnModel()
{
    const ProgramRun run = runMeshQuality({card});
    QCOMPARE(run.exitCode, 0);
    QVERIFY(run.output.contains("/../mesher/mesh.onnx\n  meets the contract of a quality model\n"));
    QVERIFY(run.output.contains("\n  name             mesh-accuracy\n"));
}

void MeshQualityModelTest::tellsOfViolations()
{
    const ProgramRun run = runMeshQuality({card, ScratchFiles::model("double-input")});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.output, ScratchFiles::model("double-input").toUtf8() +
                             "\n"
                             "  does not meet the contract: expected the input to be a tensor of float, found one of "
                             "double\n"
                             "  does not meet the contract: expected the output to be a tensor of float, found one of "
                             "double\n"
                             "  remark: the metadata lack name, version, meaning, explanation, trainedOn, licence, "
                             "dataSha256, featureOrder, trainingRanges\n");
}

void MeshQualityModelTest::steersNoTerminal()
{
    const QByteArray content = ModelFiles::withMetadata(
        ModelFiles::content("volume"),
        {{"name", "\x1b[2Jred"}, {"a\x07key", "\x1b]0;title\x07"}, {"trainingRanges", "\x1b\xe2\x80\xae"}});
    const QString path = file("steering.onnx", content);
    const ProgramRun shown = runMeshQuality({card, path});
    QVERIFY(shown.output.contains("  name             \xef\xbf\xbd[2Jred\n"));
    QVERIFY(shown.output.contains("  trainingRanges   \xef\xbf\xbd\xef\xbf\xbd\n"));
    for (const QByteArray& output :
         {shown.output, report({path, regular()}).output,
          runMeshQuality({QStringLiteral("compare"), QStringLiteral("--model"), path, slivers, slivers}).output}) {
        QVERIFY(output.contains("[2Jred"));
        QVERIFY(!output.contains('\x1b') && !output.contains('\x07'));
    }
}

void MeshQualityModelTest::refusesWhatIsNoModel_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("why");
    const QString pipe = path("pipe");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QByteArray noModel = "no ONNX model: ";
    QTest::newRow("missing") << path("none.onnx") << QByteArray("no such file\n");
    QTest::newRow("no name") << QString() << QByteArray("no such file\n");
    QTest::newRow("empty") << file("empty.onnx", "") << QByteArray("is empty\n");
    QTest::newRow("truncated") << file("truncated.onnx", ModelFiles::shipped().left(3000)) << noModel;
    QTest::newRow("text") << file("text.onnx", "no model\n") << noModel;
    QTest::newRow("mesh") << slivers << noModel;
    QTest::newRow("directory") << m_directory.path() << QByteArray("not a regular file\n");
    QTest::newRow("pipe") << pipe << QByteArray("not a regular file\n");
}

void MeshQualityModelTest::refusesWhatIsNoModel()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, why);
    const ProgramRun run = runMeshQuality({card, file});
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.output, QByteArray());
    QVERIFY2(run.errors.startsWith("meshquality: " + file.toUtf8() + ": " + why), run.errors.constData());
    QCOMPARE(run.errors.count('\n'), 1);
    const ProgramRun asJson = runMeshQuality({card, json, file});
    QCOMPARE(asJson.exitCode, 3);
    const QJsonObject object = QJsonDocument::fromJson(asJson.output).object();
    QCOMPARE(object.keys(), (QStringList{QStringLiteral("file"), QStringLiteral("problem")}));
    QVERIFY(object.value(QStringLiteral("problem")).toString().startsWith(QString::fromUtf8(why).trimmed()));
    QCOMPARE(JsonSchema(QStringLiteral("QualityModelCard")).problem(object), QString());
}

void MeshQualityModelTest::refusesWrongCalls_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("errors");
    QTest::newRow("two files") << QStringList{QStringLiteral("a"), QStringLiteral("b")}
                               << QByteArray("meshquality: model takes one file; see meshquality --help\n");
    QTest::newRow("option") << QStringList{QStringLiteral("--html")}
                            << QByteArray("meshquality: Unknown option 'html'; see meshquality --help\n");
}

void MeshQualityModelTest::refusesWrongCalls()
{
    QFETCH(QStringList, arguments);
    const ProgramRun run = runMeshQuality(QStringList{card} + arguments);
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.output, QByteArray());
    QTEST(run.errors, "errors");
}

void MeshQualityModelTest::writesJson_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("described") << described()
                               << QByteArray(R"("title":"last 3.1","meetsContract":true,"violations":[],"remarks":[],)"
                                             R"("scores":{"ordinary":0.45,"zeros":0,"notANumber":null},)"
                                             R"("trainingRanges":{"Shape":[0.5,0.9]},"metadata":{"name":"last",)"
                                             R"("version":"3.1","meaning":"the last\u000afeature",)")
                               << 0;
    QTest::newRow("bare") << ScratchFiles::model("other-input-name")
                          << QByteArray(R"("title":"other-input-name.onnx","meetsContract":false,)"
                                        R"("violations":["expected one input 'onnx::Gemm_0', found 'input'"],)"
                                        R"("remarks":["the metadata lack name, version, meaning, explanation, )"
                                        R"(trainedOn, licence, dataSha256, featureOrder, trainingRanges"],)"
                                        R"("scores":null,"trainingRanges":{},"metadata":{}})")
                          << 1;
}

void MeshQualityModelTest::writesJson()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, start);
    const ProgramRun run = runMeshQuality({card, json, path});
    QTEST(run.exitCode, "exitCode");
    QCOMPARE(run.errors, QByteArray());
    const QJsonObject object = QJsonDocument::fromJson(run.output).object();
    QCOMPARE(object.value(QStringLiteral("file")).toString(), path);
    QCOMPARE(JsonSchema(QStringLiteral("QualityModelCard")).problem(object), QString());
    // The order of the members counts, the layout does not.
    QByteArray compact = run.output;
    compact.replace("\n    ", "").replace("\n  ", "").replace("\n", "").replace("\": ", "\":");
    compact.replace("  \"", "\"").replace("  ]", "]").replace("  }", "}").replace("  0", "0");
    QVERIFY2(compact.contains(start), compact.constData());
}

void MeshQualityModelTest::reportsNameAndExplain()
{
    const ProgramRun run = report({described(), slivers});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QByteArray());
    // The mean of ShapeAndSize, and the mean of Shape just below the range.
    const QByteArray shape = "0.489038";
    QCOMPARE(fromScore(run.output), "  score 0.340382 (0 worst, 1 best)\n"
                                    "  model last 3.1: 0.34 is one 2.94th of all, in 100 % of %3\n"
                                    "  warning: Shape " +
                                        shape +
                                        " lies outside of the range that the model was trained on, 0.5 to 0.9\n");
    const QString page = path("page.html");
    const ProgramRun files = report({described(), json, QStringLiteral("-"), QStringLiteral("--html"), page, slivers});
    const QJsonObject object = onlyObject(files.output);
    QCOMPARE(object.value(QStringLiteral("model")).toObject(),
             (QJsonObject{{QStringLiteral("title"), QStringLiteral("last 3.1")},
                          {QStringLiteral("name"), QStringLiteral("last")},
                          {QStringLiteral("version"), QStringLiteral("3.1")}}));
    QCOMPARE(object.value(QStringLiteral("explanation")).toString(),
             QStringLiteral("0.34 is one 2.94th of all, in 100 % of %3"));
    QFile html(page);
    QVERIFY(html.open(QIODevice::ReadOnly));
    const QByteArray text = html.readAll();
    QVERIFY(text.contains("<p>Model last 3.1: 0.34 is one 2.94th of all, in 100 % of %3</p>"));
    QVERIFY(text.contains("<p class=\"warning\">Shape " + shape + " lies outside of "));
}

void MeshQualityModelTest::reportsOnBareModels()
{
    const ProgramRun run = report({ScratchFiles::model("last-feature"), slivers});
    QCOMPARE(fromScore(run.output), QByteArray("  score 0.340382 (0 worst, 1 best)\n  model last-feature.onnx\n"));
    const QString page = path("bare.html");
    const ProgramRun files = report(
        {ScratchFiles::model("last-feature"), json, QStringLiteral("-"), QStringLiteral("--html"), page, slivers});
    const QJsonObject object = onlyObject(files.output);
    QCOMPARE(object.value(QStringLiteral("model")).toObject(),
             (QJsonObject{{QStringLiteral("title"), QStringLiteral("last-feature.onnx")},
                          {QStringLiteral("name"), QString()},
                          {QStringLiteral("version"), QString()}}));
    QCOMPARE(object.value(QStringLiteral("explanation")), QJsonValue(QString()));
    QCOMPARE(object.value(QStringLiteral("outsideOfTraining")), QJsonValue(QJsonArray()));
    QFile html(page);
    QVERIFY(html.open(QIODevice::ReadOnly));
    QVERIFY(html.readAll().contains("<p>Model last-feature.onnx</p>"));
}

void MeshQualityModelTest::reportsWarnOutsideOfTraining()
{
    const ProgramRun run = report({described(), regular()});
    QCOMPARE(fromScore(run.output), "  score 1 (0 worst, 1 best)\n"
                                    "  model last 3.1: 1 is one 1th of all, in 100 % of %3\n"
                                    "  warning: " +
                                        outside + "\n");
    QCOMPARE(run.exitCode, 0);
    const QJsonObject object = onlyObject(report({described(), json, QStringLiteral("-"), regular()}).output);
    const QJsonArray excesses = object.value(QStringLiteral("outsideOfTraining")).toArray();
    QCOMPARE(excesses.size(), 1);
    const QJsonObject excess = excesses.first().toObject();
    QCOMPARE(excess.value(QStringLiteral("feature")).toString(), QStringLiteral("Shape"));
    QVERIFY(qAbs(excess.value(QStringLiteral("value")).toDouble() - 1.0) < 1e-6);
    QCOMPARE(excess.value(QStringLiteral("lowest")).toDouble(), 0.5);
    QCOMPARE(excess.value(QStringLiteral("highest")).toDouble(), 0.9);
    QCOMPARE(JsonSchema(QStringLiteral("MeshQualityReport")).problem(QJsonArray{object}), QString());
}

void MeshQualityModelTest::explainsNoSpoiltScore()
{
    const QString flat =
        file("flat.msh", MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 1 1 0"}, {"7 4 2 0 1 1 2 3 4"}));
    const QByteArray content = ModelFiles::withMetadata(ModelFiles::content("above-one"),
                                                        {{"name", "blind"}, {"explanation", "all is well: %1"}});
    const ProgramRun run = report({file("blind.onnx", content), flat});
    QVERIFY(run.output.contains("  score 1 means nothing"));
    QVERIFY2(run.output.endsWith("\n  model blind\n"), run.output.constData());
    const ProgramRun asJson = report({path("blind.onnx"), json, QStringLiteral("-"), flat});
    QCOMPARE(onlyObject(asJson.output).value(QStringLiteral("explanation")), QJsonValue(QString()));
}

void MeshQualityModelTest::scoresNotByOtherFeatures()
{
    const QString path =
        file("other.onnx", ModelFiles::withMetadata(ModelFiles::content("volume"), {{"featureOrder", R"(["Shape"])"}}));
    const ProgramRun run = report({path, slivers});
    QCOMPARE(run.exitCode, 4);
    QVERIFY(run.output.endsWith("  no score: the model cannot be used\n"));
    QCOMPARE(run.errors, "meshquality: " + path.toUtf8() +
                             ": expected the features in the order Volume, EdgeRatio, AspectRatio, AspectGamma, "
                             "Condition, Jacobian, RadiusRatio, RelativeSizeSquared, ScaledJacobian, Shape, "
                             "ShapeAndSize, found the featureOrder [\"Shape\"]\n");
}

void MeshQualityModelTest::saysWhyAModelDoesNotFit()
{
    const QString path = ScratchFiles::model("other-input-name");
    const ProgramRun run = report({path, slivers});
    QCOMPARE(run.exitCode, 4);
    QCOMPARE(run.errors, "meshquality: " + path.toUtf8() + ": expected one input 'onnx::Gemm_0', found 'input'\n");
    const QJsonObject object = onlyObject(report({path, json, QStringLiteral("-"), slivers}).output);
    QCOMPARE(object.value(QStringLiteral("model")), QJsonValue(QJsonValue::Null));
    QCOMPARE(object.value(QStringLiteral("outsideOfTraining")), QJsonValue(QJsonArray()));
    QCOMPARE(JsonSchema(QStringLiteral("MeshQualityReport")).problem(QJsonArray{object}), QString());
}

void MeshQualityModelTest::waitsForNoPipe()
{
    const QString pipe = path("another pipe");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const ProgramRun run = report({pipe, slivers});
    QCOMPARE(run.exitCode, 4);
    QCOMPARE(run.errors, "meshquality: " + pipe.toUtf8() + ": not a regular file\n");
}

void MeshQualityModelTest::comparisonsNameTheModel()
{
    const auto compare = [this](const QString& a, const QString& b) {
        return runMeshQuality({QStringLiteral("compare"), QStringLiteral("--model"), described(), a, b}).output;
    };
    const QString plate = QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/plate-with-hole.msh");
    QVERIFY(compare(plate, plate).endsWith("same\n  model last 3.1\n"));
    QVERIFY(compare(plate, regular()).endsWith("improved\n  model last 3.1\n  warning: B: " + outside + '\n'));
    QVERIFY(compare(regular(), plate).endsWith("worsened\n  model last 3.1\n  warning: A: " + outside + '\n'));
}

QTEST_GUILESS_MAIN(MeshQualityModelTest)
#include "tst_meshqualitymodel.moc"
