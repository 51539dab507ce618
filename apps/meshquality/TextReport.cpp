// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/TextReport.h>

#include <console/Columns.h>
#include <meshquality/ModelText.h>
#include <meshquality/NumberText.h>
#include <meshquality/ScoredMesh.h>
#include <meshquality/SkippedText.h>

#include <QCoreApplication>
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
               : QCoreApplication::translate("meshquality",
                                             "  converted from %1; line numbers are those of the conversion\n")
                     .arg(mesh.convertedFrom);
}

QString counts(const MeshQualityReport& report)
{
    const QString text =
        QCoreApplication::translate("meshquality", "  %1 nodes, %2 tetrahedra (%3 inverted, %4 flat)\n")
            .arg(report.nodeCount())
            .arg(report.elementCount())
            .arg(report.invertedCount())
            .arg(report.flatCount());
    const int repeating = report.duplicateNodeCount();
    return repeating == 0
               ? text
               : text +
                     QCoreApplication::translate("meshquality", "  %1 tetrahedra name a node twice\n").arg(repeating);
}

QString skippedLines(const MeshQualityReport& report)
{
    const QStringList places = skippedPlaces(report);
    return places.isEmpty() ? QString()
                            : QCoreApplication::translate("meshquality", "  %1 lines skipped:\n    ")
                                      .arg(report.skippedLineCount()) +
                                  places.join(QStringLiteral("\n    ")) + QLatin1Char('\n');
}

QString row(const QString& name, const QStringList& columns)
{
    QString text = QStringLiteral("  ") + Console::leftJustified(name, 20);
    for (const QString& column : columns) {
        text += Console::rightJustified(column, 13);
    }
    return text + QLatin1Char('\n');
}

/// The means as the model takes them, and how the finite values are spread, which a mean hides.
QString features(const MeshQualityReport& report)
{
    QString text =
        row(QCoreApplication::translate("meshquality", "metric"),
            {QCoreApplication::translate("meshquality", "mean"), QCoreApplication::translate("meshquality", "minimum"),
             QStringLiteral("1 %"), QStringLiteral("5 %"), QCoreApplication::translate("meshquality", "median"),
             QStringLiteral("95 %"), QCoreApplication::translate("meshquality", "maximum")});
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
    const QString kind = volume < 0.0    ? QCoreApplication::translate("meshquality", "inverted")
                         : volume == 0.0 ? QCoreApplication::translate("meshquality", "flat")
                                         : QCoreApplication::translate("meshquality", "out of the range of numbers");
    return QCoreApplication::translate("meshquality", "    element %1 (line %2): %3\n")
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
        text += QCoreApplication::translate("meshquality", "    and %1 more\n").arg(count - placesShown);
    }
    return text;
}

/// The metrics whose mean is no finite number: in double precision either, and only as the model takes it.
struct BadMeans
{
    QStringList ofElements;
    QStringList overflowing;
    QStringList narrowed;
};

BadMeans badMeans(const MeshQualityReport& report)
{
    BadMeans bad;
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        const Metric metric = static_cast<Metric>(i);
        if (!std::isfinite(report.features()[static_cast<std::size_t>(i)])) {
            const MeshQualityReport::Summary summary = report.summary(metric);
            QStringList& kind = summary.nonFinite > 0         ? bad.ofElements
                                : std::isfinite(summary.mean) ? bad.narrowed
                                                              : bad.overflowing;
            kind.append(MeshQualityReport::metricName(metric));
        }
    }
    return bad;
}

/// Why the score says nothing, whatever it is.
QString spoiltMeans(const MeshQualityReport& report)
{
    const BadMeans bad = badMeans(report);
    const auto line = [](const QStringList& metrics, const QString& what) {
        return metrics.isEmpty() ? QString()
                                 : QCoreApplication::translate("meshquality", "  no finite mean of %1: %2\n")
                                       .arg(metrics.join(QStringLiteral(", ")), what);
    };
    QString text =
        line(bad.narrowed,
             QCoreApplication::translate("meshquality", "every element has a value and so has the mean, but it is too "
                                                        "large for the single precision in which the model takes it"));
    text +=
        line(bad.overflowing,
             QCoreApplication::translate("meshquality", "every element has a value, but their sum is out of range"));
    text += line(bad.ofElements, QCoreApplication::translate("meshquality", "these elements have no finite value"));
    return bad.ofElements.isEmpty() ? text : text + elementsWithoutMetrics(report);
}

QString score(const ScoredMesh& mesh)
{
    const QString spoilt = spoiltMeans(mesh.report);
    if (!mesh.isScored) {
        return QCoreApplication::translate("meshquality", "  no score: the model cannot be used\n") + spoilt;
    }
    const bool isNumber = !std::isnan(mesh.score);
    const QString text =
        QCoreApplication::translate("meshquality", "  score ") + number(static_cast<double>(mesh.score));
    if (!spoilt.isEmpty()) {
        const QString verdict = isNumber ? QCoreApplication::translate("meshquality", " means nothing")
                                         : QCoreApplication::translate("meshquality", ": there is none");
        return text + verdict + QCoreApplication::translate("meshquality", ", because a mean is no finite number:\n") +
               spoilt;
    }
    return text + (isNumber
                       ? QCoreApplication::translate("meshquality", " (0 worst, 1 best)\n")
                       : QCoreApplication::translate(
                             "meshquality", ": there is none, because the model gives no number for these means\n"));
}

/// Who gave the score, what it says, and why it may say less.
QString model(const ScoredMesh& mesh)
{
    if (!mesh.isScored) {
        return QString();
    }
    QString text = QCoreApplication::translate("meshquality", "  model ") + modelSentence(mesh) + QLatin1Char('\n');
    for (const DataManager::QualityModelCard::Excess& excess : excesses(mesh)) {
        text += QCoreApplication::translate("meshquality", "  warning: ") + excessText(excess) + QLatin1Char('\n');
    }
    return text;
}

} // namespace

QString textReport(const ScoredMesh& mesh)
{
    return mesh.file + QLatin1Char('\n') + conversion(mesh) + counts(mesh.report) + skippedLines(mesh.report) +
           features(mesh.report) + score(mesh) + model(mesh);
}

} // namespace MeshQuality
