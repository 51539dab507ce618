// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/HtmlReport.h>

#include <meshquality/HtmlText.h>
#include <meshquality/ModelText.h>
#include <meshquality/RegionName.h>
#include <meshquality/ReportOptions.h>
#include <meshquality/ScoredMesh.h>
#include <meshquality/SkippedText.h>
#include <meshquality/SvgHistogram.h>

#include <configoption/ConfigManager.h>

#include <algorithm>
#include <cmath>

#include <QCoreApplication>

namespace MeshQuality {

using DataManager::MeshQualityReport;
using Metric = MeshQualityReport::Metric;

namespace {

const char* const pageStart = R"(<!DOCTYPE html>
<html lang="%1"><head><meta charset="utf-8"><title>%2</title>
<meta name="viewport" content="width=device-width, initial-scale=1">
<style>
body { font: 15px/1.4 sans-serif; max-width: 1400px; margin: 1.5em auto; padding: 0 1em; color: #222 }
h1 { font-size: 1.5em } h2 { font-size: 1.25em; border-top: 2px solid #28527a; padding-top: .6em; word-break: break-all }
h3 { font-size: 1em; margin: 1.3em 0 .4em }
.score { font-size: 2em; font-weight: bold; color: #28527a }
.warning { color: #a02010; font-weight: bold }
.scroll { overflow-x: auto }
table { border-collapse: collapse; font-variant-numeric: tabular-nums; font-size: .87em }
th, td { padding: .2em .6em; text-align: right; border-bottom: 1px solid #ddd; white-space: nowrap }
th:first-child, td:first-child { text-align: left }
.histograms { display: flex; flex-wrap: wrap; gap: 1em 1.6em }
svg rect { fill: #4a7fb0 } svg line { stroke: #888 } svg text { font: 12px sans-serif; fill: #222 }
</style></head><body>
<h1>%2</h1>
)";

QByteArray pageStartText()
{
    const bool isChinese = ConfigOption::ConfigManager::getInstance()->getLanguage() == QLatin1String("Chinese");
    return QString::fromLatin1(pageStart)
        .arg(isChinese ? QStringLiteral("zh-CN") : QStringLiteral("en"),
             Html::escaped(QCoreApplication::translate("meshquality", "Mesh quality")))
        .toUtf8();
}

const char* const pageEnd = "</body></html>\n";

QString heading(const QString& text)
{
    return Html::element("h3", text) + QLatin1Char('\n');
}

QString scrolling(const Html::Table& table)
{
    return QStringLiteral("<div class=\"scroll\">") + table.text() + QStringLiteral("</div>\n");
}

bool areMeansFinite(const ScoredMesh& mesh)
{
    const auto& means = mesh.report.features();
    return std::all_of(means.begin(), means.end(), [](float mean) { return std::isfinite(mean); });
}

QString noScoreText(const ScoredMesh& mesh)
{
    return !mesh.isScored
               ? QCoreApplication::translate("meshquality", "There is no score, because the model cannot be used.")
           : areMeansFinite(mesh)
               ? QCoreApplication::translate("meshquality", "There is no score, because the model gives no number.")
               : QCoreApplication::translate("meshquality", "There is no score, because a mean is no finite number.");
}

QString warning(const QString& text)
{
    return QStringLiteral("<p class=\"warning\">%1</p>\n").arg(Html::escaped(text));
}

QString scoreText(const ScoredMesh& mesh)
{
    const double score = static_cast<double>(mesh.score);
    return QStringLiteral("<p><span class=\"score\">%1</span> %2</p>\n")
               .arg(Html::number(score), QCoreApplication::translate("meshquality", "score (0 worst, 1 best)")) +
           (std::isnan(score) ? warning(noScoreText(mesh))
            : areMeansFinite(mesh)
                ? QString()
                : warning(QCoreApplication::translate("meshquality",
                                                      "The score means nothing, because a mean is no finite number.")));
}

QString modelText(const ScoredMesh& mesh)
{
    if (!mesh.isScored) {
        return QString();
    }
    QString text = Html::element("p", QCoreApplication::translate("meshquality", "Model ") + modelSentence(mesh)) +
                   QLatin1Char('\n');
    for (const DataManager::QualityModelCard::Excess& excess : excesses(mesh)) {
        text += warning(excessText(excess));
    }
    return text;
}

QString conversion(const ScoredMesh& mesh)
{
    return mesh.convertedFrom.isEmpty()
               ? QString()
               : Html::element("p", QCoreApplication::translate(
                                        "meshquality", "Converted from %1; line numbers are those of the conversion.")
                                        .arg(mesh.convertedFrom)) +
                     QLatin1Char('\n');
}

QString counts(const MeshQualityReport& report)
{
    const QString twice =
        QCoreApplication::translate("meshquality", ", %1 that name a node twice").arg(report.duplicateNodeCount());
    const QString text = QCoreApplication::translate("meshquality", "%1 nodes, %2 tetrahedra, %3 inverted, %4 flat")
                             .arg(report.nodeCount())
                             .arg(report.elementCount())
                             .arg(report.invertedCount())
                             .arg(report.flatCount());
    return Html::element("p", report.duplicateNodeCount() > 0 ? text + twice : text) + QLatin1Char('\n');
}

QString skippedLines(const MeshQualityReport& report)
{
    const QStringList places = skippedPlaces(report);
    return places.isEmpty()
               ? QString()
               : warning(
                     QCoreApplication::translate("meshquality", "%1 lines skipped: ").arg(report.skippedLineCount()) +
                     places.join(QStringLiteral("; ")));
}

QString warnings(const ScoredMesh& mesh)
{
    QString text;
    for (const QString& doubt : mesh.report.warnings(mesh.file)) {
        text += warning(QCoreApplication::translate("meshquality", "Warning: ") + doubt);
    }
    return text;
}

QStringList spreadHead()
{
    return {QCoreApplication::translate("meshquality", "minimum"), QStringLiteral("1 %"),  QStringLiteral("5 %"),
            QCoreApplication::translate("meshquality", "median"),  QStringLiteral("95 %"), QStringLiteral("99 %"),
            QCoreApplication::translate("meshquality", "maximum")};
}

QStringList spread(const MeshQualityReport::Summary& s)
{
    QStringList cells;
    for (const double value :
         {s.minimum, s.percentile1, s.percentile5, s.median, s.percentile95, s.percentile99, s.maximum}) {
        cells.append(Html::number(value));
    }
    return cells;
}

QString features(const MeshQualityReport& report)
{
    Html::Table table(QStringList{QCoreApplication::translate("meshquality", "metric"),
                                  QCoreApplication::translate("meshquality", "feature (mean)")} +
                      spreadHead());
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        const auto metric = static_cast<Metric>(i);
        const double mean = static_cast<double>(report.features()[static_cast<std::size_t>(i)]);
        table.addRow(QStringList{MeshQualityReport::metricName(metric), Html::number(mean)} +
                     spread(report.summary(metric)));
    }
    return heading(QCoreApplication::translate("meshquality", "Features")) + scrolling(table);
}

QString histograms(const MeshQualityReport& report)
{
    QString text = heading(QCoreApplication::translate("meshquality", "Histograms")) +
                   QStringLiteral("<div class=\"histograms\">\n");
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        text += svgHistogram(report, static_cast<Metric>(i));
    }
    return text + QStringLiteral("</div>\n");
}

QStringList metricNames()
{
    QStringList names;
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        names.append(MeshQualityReport::metricName(static_cast<Metric>(i)));
    }
    return names;
}

QStringList elementCells(const MeshQualityReport& report, int element)
{
    const int region = report.physicalTag(element);
    QStringList cells{QString::number(report.tag(element)), QString::number(report.line(element)),
                      regionName(report.groupNames().value(region), region)};
    for (const double coordinate : report.centroid(element)) {
        cells.append(Html::number(coordinate));
    }
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        cells.append(Html::number(report.values(static_cast<Metric>(i))[static_cast<std::size_t>(element)]));
    }
    return cells;
}

QString worst(const MeshQualityReport& report, const ReportOptions& options)
{
    Html::Table table(QStringList{QCoreApplication::translate("meshquality", "element"),
                                  QCoreApplication::translate("meshquality", "line"),
                                  QCoreApplication::translate("meshquality", "region"), QStringLiteral("x"),
                                  QStringLiteral("y"), QStringLiteral("z")} +
                      metricNames());
    for (const int element : report.worst(options.worstBy, options.worstListed())) {
        table.addRow(elementCells(report, element));
    }
    return Html::element("h3", QCoreApplication::translate("meshquality", "Worst elements by %1")
                                   .arg(MeshQualityReport::metricName(options.worstBy))) +
           QLatin1Char('\n') + scrolling(table);
}

QString regions(const MeshQualityReport& report, Metric metric)
{
    Html::Table table(QStringList{QCoreApplication::translate("meshquality", "region"),
                                  QCoreApplication::translate("meshquality", "tetrahedra"),
                                  QCoreApplication::translate("meshquality", "inverted"),
                                  QCoreApplication::translate("meshquality", "flat"),
                                  QCoreApplication::translate("meshquality", "mean")} +
                      spreadHead());
    for (const MeshQualityReport::Region& region : report.regions()) {
        const MeshQualityReport::Summary& summary = region.summaries[static_cast<std::size_t>(metric)];
        table.addRow(QStringList{regionName(region.name, region.physicalTag), QString::number(region.elementCount),
                                 QString::number(region.invertedCount), QString::number(region.flatCount),
                                 Html::number(summary.mean)} +
                     spread(summary));
    }
    return Html::element(
               "h3",
               QCoreApplication::translate("meshquality", "Regions, %1").arg(MeshQualityReport::metricName(metric))) +
           QLatin1Char('\n') + scrolling(table);
}

} // namespace

HtmlReport::HtmlReport(const ReportOptions& options) : m_options(options), m_file(options.htmlFile)
{
    m_file.write(pageStartText());
}

void HtmlReport::write(const ScoredMesh& mesh)
{
    if (m_file.isWritable()) {
        const QString text = QStringLiteral("<section>\n") + Html::element("h2", mesh.file) + QLatin1Char('\n') +
                             scoreText(mesh) + modelText(mesh) + conversion(mesh) + warnings(mesh) +
                             counts(mesh.report) + skippedLines(mesh.report) + features(mesh.report) +
                             histograms(mesh.report) + worst(mesh.report, m_options) +
                             regions(mesh.report, m_options.worstBy) + QStringLiteral("</section>\n");
        m_file.write(text.toUtf8());
    }
}

bool HtmlReport::commit()
{
    m_file.write(pageEnd);
    return m_file.commit();
}

} // namespace MeshQuality
