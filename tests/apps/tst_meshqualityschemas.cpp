// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshQualityProgram.h"

#include "meshquality/MeshFiles.h"
#include "support/JsonSchema.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

/// The published schemas against what the program writes and reads.
class MeshQualitySchemasTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportsFollowTheSchema_data();
    void reportsFollowTheSchema();
    void linesFollowTheSchema();
    void schemaRefusesOtherReports_data();
    void schemaRefusesOtherReports();
    void builtInProfileFollowsTheSchema();
    void schemaRefusesOtherProfiles_data();
    void schemaRefusesOtherProfiles();

private:
    QTemporaryDir m_directory;
    const JsonSchema m_report{QStringLiteral("MeshQualityReport")};
    const JsonSchema m_profile{QStringLiteral("MeshQualityProfile")};
};

namespace {

QJsonValue parsed(const QByteArray& json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

QJsonValue reportOn(const QString& mesh)
{
    return parsed(
        runMeshQuality({QStringLiteral("report"), QStringLiteral("--json"), QStringLiteral("-"), mesh}).output);
}

} // namespace

void MeshQualitySchemasTest::reportsFollowTheSchema_data()
{
    QTest::addColumn<QString>("mesh");
    for (const QString& mesh : MeshFiles::samples()) {
        QTest::newRow(qPrintable(QFileInfo(mesh).fileName())) << mesh;
    }
    const QString inverted = m_directory.filePath(QStringLiteral("inverted.msh"));
    MeshFiles::write(inverted, MeshFiles::oneTetrahedron(MeshFiles::inverted(MeshFiles::rightCorner())));
    QTest::newRow("inverted") << inverted;
}

void MeshQualitySchemasTest::reportsFollowTheSchema()
{
    QFETCH(QString, mesh);
    const QJsonValue report = reportOn(mesh);
    QCOMPARE(report.toArray().size(), 1);
    QCOMPARE(m_report.problem(report), QString());
}

void MeshQualitySchemasTest::linesFollowTheSchema()
{
    const ProgramRun run =
        runMeshQuality({QStringLiteral("report"), QStringLiteral("--jsonl"), MeshFiles::samples().first(),
                        m_directory.filePath(QStringLiteral("none.msh"))});
    const QList<QByteArray> lines = run.output.split('\n');
    QCOMPARE(lines.size(), 3);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(m_report.problem(parsed(lines.at(i)), QStringLiteral("line")), QString());
    }
    QVERIFY(!m_report.problem(parsed(lines.at(1)), QStringLiteral("mesh")).isEmpty());
}

void MeshQualitySchemasTest::schemaRefusesOtherReports_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* key, const QJsonValue& value, const char* problem) {
        QTest::newRow(problem) << QString::fromLatin1(key) << value << QString::fromLatin1(problem);
    };
    row("score", 1.5, "#/0/score: maximum");
    row("score", QStringLiteral("1"), "#/0/score: type");
    row("nodes", 1.5, "#/0/nodes: type");
    row("flat", -1, "#/0/flat: minimum");
    row("beauty", 1, "#/0/beauty: is not expected");
    row("metrics", QJsonObject(), "#/0/metrics: lacks Volume");
    row("worst", QJsonArray(), "#/0/worst: minItems");
    row("regions", QJsonArray{1}, "#/0/regions/0: type");
}

void MeshQualitySchemasTest::schemaRefusesOtherReports()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QJsonObject mesh = reportOn(MeshFiles::samples().first()).toArray().first().toObject();
    mesh.insert(key, value);
    QTEST(m_report.problem(QJsonArray{mesh}), "problem");
}

void MeshQualitySchemasTest::builtInProfileFollowsTheSchema()
{
    const QJsonValue profile =
        parsed(runMeshQuality({QStringLiteral("check"), QStringLiteral("--print-profile")}).output);
    QCOMPARE(m_profile.problem(profile), QString());
    const QJsonArray thresholds = profile.toObject().value(QStringLiteral("thresholds")).toArray();
    QCOMPARE(thresholds.size(), 6);
    for (const QJsonValue threshold : thresholds) {
        QVERIFY(!threshold.toObject().value(QStringLiteral("source")).toString().isEmpty());
    }
}

void MeshQualitySchemasTest::schemaRefusesOtherProfiles_data()
{
    QTest::addColumn<QByteArray>("profile");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* profile, const char* problem) {
        QTest::newRow(problem) << QByteArray(profile) << QString::fromLatin1(problem);
    };
    row("{}", "#: lacks thresholds");
    row(R"({"thresholds": []})", "#/thresholds: minItems");
    row(R"({"thresholds": [{"metric": "Beauty", "minimum": 1}]})", "#/thresholds/0/metric: enum");
    row(R"({"thresholds": [{"metric": "Shape"}]})", "#/thresholds/0: fits 0 alternatives");
    row(R"({"thresholds": [{"metric": "Shape", "minimum": "1"}]})", "#/thresholds/0/minimum: type");
    row(R"({"thresholds": [{"metric": "Shape", "minimum": 1, "allowedPercent": 101}]})",
        "#/thresholds/0/allowedPercent: maximum");
}

void MeshQualitySchemasTest::schemaRefusesOtherProfiles()
{
    QFETCH(QByteArray, profile);
    QTEST(m_profile.problem(parsed(profile)), "problem");
}

QTEST_GUILESS_MAIN(MeshQualitySchemasTest)
#include "tst_meshqualityschemas.moc"
