// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/ModelScore.h>

#include <datamanager/meshquality/MeshQualityPredict.h>

#include <QCoreApplication>
#include <QFile>

#include <exception>

namespace MeshQuality {

using DataManager::MeshQualityPredict;

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
        m_errorText = QString::fromUtf8(error.what());
        return false;
    }
    return true;
}

bool ModelScore::load(const QString& path)
{
    return attempt([&path] {
        MeshQualityPredict* predictor = MeshQualityPredict::getinstance();
        predictor->loadModel(QFile::encodeName(path).constData(), "onnx::Gemm_0", "19");
        predictor->setFigureParameter(11);
    });
}

bool ModelScore::score(std::array<float, 11> features, float& score)
{
    return attempt([&] { score = MeshQualityPredict::getinstance()->inferFigure(features.data()); });
}

} // namespace MeshQuality
