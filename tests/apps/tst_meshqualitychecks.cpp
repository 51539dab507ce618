// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshQualityProgram.h"

#include "meshquality/MeshFiles.h"

#include <datamanager/meshquality/MeshQualityReport.h>

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

/// `meshquality check` and `meshquality compare`.
class MeshQualityChecksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checks_data();
    void checks();
    void countsNoNumberAsFailing();
    void checksEveryMesh();
    void checksAgainstTheBuiltInProfile_data();
    void checksAgainstTheBuiltInProfile();
    void printsTheBuiltInProfile();
    void refusesProfiles_data();
    void refusesProfiles();
    void refusesWrongCalls_data();
    void refusesWrongCalls();
    void compares();
    void knowsNoBetterWithoutNumbers();
    void comparesOnlyReadableMeshes();

private:
    QString path(const char* name) const { return m_directory.filePath(QString::fromUtf8(name)); }
    QString file(const char* name, const QByteArray& content) const
    {
        MeshFiles::write(path(name), content);
        return path(name);
    }
    QString profile(const QByteArray& thresholds) const
    {
        return file("profile.json", "{\"thresholds\": [" + thresholds + "]}");
    }
    ProgramRun check(const QByteArray& thresholds, const QStringList& meshes) const
    {
        return runMeshQuality(QStringList{QStringLiteral("check"), QStringLiteral("--profile"), profile(thresholds)} +
                              meshes);
    }

    QTemporaryDir m_directory;
};

namespace {

const QString slivers = QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/slivers.msh");
const QString plate = QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/plate-with-hole.msh");

// One right corner in four has longer legs: edge ratios sqrt(2) three times, and sqrt(5) once.
QByteArray fourCorners()
{
    return MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0 0 1", "5 0 0 2"},
                           {"1 4 2 0 1 1 2 3 4", "2 4 2 0 1 1 2 3 4", "3 4 2 0 1 1 2 3 4", "4 4 2 0 1 1 2 3 5"});
}

} // namespace

void MeshQualityChecksTest::checks_data()
{
    QTest::addColumn<QByteArray>("thresholds");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("verdict");
    QTest::addColumn<QByteArray>("reasons");
    QTest::newRow("all within") << QByteArray(R"({"metric": "EdgeRatio", "maximum": 3})") << 0 << QByteArray("pass")
                                << QByteArray();
    QTest::newRow("one too long") << QByteArray(R"({"metric": "EdgeRatio", "maximum": 2})") << 1 << QByteArray("fail")
                                  << QByteArray(": fail EdgeRatio 1 elements (25 %)");
    QTest::newRow("one too long, allowed")
        << QByteArray(R"({"metric": "edgeratio", "maximum": 2, "allowedPercent": 25})") << 0 << QByteArray("warn")
        << QByteArray(": warn EdgeRatio 1 elements (25 %)");
    QTest::newRow("too many") << QByteArray(R"({"metric": "EdgeRatio", "maximum": 2, "allowedPercent": 24.9})") << 1
                              << QByteArray("fail") << QByteArray(": fail EdgeRatio 1 elements (25 %)");
    QTest::newRow("bounds belong to what passes") << QByteArray(R"({"metric": "Jacobian", "minimum": 1, "maximum": 2})")
                                                  << 0 << QByteArray("pass") << QByteArray();
    QTest::newRow("two rules")
        << QByteArray(
               R"({"metric": "Jacobian", "minimum": 1.5, "allowedPercent": 80}, {"metric": "EdgeRatio", "maximum": 2})")
        << 1 << QByteArray("fail") << QByteArray(": warn Jacobian 3 elements (75 %), fail EdgeRatio 1 elements (25 %)");
}

void MeshQualityChecksTest::checks()
{
    QFETCH(QByteArray, thresholds);
    const QString mesh = file("corners.msh", fourCorners());
    const ProgramRun run = check(thresholds, {mesh});
    QTEST(run.exitCode, "exitCode");
    QFETCH(QByteArray, verdict);
    QFETCH(QByteArray, reasons);
    QCOMPARE(run.output, verdict + ' ' + mesh.toUtf8() + reasons + '\n');
    QCOMPARE(run.errors, QByteArray());
}

void MeshQualityChecksTest::countsNoNumberAsFailing()
{
    const QString mesh = file("turned.msh", MeshFiles::oneTetrahedron(MeshFiles::inverted(MeshFiles::rightCorner())));
    QCOMPARE(check(R"({"metric": "Shape", "minimum": -1e300, "maximum": 1e300})", {mesh}).exitCode, 1);
}

