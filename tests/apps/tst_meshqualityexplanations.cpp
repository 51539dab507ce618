// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshQualityProgram.h"

#include "meshquality/MeshFiles.h"

#include <datamanager/meshquality/MeshQualityReport.h>

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>
#include <sys/resource.h>

/// What the program says about meshes whose figures cannot be taken at their word.
class MeshQualityExplanationsTest : public QObject, private ScratchFiles
{
    Q_OBJECT

private Q_SLOTS:
    void explainsMissingScores();
    void tellsOfSpoiltScores_data();
    void tellsOfSpoiltScores();
    void tellsOfRepeatedNodes();
    void warnsOfLayout();
    void readsLongLinesInLittleMemory();
    void tellsSkippedLines();
};

namespace {

const QString slivers = QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/slivers.msh");
const QStringList report{QStringLiteral("report")};

} // namespace

void MeshQualityExplanationsTest::explainsMissingScores()
{
    QList<QByteArray> elements{"70 4 2 0 1 1 2 3 4", "71 4 2 0 1 1 2 3 5"};
    for (int i = 0; i < 5; ++i) {
        elements.append(QByteArray::number(80 + i) + " 4 2 0 1 1 3 2 4");
    }
    const QByteArray content = MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0 0 1", "5 1 1 0"}, elements);
    const ProgramRun run = runMeshQuality(report + QStringList{file("inverted.msh", content)});
    QCOMPARE(run.exitCode, 0);
    QVERIFY(run.output.contains("(5 inverted, 1 flat)"));
    QVERIFY(run.output.contains("score nan: "));
    QVERIFY(run.output.contains("element 71 (line 15): flat\n"));
    QVERIFY(run.output.contains("element 80 (line 16): inverted\n"));
    QVERIFY(run.output.contains("and 1 more\n"));
    QVERIFY(!run.output.contains("element 70"));
}

void MeshQualityExplanationsTest::tellsOfSpoiltScores_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray regular = MeshFiles::oneTetrahedron(MeshFiles::regular());
    // The apex so close to the base that ratios leave the range of single precision, or their sum that of double.
    const auto low = [](const QByteArray& height, int count) {
        QByteArray content = MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0.3 0.3 " + height},
                                             {"1 4 2 0 1 1 2 3 4", "2 4 2 0 1 1 2 3 4"});
        return count == 2 ? content : content.replace("2 4 2 0 1 1 2 3 4\n", "");
    };
    const QByteArray flat = MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 1 1 0"}, {"7 4 2 0 1 1 2 3 4"});
    const QByteArray meaningless = "means nothing, because a mean is no finite number:\n";
    const QByteArray ofFlat = "  no finite mean of AspectRatio, AspectGamma, Condition, RadiusRatio, "
                              "RelativeSizeSquared, ShapeAndSize: these elements have no finite value\n"
                              "    element 7 (line 13): flat\n";
    QTest::newRow("good") << regular << QByteArray("above-one") << QByteArray("  score 1 (0 worst, 1 best)\n");
    QTest::newRow("the model gives no number")
        << regular << QByteArray("not-a-number")
        << QByteArray("  score nan: there is none, because the model gives no number for these means\n");
    QTest::newRow("only flat, yet a score") << flat << QByteArray("above-one") << "  score 1 " + meaningless + ofFlat;
    QTest::newRow("only flat, no score") << flat << QByteArray("not-a-number")
                                         << "  score nan: there is none, because a mean is no finite number:\n" +
                                                ofFlat;
    QTest::newRow("narrowed") << low("1e-42", 1) << QByteArray("above-one")
                              << "  score 1 " + meaningless +
                                     "  no finite mean of AspectRatio, AspectGamma, Condition, RadiusRatio: every "
                                     "element has a value and so has the mean, but it is too large for the single "
                                     "precision in which the model takes it\n";
    QTest::newRow("sum out of range") << low("2.236e-155", 2) << QByteArray("above-one")
                                      << "  score 1 " + meaningless +
                                             "  no finite mean of AspectRatio, AspectGamma, Condition: every element "
                                             "has a value and so has the mean, but it is too large for the single "
                                             "precision in which the model takes it\n"
                                             "  no finite mean of RadiusRatio: every element has a value, but their "
                                             "sum is out of range\n";
}

void MeshQualityExplanationsTest::tellsOfSpoiltScores()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, model);
    QFETCH(QByteArray, expected);
    const ProgramRun run = runMeshQuality(
        report + QStringList{QStringLiteral("--model"), this->model(model.constData()), file("spoilt.msh", content)});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QByteArray());
    const QByteArray end = run.output.mid(run.output.indexOf("  score "));
    QCOMPARE(end, expected + "  model " + model + ".onnx\n");
}

void MeshQualityExplanationsTest::tellsOfRepeatedNodes()
{
    const QString mesh = file("repeated.msh", MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0 0 1"},
                                                              {"1 4 2 0 1 1 2 3 4", "2 4 2 0 1 1 2 3 3"}));
    const ProgramRun run = runMeshQuality(report + QStringList{mesh});
    QVERIFY(run.output.contains("  4 nodes, 2 tetrahedra (0 inverted, 1 flat)\n  1 tetrahedra name a node twice\n"));
    QVERIFY(!runMeshQuality(report + QStringList{slivers}).output.contains("twice"));
    const ProgramRun json = runMeshQuality(report + QStringList{QStringLiteral("--json"), QStringLiteral("-"), mesh});
    QCOMPARE(onlyObject(json.output).value(QStringLiteral("duplicateNodes")).toInt(), 1);
    QVERIFY(json.output.lastIndexOf("\"duplicateNodes\"") > json.output.indexOf("\"worst\""));
}

