// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/MeshQualityPredict.h>

#include <datamanager/frame/Singleton.h>
#include <datamanager/meshquality/private/ModelRuntime.h>

#include <QCoreApplication>

#include <cmath>
#include <iostream>
#include <memory>

namespace DataManager {

namespace {

constexpr int featureCount = 11;
constexpr int comparedFeatureCount = 10;
constexpr std::size_t historyLength = 10;
constexpr double unchangedSimilarity = 0.9999999;

} // namespace

const OrtApi* MeshQualityPredict::s_ortApi = ModelRuntime::functionTable();
Ort::Session* MeshQualityPredict::s_session = nullptr;
MeshQualityPredict* MeshQualityPredict::m_instance = nullptr;

MeshQualityPredict* MeshQualityPredict::getinstance()
{
    return singleton(m_instance, [] { return new MeshQualityPredict; });
}

MeshQualityPredict::MeshQualityPredict() : m_history(historyLength, 0.0F) {}

void MeshQualityPredict::predict()
{
    float input[featureCount] = {};
    const std::string modelPath =
        QStringLiteral("%1/%2")
            .arg(QCoreApplication::applicationDirPath(), QStringLiteral("/../mesher/mesh.onnx"))
            .toStdString();
    if (s_session == nullptr) {
        loadModel(modelPath.c_str(), "onnx::Gemm_0", "19");
    }
    setFigureParameter(featureCount);
    getInput(input);
    // Not a number, as when nothing was scored yet, is no similarity.
    if (cosDistance(input, m_lastInput) > unchangedSimilarity) {
        return;
    }
    std::copy(input, input + comparedFeatureCount, m_lastInput);
    m_history.push_back(inferFigure(input));
    m_history.pop_front();
}

void MeshQualityPredict::loadModel(const char* modelPath, const char* inputName, const char* outputName)
{
    if (s_ortApi == nullptr) {
        throw Ort::Exception("The model runtime does not offer version 6 of its interface", ORT_FAIL);
    }
    Ort::SessionOptions options = ModelRuntime::created(Ort::SessionOptions());
    options.SetIntraOpNumThreads(1);
    std::unique_ptr<Ort::Session> session = ModelRuntime::openSession(modelPath, options);
    delete s_session;
    s_session = session.release();
    m_inputName = inputName;
    m_outputName = outputName;
}

float MeshQualityPredict::inferFigure(void* input)
{
    if (!m_isDimensionSet) {
        std::cout << "未设置输入输出维度" << std::endl;
    }
    if (s_session == nullptr || input == nullptr) {
        throw Ort::Exception(s_session == nullptr ? "No model is loaded" : "No input is given", ORT_INVALID_ARGUMENT);
    }
    Ort::Value output = ModelRuntime::run(*s_session, m_inputName, input, m_inputSize, m_outputName);
    float& score = *output.GetTensorMutableData<float>();
    if (score > 1.0F) {
        score = 1.0F;
    } else if (score < 0.0F) {
        score = 0.0F;
    }
    return score;
}

std::vector<float> MeshQualityPredict::getOutput()
{
    m_output.assign(m_history.begin(), m_history.end());
    return m_output;
}

void MeshQualityPredict::setFigureParameter(int n)
{
    m_isDimensionSet = true;
    m_inputSize = n;
}

double MeshQualityPredict::cosDistance(float* a, float* b)
{
    double dot = 0.0;
    double squaresOfA = 0.0;
    double squaresOfB = 0.0;
    for (int i = 0; a != nullptr && b != nullptr && i < comparedFeatureCount; ++i) {
        const double valueOfA = static_cast<double>(a[i]);
        const double valueOfB = static_cast<double>(b[i]);
        dot += valueOfA * valueOfB;
        squaresOfA += valueOfA * valueOfA;
        squaresOfB += valueOfB * valueOfB;
    }
    return dot / (std::sqrt(squaresOfB) * std::sqrt(squaresOfA));
}

double MeshQualityPredict::getMold(const std::vector<double>& vector)
{
    double squares = 0.0;
    for (const double value : vector) {
        squares += value * value;
    }
    return std::sqrt(squares);
}

} // namespace DataManager
