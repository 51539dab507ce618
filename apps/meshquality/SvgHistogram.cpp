// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/SvgHistogram.h>

#include <meshquality/HtmlText.h>

#include <QCoreApplication>

namespace MeshQuality {

using DataManager::MeshQualityReport;

namespace {

constexpr int bins = 30;
constexpr int barWidth = 9;
constexpr int plotHeight = 90;
constexpr int titleHeight = 18;

QString bar(int bin, int count, int most, const QString& tooltip)
{
    // Few elements among many still show.
    const double height = count == 0 ? 0.0 : qMax(1.0, static_cast<double>(plotHeight) * count / most);
    return QStringLiteral("<rect x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\">")
               .arg(bin * barWidth)
               .arg(titleHeight + plotHeight - height)
               .arg(barWidth - 1)
               .arg(height) +
           Html::element("title", tooltip) + QStringLiteral("</rect>\n");
}

QString label(int x, int y, const char* anchor, const QString& text)
{
    return QStringLiteral("<text x=\"%1\" y=\"%2\" text-anchor=\"%3\">%4</text>\n")
        .arg(QString::number(x), QString::number(y), QString::fromLatin1(anchor), Html::escaped(text));
}

QString bars(const MeshQualityReport::Histogram& histogram)
{
    int most = 1;
    for (const int count : histogram.counts) {
        most = qMax(most, count);
    }
    const double width = (histogram.upper - histogram.lower) / bins;
    QString text;
    for (int bin = 0; bin < static_cast<int>(histogram.counts.size()); ++bin) {
        const int count = histogram.counts[static_cast<std::size_t>(bin)];
        const double lower = histogram.lower + width * bin;
        text += bar(bin, count, most,
                    QCoreApplication::translate("meshquality", "%1 to %2: %3")
                        .arg(Html::number(lower), Html::number(lower + width))
                        .arg(count));
    }
    return text;
}

} // namespace

QString svgHistogram(const MeshQualityReport& report, MeshQualityReport::Metric metric)
{
    const MeshQualityReport::Histogram histogram = report.histogram(metric, bins);
    const QString name = MeshQualityReport::metricName(metric);
    constexpr int width = bins * barWidth;
    constexpr int bottom = titleHeight + plotHeight;
    QString text = QStringLiteral("<svg role=\"img\" aria-label=\"%1\" viewBox=\"0 0 %2 %3\" width=\"%2\" "
                                  "height=\"%3\">\n")
                       .arg(Html::escaped(name), QString::number(width), QString::number(bottom + titleHeight));
    text += label(0, 12, "start", name);
    if (histogram.counts.empty()) {
        return text +
               label(width / 2, bottom / 2, "middle", QCoreApplication::translate("meshquality", "no finite value")) +
               QStringLiteral("</svg>\n");
    }
    return text + bars(histogram) +
           QStringLiteral("<line x1=\"0\" y1=\"%1\" x2=\"%2\" y2=\"%1\"/>\n").arg(bottom).arg(width) +
           label(0, bottom + 14, "start", Html::number(histogram.lower)) +
           label(width, bottom + 14, "end", Html::number(histogram.upper)) + QStringLiteral("</svg>\n");
}

} // namespace MeshQuality
