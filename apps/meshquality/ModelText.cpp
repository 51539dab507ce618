// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/ModelText.h>

#include <meshquality/NumberText.h>
#include <meshquality/ScoredMesh.h>

#include <algorithm>
#include <cmath>

#include <QCoreApplication>

namespace MeshQuality {

using DataManager::MeshQualityReport;
using DataManager::QualityModelCard;

QString printable(QString text)
{
    for (QChar& character : text) {
        const bool isSteering =
            character.category() == QChar::Other_Control || character.category() == QChar::Other_Format;
        if (isSteering && character != QLatin1Char('\n')) {
            character = QChar::ReplacementCharacter;
        }
    }
    return text;
}

QString excessText(const QualityModelCard::Excess& excess)
{
    return QCoreApplication::translate("meshquality",
                                       "%1 %2 lies outside of the range that the model was trained on, %3 to %4")
        .arg(MeshQualityReport::metricName(excess.feature), QString::fromLatin1(sixDigits(excess.value)),
             QString::fromLatin1(sixDigits(excess.range.lowest)), QString::fromLatin1(sixDigits(excess.range.highest)));
}

std::vector<QualityModelCard::Excess> excesses(const ScoredMesh& mesh)
{
    return mesh.isScored ? mesh.model->outsideOfTraining(mesh.report.features())
                         : std::vector<QualityModelCard::Excess>();
}

QString scoreExplanation(const ScoredMesh& mesh)
{
    const QualityModelCard::Features& means = mesh.report.features();
    const bool areFinite = std::all_of(means.begin(), means.end(), [](float mean) { return std::isfinite(mean); });
    return mesh.isScored && areFinite ? mesh.model->explanation(mesh.score) : QString();
}

QString modelSentence(const ScoredMesh& mesh)
{
    const QString explanation = scoreExplanation(mesh);
    return printable(explanation.isEmpty() ? mesh.model->title()
                                           : mesh.model->title() + QStringLiteral(": ") + explanation);
}

} // namespace MeshQuality
