// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/CompareCommand.h>

#include <console/Columns.h>
#include <console/Console.h>
#include <meshquality/MeshInput.h>
#include <meshquality/ModelScore.h>
#include <meshquality/ModelText.h>
#include <meshquality/NumberText.h>
#include <meshquality/ProblemText.h>
#include <meshquality/ScoredMesh.h>

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cmath>

namespace MeshQuality {

using DataManager::MeshQualityReport;
using Metric = MeshQualityReport::Metric;
using Summary = MeshQualityReport::Summary;

namespace {

QString column(double value)
{
    return QString::fromLatin1(sixDigits(value)).rightJustified(13);
}

enum class Rating : int
{
    NoneKnown,
    Same,
    Improved,
    Worsened
};

Rating rating(double before, double after, bool isWorseWhenLarger)
{
    if (std::isnan(before) || std::isnan(after)) {
        return Rating::NoneKnown;
    }
    if (before == after) {
        return Rating::Same;
    }
    return (after > before) == isWorseWhenLarger ? Rating::Worsened : Rating::Improved;
}

QString word(Rating rating)
{
    switch (rating) {
    case Rating::Same:
        return QCoreApplication::translate("meshquality", "same");
    case Rating::Improved:
        return QCoreApplication::translate("meshquality", "improved");
    case Rating::Worsened:
        return QCoreApplication::translate("meshquality", "worsened");
    case Rating::NoneKnown:
        break;
    }
    return QCoreApplication::translate("meshquality", "unknown");
}

QString line(const QString& name, double before, double after, const QString& verdict)
{
    return QStringLiteral("  ") + Console::leftJustified(name, 28) + column(before) + column(after) +
           QStringLiteral("  ") + verdict + QLatin1Char('\n');
}

/// The size of elements is no quality, so only the other metrics are rated.
bool isRated(Metric metric)
{
    return metric != Metric::Volume && metric != Metric::Jacobian;
}

QString metricLines(Metric metric, const ScoredMesh& a, const ScoredMesh& b)
{
    const std::size_t place = static_cast<std::size_t>(metric);
    const Summary before = a.report.summary(metric);
    const Summary after = b.report.summary(metric);
    const bool isWorseWhenLarger = MeshQualityReport::isWorseWhenLarger(metric);
    const auto rated = [&](const char* figure, double valueOfA, double valueOfB) {
        const QString verdict = isRated(metric) ? word(rating(valueOfA, valueOfB, isWorseWhenLarger)) : QString();
        return line(MeshQualityReport::metricName(metric) + QLatin1Char(' ') +
                        QCoreApplication::translate("meshquality", figure),
                    valueOfA, valueOfB, verdict);
    };
    const auto worseSide = [&](const char* high, double Summary::*ofHigh, const char* low, double Summary::*ofLow) {
        const auto figure = isWorseWhenLarger ? ofHigh : ofLow;
        return rated(isWorseWhenLarger ? high : low, before.*figure, after.*figure);
    };
    return rated(QT_TRANSLATE_NOOP("meshquality", "mean"), static_cast<double>(a.report.features()[place]),
                 static_cast<double>(b.report.features()[place])) +
           rated(QT_TRANSLATE_NOOP("meshquality", "median"), before.median, after.median) +
           worseSide("95 %", &Summary::percentile95, "5 %", &Summary::percentile5) +
           worseSide("99 %", &Summary::percentile99, "1 %", &Summary::percentile1) +
           worseSide(QT_TRANSLATE_NOOP("meshquality", "maximum"), &Summary::maximum,
                     QT_TRANSLATE_NOOP("meshquality", "minimum"), &Summary::minimum);
}

QString comparison(const ScoredMesh& a, const ScoredMesh& b)
{
    QString text = QStringLiteral("  A: %1\n  B: %2\n").arg(a.file).arg(b.file);
    text += QStringLiteral("  ") + QString(28, QLatin1Char(' ')) + QStringLiteral("A").rightJustified(13) +
            QStringLiteral("B").rightJustified(13) + QLatin1Char('\n');
    text += line(QCoreApplication::translate("meshquality", "nodes"), static_cast<double>(a.report.nodeCount()),
                 static_cast<double>(b.report.nodeCount()), QString());
    text += line(QCoreApplication::translate("meshquality", "tetrahedra"), a.report.elementCount(),
                 b.report.elementCount(), QString());
    const auto bad = [&text](const QString& name, int before, int after) {
        text += line(name, before, after, word(rating(before, after, true)));
    };
    bad(QCoreApplication::translate("meshquality", "inverted"), a.report.invertedCount(), b.report.invertedCount());
    bad(QCoreApplication::translate("meshquality", "flat"), a.report.flatCount(), b.report.flatCount());
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        text += metricLines(static_cast<Metric>(i), a, b);
    }
    const double before = static_cast<double>(a.score);
    const double after = static_cast<double>(b.score);
    return text +
           line(QCoreApplication::translate("meshquality", "score"), before, after, word(rating(before, after, false)));
}

/// Who gave the scores, and why they may say less; nothing when there are none.
QString modelLines(const ScoredMesh& a, const ScoredMesh& b)
{
    if (!a.isScored || !b.isScored) {
        return QString();
    }
    QString text =
        QCoreApplication::translate("meshquality", "  model ") + printable(a.model->title()) + QLatin1Char('\n');
    const auto warn = [&text](const char* name, const ScoredMesh& mesh) {
        for (const DataManager::QualityModelCard::Excess& excess : excesses(mesh)) {
            text += QCoreApplication::translate("meshquality", "  warning: %1: %2\n")
                        .arg(QString::fromLatin1(name), excessText(excess));
        }
    };
    warn("A", a);
    warn("B", b);
    return text;
}

ExitCode measure(const QString& file, ScoredMesh& mesh)
{
    mesh.file = file;
    return measureMesh(mesh);
}

/// Meshes without a score are compared all the same.
ExitCode score(const QString& modelFile, ModelScore& model, ScoredMesh& a, ScoredMesh& b)
{
    a.model = &model.card();
    b.model = &model.card();
    a.isScored = model.load(modelFile) && model.score(a.report.features(), a.score);
    b.isScored = a.isScored && model.score(b.report.features(), b.score);
    if (!b.isScored) {
        Console::printError(modelFile, translated(model.errorText()));
    }
    return b.isScored ? Success : ModelTrouble;
}

} // namespace

ExitCode runCompare(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.addOption({QStringLiteral("model"), QString(), QStringLiteral("FILE"), ModelScore::defaultModel()});
    const bool isParsed = parser.parse(arguments);
    if (!isParsed || parser.positionalArguments().size() != 2) {
        Console::printUsageError(isParsed ? QCoreApplication::translate("meshquality", "compare needs two meshes")
                                          : parser.errorText());
        return UsageError;
    }
    ScoredMesh a;
    ScoredMesh b;
    const ExitCode ofA = measure(parser.positionalArguments().at(0), a);
    const ExitCode ofB = measure(parser.positionalArguments().at(1), b);
    if (qMax(ofA, ofB) != Success) {
        return qMax(ofA, ofB);
    }
    ModelScore model;
    const ExitCode exitCode = score(parser.value(QStringLiteral("model")), model, a, b);
    Console::print(comparison(a, b) + modelLines(a, b));
    return exitCode;
}

} // namespace MeshQuality
