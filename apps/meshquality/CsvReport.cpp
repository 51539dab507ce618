// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/CsvReport.h>

#include <meshquality/NumberText.h>
#include <meshquality/ScoredMesh.h>

namespace MeshQuality {

using DataManager::MeshQualityReport;

namespace {

QByteArray quoted(const QString& text)
{
    return '"' + text.toUtf8().replace('"', "\"\"") + '"';
}

QByteArray line(const MeshQualityReport& report, int element)
{
    QByteArray text = QByteArray::number(report.tag(element)) + ',' + QByteArray::number(report.physicalTag(element)) +
                      ',' + QByteArray::number(report.line(element));
    for (const double coordinate : report.centroid(element)) {
        text += ',' + shortestText(coordinate);
    }
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        const auto metric = static_cast<MeshQualityReport::Metric>(i);
        text += ',' + shortestText(report.values(metric)[static_cast<std::size_t>(element)]);
    }
    return text + '\n';
}

} // namespace

CsvReport::CsvReport(const QString& path) : m_file(path)
{
    m_file.write("file,element,region,line,x,y,z");
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        m_file.write(',' + MeshQualityReport::metricName(static_cast<MeshQualityReport::Metric>(i)).toLatin1());
    }
    m_file.write("\n");
}

void CsvReport::write(const ScoredMesh& mesh)
{
    const QByteArray file = quoted(mesh.file) + ',';
    for (int element = 0; m_file.isWritable() && element < mesh.report.elementCount(); ++element) {
        m_file.write(file + line(mesh.report, element));
    }
}

} // namespace MeshQuality
