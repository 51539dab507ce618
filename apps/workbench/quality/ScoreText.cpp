// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/quality/ScoreText.h>

#include <workbench/mesh/MeshManager.h>
#include <workbench/quality/ScoreHistory.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

using DataManager::MeshQualityReport;
using DataManager::QualityModelCard;

namespace Workbench {
namespace {

class ScoreText
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::ScoreText)
};

bool isScored(const ScoreHistory& history)
{
    using Outcome = ScoreHistory::Outcome;
    const Outcome outcome = history.outcome();
    return outcome == Outcome::Scored || outcome == Outcome::Unchanged || outcome == Outcome::OtherMesh;
}

bool areMeansFinite(const ScoreHistory& history)
{
    const QualityModelCard::Features& means = history.means();
    return std::all_of(means.begin(), means.end(), [](float mean) { return std::isfinite(mean); });
}

QString number(double value)
{
    return QString::number(value, 'g', 6);
}

// Says nothing that steers how text is shown, such as the direction of writing.
QString printable(QString text)
{
    for (QChar& character : text) {
        const bool isSteering =
            character.category() == QChar::Other_Control || character.category() == QChar::Other_Format;
        character = isSteering ? QChar(QChar::ReplacementCharacter) : character;
    }
    return text;
}

QString verdict(const ScoreHistory& history)
{
    if (!areMeansFinite(history)) {
        return ScoreText::tr("The score means nothing, because the mean of a metric is no finite number.");
    }
    if (std::isnan(history.score())) {
        return ScoreText::tr("There is no score: the model gives no number for this mesh.");
    }
    return ScoreText::tr("Score %1 (0 worst, 1 best)").arg(scoreNumber(history.score()));
}

// Who gave the score, and what it says by its own words.
QString model(const ScoreHistory& history)
{
    const QualityModelCard& card = history.card();
    const QString explanation = areMeansFinite(history) ? card.explanation(history.score()) : QString();
    return explanation.isEmpty() ? card.title() : card.title() + QStringLiteral(": ") + explanation;
}

} // namespace

QString scoreNumber(float score)
{
    return std::isnan(score) ? QString::fromUtf8("–") : QString::number(static_cast<double>(score), 'g', 4);
}

QString scoreSentence(const ScoreHistory& history)
{
    if (history.outcome() == ScoreHistory::Outcome::None) {
        return ScoreText::tr("A mesh is scored when it is opened.");
    }
    QStringList sentences;
    if (MeshManager::instance()->getKernelCount() > 1) {
        sentences << printable(ScoreText::tr("Of the mesh that was read last, %1:").arg(history.meshName()));
    }
    if (isScored(history)) {
        sentences << verdict(history);
        sentences << printable(model(history));
    }
    if (history.outcome() == ScoreHistory::Outcome::Unchanged) {
        sentences << ScoreText::tr("It is practically the mesh that was scored last, so the history has no new entry.");
    }
    sentences << printable(history.problemText());
    sentences.removeAll(QString());
    return sentences.join(QLatin1Char('\n'));
}

QStringList scoreWarnings(const ScoreHistory& history)
{
    QStringList warnings;
    if (isScored(history)) {
        for (const QualityModelCard::Excess& excess : history.card().outsideOfTraining(history.means())) {
            warnings << ScoreText::tr("Mean %1 %2 lies outside of the range that the model was trained on, %3 to %4.")
                            .arg(MeshQualityReport::metricName(excess.feature), number(excess.value),
                                 number(excess.range.lowest), number(excess.range.highest));
        }
    }
    return warnings;
}

} // namespace Workbench
