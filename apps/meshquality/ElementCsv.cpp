// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/ElementCsv.h>

#include <meshquality/NumberText.h>

namespace MeshQuality {

using DataManager::MeshQualityReport;

namespace {

QByteArray quoted(const QString& text)
{
    return '"' + text.toUtf8().replace('"', "\"\"") + '"';
}

} // namespace

QByteArray elementHeader()
{
    QByteArray text = "file,element,region,line,x,y,z";
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        text += ',' + MeshQualityReport::metricName(static_cast<MeshQualityReport::Metric>(i)).toLatin1();
    }
    return text + '\n';
}

QByteArray elementLine(const QString& file, const MeshQualityReport& report, int element)
{
    QByteArray text = quoted(file) + ',' + QByteArray::number(report.tag(element)) + ',' +
                      QByteArray::number(report.physicalTag(element)) + ',' + QByteArray::number(report.line(element));
    for (const double coordinate : report.centroid(element)) {
        text += ',' + shortestText(coordinate);
    }
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        const auto metric = static_cast<MeshQualityReport::Metric>(i);
        text += ',' + shortestText(report.values(metric)[static_cast<std::size_t>(element)]);
    }
    return text + '\n';
}

} // namespace MeshQuality
