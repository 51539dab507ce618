// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/JsonReport.h>

#include <meshquality/JsonWriter.h>
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
                                                     {"skippedLines", report.skippedLines().size()}};
    for (const auto& [name, count] : counts) {
        json.key(QString::fromLatin1(name));
        json.value(count);
    }
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

} // namespace

void writeJson(const ScoredMesh& mesh, JsonWriter& json)
{
    json.beginObject();
    json.key(QStringLiteral("file"));
    json.value(mesh.file);
    writeCounts(mesh.report, json);
    json.key(QStringLiteral("features"));
    writeFeatures(mesh.report, json);
    json.key(QStringLiteral("score"));
    json.value(mesh.score);
    json.endObject();
}

} // namespace MeshQuality