void MeshQualityChecksTest::checksEveryMesh()
{
    const QString good = file("good.msh", MeshFiles::oneTetrahedron(MeshFiles::regular()));
    const QString bad = file("bad.msh", fourCorners());
    const QByteArray threshold = R"({"metric": "EdgeRatio", "maximum": 2})";
    const ProgramRun run = check(threshold, {bad, path("none.msh"), good});
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.output.count('\n'), 2);
    QVERIFY(run.output.startsWith("fail " + bad.toUtf8()));
    QVERIFY(run.output.endsWith("pass " + good.toUtf8() + '\n'));
    QCOMPARE(run.errors, "meshquality: " + path("none.msh").toUtf8() + ": no such file\n");
    QCOMPARE(check(threshold, {bad, good}).exitCode, 1);
}

void MeshQualityChecksTest::checksAgainstTheBuiltInProfile_data()
{
    QTest::addColumn<QString>("mesh");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QStringList>("findings");
    const auto sample = [](const char* name) {
        return QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/%1.msh").arg(QString::fromLatin1(name));
    };
    const auto list = [](const char* findings) {
        return QString::fromLatin1(findings).split(QLatin1Char(','), Qt::SkipEmptyParts);
    };
    // Counted by another program in the CSV of each mesh.
    QTest::newRow("thin-walled") << sample("thin-walled") << 0 << list("warn AspectRatio 12 ,warn AspectGamma 9 ");
    QTest::newRow("plate-with-hole") << plate << 0
                                     << list("warn EdgeRatio 8 ,warn AspectRatio 102 ,warn AspectGamma 82 ,"
                                             "warn ScaledJacobian 6 ");
    QTest::newRow("slivers") << slivers << 1
                             << list("fail EdgeRatio 871 ,fail AspectRatio 1338 ,fail AspectGamma 1457 ,"
                                     "fail ScaledJacobian 1114 ,fail Shape 291 ");
    QTest::newRow("regular") << file("regular.msh", MeshFiles::oneTetrahedron(MeshFiles::regular())) << 0 << list("");
    QTest::newRow("flat") << file("flat.msh",
                                  MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 1 1 0"}, {"1 4 2 0 1 1 2 3 4"}))
                          << 1
                          << list("fail Volume 1 ,fail AspectRatio 1 ,fail AspectGamma 1 ,fail ScaledJacobian 1 ,"
                                  "fail Shape 1 ");
}

void MeshQualityChecksTest::checksAgainstTheBuiltInProfile()
{
    QFETCH(QString, mesh);
    QFETCH(QStringList, findings);
    const ProgramRun run = runMeshQuality({QStringLiteral("check"), mesh});
    QTEST(run.exitCode, "exitCode");
    const QString output = QString::fromUtf8(run.output);
    QCOMPARE(output.count(QStringLiteral("elements (")), findings.size());
    for (const QString& finding : findings) {
        QVERIFY2(output.contains(finding), qPrintable(output));
    }
}

void MeshQualityChecksTest::printsTheBuiltInProfile()
{
    const ProgramRun run = runMeshQuality({QStringLiteral("check"), QStringLiteral("--print-profile")});
    QCOMPARE(run.exitCode, 0);
    QFile source(QStringLiteral(DATAMANAGER_SOURCE_DIR "/apps/meshquality/profiles/default.json"));
    QVERIFY(source.open(QIODevice::ReadOnly));
    QCOMPARE(run.output, source.readAll());
    // A copy of it checks as it does itself.
    const ProgramRun copied =
        runMeshQuality({QStringLiteral("check"), QStringLiteral("--profile"), file("copy.json", run.output), slivers});
    QCOMPARE(copied.output, runMeshQuality({QStringLiteral("check"), slivers}).output);
}

void MeshQualityChecksTest::refusesProfiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("problem");
    QTest::newRow("empty") << QByteArray("") << QByteArray("illegal value at byte 0");
    QTest::newRow("no list") << QByteArray("{}") << QByteArray("has no list of thresholds");
    QTest::newRow("array") << QByteArray("[]") << QByteArray("has no list of thresholds");
    QTest::newRow("unknown metric") << QByteArray(R"({"thresholds": [{"metric": "Beauty", "minimum": 1}]})")
                                    << QByteArray("there is no metric 'Beauty'");
    QTest::newRow("no bound") << QByteArray(R"({"thresholds": [{"metric": "Shape"}]})")
                              << QByteArray("Shape needs a number as minimum or maximum");
    for (const char* const percent : {"-1", "100.5"}) {
        QTest::addRow("%s percent", percent)
            << QByteArray(R"({"thresholds": [{"metric": "Shape", "minimum": 1, "allowedPercent": )") + percent + "}]}"
            << QByteArray("Shape needs an allowedPercent from 0 to 100");
    }
    QTest::newRow("text for a number") << QByteArray(R"({"thresholds": [{"metric": "Shape", "minimum": "1"}]})")
                                       << QByteArray("Shape needs a number as minimum or maximum");
}

