// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/private/ModelRuntime.h>

#include <QByteArray>

#include <array>

namespace DataManager::ModelRuntime {

namespace {

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

const OrtApi* functionTable()
{
    const OrtApi* api = OrtGetApiBase()->GetApi(6);
    Ort::InitApi(api);
    return api;
}

std::unique_ptr<Ort::Session> openSession(const char* path, const Ort::SessionOptions& options)
{
    const std::basic_string<ORTCHAR_T> runtimesPath = runtimePath(path == nullptr ? "" : path);
    return std::make_unique<Ort::Session>(created(Ort::Session(environment(), runtimesPath.c_str(), options)));
}

Ort::Value run(Ort::Session& session, const char* inputName, void* input, int size, const char* outputName)
{
    const std::array<int64_t, 2> shape{1, size};
    const Ort::MemoryInfo memory = created(Ort::MemoryInfo::CreateCpu(OrtDeviceAllocator, OrtMemTypeDefault));
    const Ort::Value tensor =
        created(Ort::Value::CreateTensor(memory, input, static_cast<std::size_t>(size) * sizeof(float), shape.data(),
                                         shape.size(), ONNX_TENSOR_ELEMENT_DATA_TYPE_FLOAT));
    std::vector<Ort::Value> outputs = session.Run(Ort::RunOptions(nullptr), &inputName, &tensor, 1, &outputName, 1);
    requireFloats(outputs.front());
    return std::move(outputs.front());
}

} // namespace DataManager::ModelRuntime