void MeshQualityExplanationsTest::warnsOfLayout()
{
    const QString mesh = file("renumbered.msh", MeshFiles::mesh({"1 0 0 0", "3 1 0 0", "2 0 1 0", "4 0 0 1"},
                                                                {"1 4 2 0 1 1 2 3 4", "2 4 3 0 1 1 2 3 4"}));
    DataManager::MeshQualityReport measures;
    measures.measure(mesh);
    const QStringList warnings = measures.warnings(mesh);
    QCOMPARE(warnings.size(), 2);
    const QByteArray start = "meshquality: " + mesh.toUtf8() + ": warning: ";
    const QByteArray expected = start + warnings.at(0).toUtf8() + '\n' + start + warnings.at(1).toUtf8() + '\n';
    const QString profile = file("profile.json", R"({"thresholds": [{"metric": "EdgeRatio", "maximum": 3}]})");
    for (const QStringList& call : {report, report + QStringList{QStringLiteral("--json"), QStringLiteral("-")},
                                    QStringList{QStringLiteral("check"), QStringLiteral("--profile"), profile},
                                    QStringList{QStringLiteral("compare"), slivers}}) {
        const ProgramRun run = runMeshQuality(call + QStringList{mesh});
        QCOMPARE(run.errors, expected);
        QCOMPARE(run.exitCode, 0);
    }
    const QJsonObject object =
        onlyObject(runMeshQuality(report + QStringList{QStringLiteral("--json"), QStringLiteral("-"), mesh}).output);
    QCOMPARE(object.value(QStringLiteral("misnumberedNodes")).toInt(), 2);
    QCOMPARE(object.value(QStringLiteral("otherTagCounts")).toInt(), 1);
    QCOMPARE(object.value(QStringLiteral("warnings")).toArray().size(), 2);
}

// One line of 400 MB, nearly all of it a hole in the file. Outside of the sections it is not kept; in the nodes it is,
// but once.
void MeshQualityExplanationsTest::readsLongLinesInLittleMemory()
{
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("the sanitizer's own memory counts, too");
#endif
    constexpr qint64 lineSize = 400 << 20;
    const QByteArray good = MeshFiles::oneTetrahedron(MeshFiles::regular());
    const QString mesh = path("long.msh");
    const auto peakAfterReport = [&](const QByteArray& before, const QByteArray& after) {
        MeshFiles::write(mesh, before);
        QFile hole(mesh);
        const bool isMade = hole.open(QIODevice::ReadWrite) && hole.resize(before.size() + lineSize) &&
                            hole.seek(hole.size()) && hole.write(after) == after.size();
        hole.close();
        const ProgramRun run = runMeshQuality(report + QStringList{mesh});
        rusage children{};
        getrusage(RUSAGE_CHILDREN, &children);
        return isMade && run.exitCode == 0 ? qint64(children.ru_maxrss) * 1024 : std::numeric_limits<qint64>::max();
    };
    const int nodes = good.indexOf("$Nodes");
    const qint64 outside = peakAfterReport(good.left(nodes), '\n' + good.mid(nodes));
    QVERIFY2(outside < lineSize / 2, QByteArray::number(outside).constData());
    const int end = good.indexOf("$EndNodes");
    const qint64 inNodes = peakAfterReport(good.left(end), '\n' + good.mid(end));
    QVERIFY2(inNodes < lineSize + lineSize / 4, QByteArray::number(inNodes).constData());
    QFile::remove(mesh);
}

void MeshQualityExplanationsTest::tellsSkippedLines()
{
    QList<QByteArray> elements{"1 4 2 0 1 1 2 3 4", "2 4 2 0 1 1 2 3", "3 4 2 0 1 1 2 3 5"};
    for (int i = 4; i < 20; ++i) {
        elements.append(QByteArray::number(i) + " 4 2");
    }
    const QString mesh = file("skipped.msh", MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0 0 1"}, elements));
    const QByteArray shortLine(": a tetrahedron needs nine columns");
    const QList<QByteArray> places{
        "line 14" + shortLine,
        "line 15: names a node that is not there (nodes are numbered by their place in the file)",
        "line 16" + shortLine,
        "line 17" + shortLine,
        "line 18" + shortLine,
        "and 13 more"};
    const ProgramRun run = runMeshQuality(report + QStringList{mesh});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QByteArray());
    QVERIFY(run.output.contains("  18 lines skipped:\n    " + places.join("\n    ") + '\n'));

    // Where the result has no room for them, they are told beside it.
    const QByteArray warning =
        "meshquality: " + mesh.toUtf8() + ": warning: 18 lines skipped: " + places.join("; ") + '\n';
    QCOMPARE(runMeshQuality({QStringLiteral("check"), mesh}).errors, warning);
    QCOMPARE(runMeshQuality({QStringLiteral("compare"), slivers, mesh}).errors, warning);

    const QJsonObject object =
        onlyObject(runMeshQuality(report + QStringList{QStringLiteral("--json"), QStringLiteral("-"), mesh}).output);
    QCOMPARE(object.value(QStringLiteral("skippedLines")).toInt(), 18);
    const QJsonArray first = object.value(QStringLiteral("firstSkippedLines")).toArray();
    QCOMPARE(first.size(), 10);
    for (int i = 0; i < first.size(); ++i) {
        const QJsonObject line = first.at(i).toObject();
        QCOMPARE(line.value(QStringLiteral("line")).toInt(), 14 + i);
        QCOMPARE(line.value(QStringLiteral("reason")).toString().contains(QStringLiteral("nine columns")), i != 1);
    }
}

QTEST_GUILESS_MAIN(MeshQualityExplanationsTest)
#include "tst_meshqualityexplanations.moc"
