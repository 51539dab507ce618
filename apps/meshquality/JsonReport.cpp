// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/JsonReport.h>

#include <meshquality/JsonWriter.h>
#include <meshquality/ModelText.h>
#include <meshquality/ReportOptions.h>
#include <meshquality/ScoredMesh.h>

namespace MeshQuality {

using DataManager::MeshQualityReport;

namespace {

void writeCounts(const MeshQualityReport& report, JsonWriter& json)
{
    const std::pair<const char*, qint64> counts[] = {{"nodes", report.nodeCount()},
                                                     {"tetrahedra", report.elementCount()},
                                                     {"inverted", report.invertedCount()},
                                                     {"flat", report.flatCount()},
                                                     {"skippedLines", report.skippedLineCount()}};
    for (const auto& [name, count] : counts) {
        json.key(QString::fromLatin1(name));
        json.value(count);
    }
}

/// What came after the first edition of the format; programs may count on the order of what is before.
void writeDoubts(const ScoredMesh& mesh, JsonWriter& json)
{
    const MeshQualityReport& report = mesh.report;
    const std::pair<const char*, qint64> counts[] = {{"duplicateNodes", report.duplicateNodeCount()},
                                                     {"misnumberedNodes", report.misnumberedNodes().count},
                                                     {"otherTagCounts", report.otherTagCounts().count}};
    for (const auto& [name, count] : counts) {
        json.key(QString::fromLatin1(name));
        json.value(count);
    }
    json.key(QStringLiteral("warnings"));
    json.beginArray();
    for (const QString& warning : report.warnings(mesh.file)) {
        json.value(warning);
    }
    json.endArray();
}

void writeSkippedLines(const MeshQualityReport& report, JsonWriter& json)
{
    constexpr std::size_t listed = 10;
    json.key(QStringLiteral("firstSkippedLines"));
    json.beginArray();
    for (std::size_t i = 0; i < report.skippedLines().size() && i < listed; ++i) {
        const MeshQualityReport::SkippedLine& line = report.skippedLines()[i];
        json.beginObject();
        json.key(QStringLiteral("line"));
        json.value(line.line);
        json.key(QStringLiteral("reason"));
        json.value(MeshQualityReport::skipReasonText(line.reason));
        json.endObject();
    }
    json.endArray();
}

void writeModel(const ScoredMesh& mesh, JsonWriter& json)
{
    json.key(QStringLiteral("model"));
    if (mesh.isScored) {
        json.beginObject();
        json.key(QStringLiteral("title"));
        json.value(mesh.model->title());
        for (const QString& key : {QStringLiteral("name"), QStringLiteral("version")}) {
            json.key(key);
            json.value(mesh.model->metadata().value(key));
        }
        json.endObject();
    } else {
        json.null();
    }
    json.key(QStringLiteral("explanation"));
    json.value(scoreExplanation(mesh));
}

void writeExcesses(const ScoredMesh& mesh, JsonWriter& json)
{
    json.key(QStringLiteral("outsideOfTraining"));
    json.beginArray();
    for (const DataManager::QualityModelCard::Excess& excess : excesses(mesh)) {
        json.beginObject();
        json.key(QStringLiteral("feature"));
        json.value(MeshQualityReport::metricName(excess.feature));
        json.key(QStringLiteral("value"));
        json.value(excess.value);
        json.key(QStringLiteral("lowest"));
        json.value(excess.range.lowest);
        json.key(QStringLiteral("highest"));
        json.value(excess.range.highest);
        json.endObject();
    }
    json.endArray();
}

void writeFeatures(const MeshQualityReport& report, JsonWriter& json)
{
    json.beginObject();
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        json.key(MeshQualityReport::metricName(static_cast<MeshQualityReport::Metric>(i)));
        json.value(report.features()[static_cast<std::size_t>(i)]);
    }
    json.endObject();
}

using Summaries = std::array<MeshQualityReport::Summary, MeshQualityReport::metricCount>;

QString metricName(std::size_t metric)
{
    return MeshQualityReport::metricName(static_cast<MeshQualityReport::Metric>(metric));
}

void writeSummary(const MeshQualityReport::Summary& summary, JsonWriter& json)
{
    const std::pair<const char*, double> figures[] = {{"minimum", summary.minimum},
                                                      {"percentile1", summary.percentile1},
                                                      {"percentile5", summary.percentile5},
                                                      {"median", summary.median},
                                                      {"percentile95", summary.percentile95},
                                                      {"percentile99", summary.percentile99},
                                                      {"maximum", summary.maximum},
                                                      {"mean", summary.mean},
                                                      {"standardDeviation", summary.standardDeviation}};
    json.beginObject();
    for (const auto& [name, figure] : figures) {
        json.key(QString::fromLatin1(name));
        json.value(figure);
    }
    json.key(QStringLiteral("nonFinite"));
    json.value(qint64(summary.nonFinite));
    json.endObject();
}

void writeMetrics(const Summaries& summaries, JsonWriter& json)
{
    json.key(QStringLiteral("metrics"));
    json.beginObject();
    for (std::size_t metric = 0; metric < summaries.size(); ++metric) {
        json.key(metricName(metric));
        writeSummary(summaries[metric], json);
    }
    json.endObject();
}

Summaries summaries(const MeshQualityReport& report)
{
    Summaries result{};
    for (std::size_t metric = 0; metric < result.size(); ++metric) {
        result[metric] = report.summary(static_cast<MeshQualityReport::Metric>(metric));
    }
    return result;
}

void writeRegions(const MeshQualityReport& report, JsonWriter& json)
{
    json.key(QStringLiteral("regions"));
    json.beginArray();
    for (const MeshQualityReport::Region& region : report.regions()) {
        json.beginObject();
        json.key(QStringLiteral("tag"));
        json.value(qint64(region.physicalTag));
        json.key(QStringLiteral("name"));
        json.value(region.name);
        json.key(QStringLiteral("tetrahedra"));
        json.value(qint64(region.elementCount));
        json.key(QStringLiteral("inverted"));
        json.value(qint64(region.invertedCount));
        json.key(QStringLiteral("flat"));
        json.value(qint64(region.flatCount));
        writeMetrics(region.summaries, json);
        json.key(QStringLiteral("duplicateNodes"));
        json.value(qint64(region.duplicateNodeCount));
        json.endObject();
    }
    json.endArray();
}

void writeElement(const MeshQualityReport& report, int element, JsonWriter& json)
{
    json.beginObject();
    json.key(QStringLiteral("element"));
    json.value(qint64(report.tag(element)));
    json.key(QStringLiteral("line"));
    json.value(report.line(element));
    json.key(QStringLiteral("region"));
    json.value(qint64(report.physicalTag(element)));
    json.key(QStringLiteral("centroid"));
    json.beginArray();
    for (const double coordinate : report.centroid(element)) {
        json.value(coordinate);
    }
    json.endArray();
    json.key(QStringLiteral("metrics"));
    json.beginObject();
    for (std::size_t metric = 0; metric < MeshQualityReport::metricCount; ++metric) {
        json.key(metricName(metric));
        json.value(report.values(static_cast<MeshQualityReport::Metric>(metric))[static_cast<std::size_t>(element)]);
    }
    json.endObject();
    json.endObject();
}

void writeWorst(const MeshQualityReport& report, const ReportOptions& options, JsonWriter& json)
{
    json.key(QStringLiteral("worst"));
    json.beginArray();
    for (const int element : report.worst(options.worstBy, options.worstListed())) {
        writeElement(report, element, json);
    }
    json.endArray();
}

} // namespace

void writeJson(const ScoredMesh& mesh, const ReportOptions& options, JsonWriter& json)
{
    json.beginObject();
    json.key(QStringLiteral("file"));
    json.value(mesh.file);
    writeCounts(mesh.report, json);
    json.key(QStringLiteral("features"));
    writeFeatures(mesh.report, json);
    json.key(QStringLiteral("score"));
    json.value(mesh.score);
    writeMetrics(summaries(mesh.report), json);
    writeRegions(mesh.report, json);
    writeWorst(mesh.report, options, json);
    writeDoubts(mesh, json);
    writeModel(mesh, json);
    writeExcesses(mesh, json);
    writeSkippedLines(mesh.report, json);
    if (!mesh.convertedFrom.isEmpty()) {
        json.key(QStringLiteral("convertedFrom"));
        json.value(mesh.convertedFrom);
    }
    json.endObject();
}

void writeJsonProblem(const QString& file, const QString& problem, JsonWriter& json)
{
    json.beginObject();
    json.key(QStringLiteral("file"));
    json.value(file);
    json.key(QStringLiteral("problem"));
    json.value(problem);
    json.endObject();
}

} // namespace MeshQuality