void MeshQualityChecksTest::refusesProfiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, problem);
    const QString name = file("wrong.json", content);
    const ProgramRun run = runMeshQuality({QStringLiteral("check"), QStringLiteral("--profile"), name, slivers});
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.output, QByteArray());
    QCOMPARE(run.errors, "meshquality: " + name.toUtf8() + ": " + problem + '\n');
}

void MeshQualityChecksTest::refusesWrongCalls_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("what");
    const auto row = [](const char* call, const char* what) {
        QTest::newRow(call) << QString::fromLatin1(call).split(QLatin1Char(' ')) << QByteArray(what);
    };
    row("check", "no mesh is given");
    row("check --profile= a.msh", "--profile needs a file");
    row("check --profile p.json", "no mesh is given");
    row("check --prof p.json", "Unknown option 'prof'");
    row("compare a.msh", "compare needs two meshes");
    row("compare a.msh b.msh c.msh", "compare needs two meshes");
}

void MeshQualityChecksTest::refusesWrongCalls()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, what);
    const ProgramRun run = runMeshQuality(arguments);
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.errors, "meshquality: " + what + "; see meshquality --help\n");
}

void MeshQualityChecksTest::compares()
{
    const ProgramRun run = runMeshQuality({QStringLiteral("compare"), slivers, plate});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QByteArray());
    const QString output = QString::fromUtf8(run.output);
    const auto field = [&output](const QString& name, int index) {
        const QRegularExpression line(QStringLiteral("^  %1 +(\\S+) +(\\S+)  ?(\\w*)$").arg(name),
                                      QRegularExpression::MultilineOption);
        return line.match(output).captured(index);
    };
    DataManager::MeshQualityReport first;
    DataManager::MeshQualityReport second;
    QVERIFY(first.measure(slivers));
    QVERIFY(second.measure(plate));
    using Metric = DataManager::MeshQualityReport::Metric;
    QCOMPARE(field(QStringLiteral("tetrahedra"), 1), QStringLiteral("3156"));
    QCOMPARE(field(QStringLiteral("tetrahedra"), 2), QStringLiteral("6776"));
    QCOMPARE(field(QStringLiteral("Shape 5 %"), 1), QString::number(first.summary(Metric::Shape).percentile5, 'g', 6));
    QCOMPARE(field(QStringLiteral("Shape 5 %"), 2), QString::number(second.summary(Metric::Shape).percentile5, 'g', 6));
    QCOMPARE(field(QStringLiteral("Shape 1 %"), 2), QString::number(second.summary(Metric::Shape).percentile1, 'g', 6));
    QCOMPARE(field(QStringLiteral("EdgeRatio 99 %"), 1),
             QString::number(first.summary(Metric::EdgeRatio).percentile99, 'g', 6));
    QCOMPARE(field(QStringLiteral("EdgeRatio 95 %"), 2),
             QString::number(second.summary(Metric::EdgeRatio).percentile95, 'g', 6));
    for (const char* name : {"Shape mean", "Shape minimum", "EdgeRatio mean", "EdgeRatio maximum", "score"}) {
        QCOMPARE(field(QString::fromLatin1(name), 3), QStringLiteral("improved"));
    }
    QCOMPARE(field(QStringLiteral("inverted"), 3), QStringLiteral("same"));
    QCOMPARE(field(QStringLiteral("Volume mean"), 3), QString());

    const ProgramRun reversed = runMeshQuality({QStringLiteral("compare"), plate, slivers});
    QCOMPARE(reversed.output.count("worsened"), run.output.count("improved"));
    QCOMPARE(reversed.output.count("improved"), run.output.count("worsened"));
}

void MeshQualityChecksTest::knowsNoBetterWithoutNumbers()
{
    const QString mesh = file("turned.msh", MeshFiles::oneTetrahedron(MeshFiles::inverted(MeshFiles::rightCorner())));
    const ProgramRun run = runMeshQuality({QStringLiteral("compare"), plate, mesh});
    QCOMPARE(run.exitCode, 0);
    QVERIFY(run.output.contains("nan  unknown\n  model "));
}

void MeshQualityChecksTest::comparesOnlyReadableMeshes()
{
    const ProgramRun run = runMeshQuality({QStringLiteral("compare"), path("none.msh"), plate});
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.output, QByteArray());
    QCOMPARE(run.errors, "meshquality: " + path("none.msh").toUtf8() + ": no such file\n");
    const ProgramRun unscored =
        runMeshQuality({QStringLiteral("compare"), QStringLiteral("--model"), path("none.onnx"), plate, plate});
    QCOMPARE(unscored.exitCode, 4);
    QVERIFY(unscored.errors.contains("meshquality: " + path("none.onnx").toUtf8() + ": "));
    QVERIFY(unscored.output.contains("  Shape mean "));
    QVERIFY(unscored.output.endsWith("nan  unknown\n"));
}

QTEST_GUILESS_MAIN(MeshQualityChecksTest)
#include "tst_meshqualitychecks.moc"
