// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/PredictCommand.h>

#include <console/Console.h>
#include <meshquality/ModelScore.h>
#include <meshquality/NumberText.h>

#include <datamanager/meshquality/MeshQualityPredict.h>

#include <QCoreApplication>
#include <QFileInfo>

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
        Console::printUsageError(QStringLiteral("predict takes no arguments"));
        return UsageError;
    }
    // Without a mesh the predictor scores zeros, which means nothing to anyone.
    const QString mesh = QCoreApplication::applicationDirPath() + QStringLiteral("/../temp/mesh.msh");
    if (!QFileInfo(mesh).isFile()) {
        Console::printError(mesh, QFileInfo::exists(mesh) ? QStringLiteral("not a regular file")
                                                          : QStringLiteral("no such file"));
        return UnreadableInput;
    }
    try {
        MeshQualityPredict::getinstance()->predict();
    } catch (const std::exception& error) {
        Console::printError(ModelScore::defaultModel(), QString::fromUtf8(error.what()));
        return ModelTrouble;
    }
    Console::print(historyText(MeshQualityPredict::getinstance()->getOutput()));
    return Success;
}

} // namespace MeshQuality
