// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/TextDetails.h>

#include <console/Columns.h>
#include <meshquality/NumberText.h>
#include <meshquality/RegionName.h>
#include <meshquality/ReportOptions.h>

#include <algorithm>

#include <QCoreApplication>

namespace MeshQuality {

using DataManager::MeshQualityReport;
using Metric = MeshQualityReport::Metric;

namespace {

constexpr int bins = 20;

QString column(double value)
{
    return QString::fromLatin1(sixDigits(value)).rightJustified(13);
}

QString elementText(const MeshQualityReport& report, int element)
{
    const std::array<double, 3> centre = report.centroid(element);
    const int region = report.physicalTag(element);
    QString text =
        QCoreApplication::translate("meshquality", "    element %1 (line %2), region %3, at %4 %5 %6\n")
            .arg(QString::number(report.tag(element)), QString::number(report.line(element)),
                 regionName(report.groupNames().value(region), region), QString::fromLatin1(sixDigits(centre[0])),
                 QString::fromLatin1(sixDigits(centre[1])), QString::fromLatin1(sixDigits(centre[2])));
    QStringList values;
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        const Metric metric = static_cast<Metric>(i);
        values.append(MeshQualityReport::metricName(metric) + QLatin1Char(' ') +
                      QString::fromLatin1(sixDigits(report.values(metric)[static_cast<std::size_t>(element)])));
    }
    return text + QStringLiteral("      ") + values.join(QStringLiteral(", ")) + QLatin1Char('\n');
}

/// Before every line below a region's.
QString indented(QString text)
{
    return text.isEmpty()
               ? text
               : text.replace(QLatin1Char('\n'), QLatin1String("\n  ")).chopped(2).prepend(QLatin1String("  "));
}

QString worst(const MeshQualityReport& report, const ReportOptions& options, const std::vector<int>& elements)
{
    QString text = QCoreApplication::translate("meshquality", "  worst by %1:\n")
                       .arg(MeshQualityReport::metricName(options.worstBy));
    for (const int element : elements) {
        text += elementText(report, element);
    }
    return text;
}

QString bars(const MeshQualityReport::Histogram& histogram)
{
    constexpr int widestBar = 50;
    const int most = *std::max_element(histogram.counts.begin(), histogram.counts.end());
    const double width = histogram.upper / bins - histogram.lower / bins;
    QString text;
    for (std::size_t bin = 0; bin < histogram.counts.size(); ++bin) {
        const int count = histogram.counts[bin];
        const int bar = static_cast<int>(qint64(count) * widestBar / most);
        text += column(histogram.lower + width * static_cast<double>(bin)) + QString::number(count).rightJustified(10) +
                QLatin1Char(' ') + QString(bar, QLatin1Char('#')) + QLatin1Char('\n');
    }
    return text;
}

QString histogram(Metric metric, const MeshQualityReport::Histogram& histogram)
{
    return QStringLiteral("  %1:\n").arg(MeshQualityReport::metricName(metric)) +
           (histogram.counts.empty() ? QCoreApplication::translate("meshquality", "    no finite value\n")
                                     : bars(histogram));
}

QString spreadHead()
{
    QString text(23, QLatin1Char(' '));
    for (const QString& column :
         {QCoreApplication::translate("meshquality", "mean"), QCoreApplication::translate("meshquality", "minimum"),
          QStringLiteral("1 %"), QStringLiteral("5 %"), QCoreApplication::translate("meshquality", "median"),
          QStringLiteral("95 %"), QCoreApplication::translate("meshquality", "maximum")}) {
        text += Console::rightJustified(column, 13);
    }
    return text + QLatin1Char('\n');
}

QString regionTable(const MeshQualityReport::Region& region)
{
    QString text = QCoreApplication::translate("meshquality", "  region %1: %2 tetrahedra (%3 inverted, %4 flat)\n")
                       .arg(regionName(region.name, region.physicalTag), QString::number(region.elementCount),
                            QString::number(region.invertedCount), QString::number(region.flatCount));
    if (region.duplicateNodeCount > 0) {
        text += QCoreApplication::translate("meshquality", "    %1 tetrahedra name a node twice\n")
                    .arg(region.duplicateNodeCount);
    }
    text += spreadHead();
    for (std::size_t i = 0; i < region.summaries.size(); ++i) {
        const MeshQualityReport::Summary& s = region.summaries[i];
        text += QStringLiteral("    ") + MeshQualityReport::metricName(static_cast<Metric>(i)).leftJustified(19) +
                column(s.mean) + column(s.minimum) + column(s.percentile1) + column(s.percentile5) + column(s.median) +
                column(s.percentile95) + column(s.maximum) + QLatin1Char('\n');
    }
    return text;
}

/// What is told of the whole mesh, told of every region.
QString regions(const MeshQualityReport& report, const ReportOptions& options)
{
    QString text;
    for (const MeshQualityReport::Region& region : report.regions()) {
        text += regionTable(region);
        if (options.worstCount > 0) {
            text += indented(worst(report, options, report.worst(options.worstBy, options.worstCount, region)));
        }
        if (options.histogram) {
            text += indented(histogram(*options.histogram, report.histogram(*options.histogram, bins, region)));
        }
    }
    return text;
}

} // namespace

QString textDetails(const MeshQualityReport& report, const ReportOptions& options)
{
    QString text;
    if (options.worstCount > 0) {
        text += worst(report, options, report.worst(options.worstBy, options.worstCount));
    }
    if (options.histogram) {
        text += histogram(*options.histogram, report.histogram(*options.histogram, bins));
    }
    return options.byRegion ? text + regions(report, options) : text;
}

} // namespace MeshQuality
