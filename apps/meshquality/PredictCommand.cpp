// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/PredictCommand.h>

#include <console/Console.h>
#include <meshquality/MeshInput.h>
#include <meshquality/ModelScore.h>
#include <meshquality/NumberText.h>
#include <meshquality/ScoredMesh.h>

#include <datamanager/meshquality/MeshQualityPredict.h>

#include <QCoreApplication>

#include <cmath>
#include <exception>

namespace MeshQuality {

using DataManager::MeshQualityPredict;

namespace {

QString historyText(const std::vector<float>& history)
{
    QStringList scores;
    for (const float score : history) {
        scores.append(QString::fromLatin1(shortestText(score)));
    }
    return scores.join(QLatin1Char(' ')) + QLatin1Char('\n');
}

} // namespace

ExitCode runPredict(const QStringList& arguments)
{
    if (arguments.size() > 1) {
        Console::printUsageError(QCoreApplication::translate("meshquality", "predict takes no arguments"));
        return UsageError;
    }
    // The predictor itself tells nothing: without a mesh it scores zeros, and of another format it makes something.
    ScoredMesh mesh;
    mesh.file = QCoreApplication::applicationDirPath() + QStringLiteral("/../temp/mesh.msh");
    if (measureAsItIs(mesh) != Success) {
        return UnreadableInput;
    }
    try {
        MeshQualityPredict::getinstance()->predict();
    } catch (const std::exception& error) {
        Console::printError(ModelScore::defaultModel(), QString::fromUtf8(error.what()));
        return ModelTrouble;
    }
    const std::vector<float> history = MeshQualityPredict::getinstance()->getOutput();
    if (std::isnan(history.back())) {
        Console::printError(
            mesh.file, QCoreApplication::translate(
                           "meshquality", "warning: the score is no number; why is told by: meshquality report '%1'")
                           .arg(mesh.file));
    }
    Console::print(historyText(history));
    return Success;
}

} // namespace MeshQuality
