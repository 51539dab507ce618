// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/ModelScore.h>

#include <datamanager/meshquality/MeshQualityPredict.h>

#include <QCoreApplication>
#include <QFile>

#include <exception>

namespace MeshQuality {

using DataManager::MeshQualityPredict;
using DataManager::QualityModelCard;

QString ModelScore::defaultModel()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../mesher/mesh.onnx");
}

template <class Action>
bool ModelScore::attempt(Action action)
{
    try {
        action();
    } catch (const std::exception& error) {
        // Where the contract is not met, that says more than what the runtime made of it.
        m_errorText = m_card.violations().isEmpty() ? QString::fromUtf8(error.what())
                                                    : m_card.violations().join(QStringLiteral("; "));
        return false;
    }
    return true;
}

bool ModelScore::load(const QString& path)
{
    if (!m_card.read(path) || !m_card.takesOurFeatures()) {
        m_errorText = m_card.problemText() + m_card.violations().join(QStringLiteral("; "));
        return false;
    }
    return attempt([&path] {
        MeshQualityPredict* predictor = MeshQualityPredict::getinstance();
        predictor->loadModel(QFile::encodeName(path).constData(), QualityModelCard::inputName,
                             QualityModelCard::outputName);
        predictor->setFigureParameter(11);
    });
}

bool ModelScore::score(std::array<float, 11> features, float& score)
{
    return attempt([&] { score = MeshQualityPredict::getinstance()->inferFigure(features.data()); });
}

} // namespace MeshQuality
