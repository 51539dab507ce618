// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/TextReport.h>

#include <meshquality/NumberText.h>
#include <meshquality/ScoredMesh.h>

#include <QStringList>

#include <cmath>

namespace MeshQuality {

using DataManager::MeshQualityReport;
using Metric = MeshQualityReport::Metric;

namespace {

constexpr int placesShown = 5;

QString number(double value)
{
    return QString::fromLatin1(sixDigits(value));
}

QString conversion(const ScoredMesh& mesh)
{
    return mesh.convertedFrom.isEmpty()
               ? QString()
               : QStringLiteral("  converted from %1; line numbers are those of the conversion\n")
                     .arg(mesh.convertedFrom);
}

QString counts(const MeshQualityReport& report)
{
    return QStringLiteral("  %1 nodes, %2 tetrahedra (%3 inverted, %4 flat)\n")
        .arg(report.nodeCount())
        .arg(report.elementCount())
        .arg(report.invertedCount())
        .arg(report.flatCount());
}

QString reasonText(MeshQualityReport::SkipReason reason)
{
    switch (reason) {
    case MeshQualityReport::SkipReason::ShortNode:
        return QStringLiteral("a node needs four columns");
    case MeshQualityReport::SkipReason::ShortTetrahedron:
        return QStringLiteral("a tetrahedron needs nine columns");
    case MeshQualityReport::SkipReason::MissingNode:
        return QStringLiteral("names a node that is not there (nodes are numbered by their place in the file)");
    }
    return QString();
}

QString skippedLines(const MeshQualityReport& report)
{
    const std::size_t count = report.skippedLines().size();
    if (count == 0) {
        return QString();
    }
    QString text = QStringLiteral("  %1 lines skipped:\n").arg(count);
    for (std::size_t i = 0; i < count && i < placesShown; ++i) {
        const MeshQualityReport::SkippedLine& line = report.skippedLines()[i];
        text += QStringLiteral("    line %1: %2\n").arg(line.line).arg(reasonText(line.reason));
    }
    if (count > placesShown) {
        text += QStringLiteral("    and %1 more\n").arg(count - placesShown);
    }
    return text;
}

QString row(const QString& name, const QStringList& columns)
{
    QString text = QStringLiteral("  ") + name.leftJustified(20);
    for (const QString& column : columns) {
        text += column.rightJustified(13);
    }
    return text + QLatin1Char('\n');
}

/// The means as the model takes them, and how the finite values are spread, which a mean hides.
QString features(const MeshQualityReport& report)
{
    QString text = row(QStringLiteral("metric"),
                       {QStringLiteral("mean"), QStringLiteral("minimum"), QStringLiteral("1 %"), QStringLiteral("5 %"),
                        QStringLiteral("median"), QStringLiteral("95 %"), QStringLiteral("maximum")});
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        const Metric metric = static_cast<Metric>(i);
        const double mean = static_cast<double>(report.features()[static_cast<std::size_t>(i)]);
        const MeshQualityReport::Summary s = report.summary(metric);
        text += row(MeshQualityReport::metricName(metric),
                    {number(mean), number(s.minimum), number(s.percentile1), number(s.percentile5), number(s.median),
                     number(s.percentile95), number(s.maximum)});
    }
    return text;
}

bool isFinite(const MeshQualityReport& report, int element)
{
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        if (!std::isfinite(report.values(static_cast<Metric>(i))[static_cast<std::size_t>(element)])) {
            return false;
        }
    }
    return true;
}

QString elementText(const MeshQualityReport& report, int element)
{
    const double volume = report.values(Metric::Volume)[static_cast<std::size_t>(element)];
    const QString kind = volume < 0.0    ? QStringLiteral("inverted")
                         : volume == 0.0 ? QStringLiteral("flat")
                                         : QStringLiteral("out of the range of numbers");
    return QStringLiteral("    element %1 (line %2): %3\n")
        .arg(report.tag(element))
        .arg(report.line(element))
        .arg(kind);
}

/// The elements that have a metric which is no finite number: they spoil the means and with them the score.
QString elementsWithoutMetrics(const MeshQualityReport& report)
{
    QString text;
    int count = 0;
    for (int element = 0; element < report.elementCount(); ++element) {
        if (!isFinite(report, element) && ++count <= placesShown) {
            text += elementText(report, element);
        }
    }
    if (count > placesShown) {
        text += QStringLiteral("    and %1 more\n").arg(count - placesShown);
    }
    return text;
}

QString score(const ScoredMesh& mesh)
{
    if (!std::isnan(mesh.score)) {
        return QStringLiteral("  score %1 (0 worst, 1 best)\n").arg(number(static_cast<double>(mesh.score)));
    }
    return QStringLiteral(
               "  score nan: there is none, because a mean is no finite number. These elements cause it:\n") +
           elementsWithoutMetrics(mesh.report);
}

} // namespace

QString textReport(const ScoredMesh& mesh)
{
    return mesh.file + QLatin1Char('\n') + conversion(mesh) + counts(mesh.report) + skippedLines(mesh.report) +
           features(mesh.report) + score(mesh);
}

} // namespace MeshQuality
