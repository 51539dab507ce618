// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/MeshQualityPredict.h>

#include <datamanager/frame/Singleton.h>
#include <datamanager/meshquality/private/OnnxRuntime.h>

#include <QCoreApplication>
#include <QtGlobal>

#include <cmath>
#include <iostream>
#include <memory>

namespace DataManager {

namespace {

constexpr int featureCount = 11;
constexpr int comparedFeatureCount = 10;
constexpr std::size_t historyLength = 10;
constexpr double unchangedSimilarity = 0.9999999;

const OrtApi* functionTable()
{
    const OrtApi* api = OrtGetApiBase()->GetApi(6);
    Ort::InitApi(api);
    return api;
}

template <class Object>
Object created(Object object)
{
    if (!object) {
        throw Ort::Exception("Allocation failure", ORT_FAIL);
    }
    return object;
}

// Some builds of the runtime report their use to their maker, and begin when the environment is created. They ask this
// variable first; who sets it decides.
class TelemetryRefusal
{
public:
    TelemetryRefusal() : m_isOurs(!qEnvironmentVariableIsSet(variable))
    {
        if (m_isOurs) {
            qputenv(variable, "1");
        }
    }
    ~TelemetryRefusal()
    {
        if (m_isOurs) {
            qunsetenv(variable);
        }
    }
    TelemetryRefusal(const TelemetryRefusal&) = delete;
    TelemetryRefusal& operator=(const TelemetryRefusal&) = delete;

private:
    static constexpr const char* variable = "ORT_DISABLE_TELEMETRY";
    bool m_isOurs;
};

Ort::Env* createEnvironment()
{
    const TelemetryRefusal refusal;
    return new Ort::Env(created(Ort::Env(ORT_LOGGING_LEVEL_WARNING, "Default")));
}

// Never released: a session must not outlive the environment that it was created in.
Ort::Env& environment()
{
    static Ort::Env* const instance = createEnvironment();
    return *instance;
}

std::basic_string<ORTCHAR_T> runtimePath(const char* path)
{
#ifdef _WIN32
    std::wstring wide(std::strlen(path) + 1, L'\0');
    std::size_t length = 0;
    mbstowcs_s(&length, wide.data(), wide.size(), path, wide.size() - 1);
    wide.resize(length > 0 ? length - 1 : 0);
    return wide;
#else
    return path;
#endif
}

void requireFloats(const Ort::Value& output)
{
    const Ort::TensorTypeAndShapeInfo shape = output.GetTensorTypeAndShapeInfo();
    if (shape.GetElementType() != ONNX_TENSOR_ELEMENT_DATA_TYPE_FLOAT || shape.GetElementCount() == 0) {
        throw Ort::Exception("The model's output is no tensor of at least one float", ORT_FAIL);
    }
}

} // namespace

const OrtApi* MeshQualityPredict::s_ortApi = functionTable();
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
    const std::basic_string<ORTCHAR_T> path = runtimePath(modelPath == nullptr ? "" : modelPath);
    Ort::Env& env = environment();
    Ort::SessionOptions options = created(Ort::SessionOptions());
    options.SetIntraOpNumThreads(1);
    auto session = std::make_unique<Ort::Session>(created(Ort::Session(env, path.c_str(), options)));
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
    const std::array<int64_t, 2> shape{1, m_inputSize};
    const Ort::MemoryInfo memory = created(Ort::MemoryInfo::CreateCpu(OrtDeviceAllocator, OrtMemTypeDefault));
    const Ort::Value tensor =
        created(Ort::Value::CreateTensor(memory, input, static_cast<std::size_t>(m_inputSize) * sizeof(float),
                                         shape.data(), shape.size(), ONNX_TENSOR_ELEMENT_DATA_TYPE_FLOAT));
    std::vector<Ort::Value> outputs =
        s_session->Run(Ort::RunOptions(nullptr), &m_inputName, &tensor, 1, &m_outputName, 1);
    requireFloats(outputs.front());
    float& score = *outputs.front().GetTensorMutableData<float>();
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
