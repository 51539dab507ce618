// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/private/ModelInspection.h>

#include <datamanager/meshquality/private/ModelRuntime.h>

#include <QFile>

#include <algorithm>
#include <cmath>
#include <limits>

namespace DataManager {

namespace {

using Features = QualityModelCard::Features;
using Shape = std::vector<int64_t>;

constexpr int64_t featureCount = MeshQualityReport::metricCount;
constexpr int64_t anySize = -1;

// Nearly the means of a good mesh of 7000 elements in millimetres.
constexpr Features ordinaryFeatures{34.0F, 1.7F, 1.6F, 1.5F, 1.9F, 204.0F, 1.7F, 0.56F, 0.57F, 0.8F, 0.45F};

QString text(const std::exception& error)
{
    return QString::fromUtf8(error.what()).simplified();
}

QString quoted(const QStringList& names)
{
    return names.isEmpty() ? QStringLiteral("none")
                           : QLatin1Char('\'') + names.join(QStringLiteral("', '")) + QLatin1Char('\'');
}

QString typeName(ONNXTensorElementDataType type)
{
    static const char* const names[] = {"undefined", "float",  "uint8", "int8",    "uint16", "int16",  "int32",
                                        "int64",     "string", "bool",  "float16", "double", "uint32", "uint64"};
    const auto place = static_cast<std::size_t>(type);
    return place < std::size(names) ? QString::fromLatin1(names[place]) : QStringLiteral("type %1").arg(place);
}

QString shapeText(const Shape& shape)
{
    QStringList sizes;
    for (const int64_t size : shape) {
        sizes.append(size == anySize ? QStringLiteral("any") : QString::number(size));
    }
    return QLatin1Char('[') + sizes.join(QStringLiteral(", ")) + QLatin1Char(']');
}

struct Tensor
{
    /// Empty where it is no tensor.
    QString type;
    Shape shape;

    explicit Tensor(const Ort::TypeInfo& info)
    {
        if (info.GetONNXType() == ONNX_TYPE_TENSOR) {
            const auto tensor = info.GetTensorTypeAndShapeInfo();
            type = typeName(tensor.GetElementType());
            shape = tensor.GetShape();
        }
    }

    QString typeViolation(const QString& what) const
    {
        return type == QLatin1String("float")
                   ? QString()
                   : QStringLiteral("expected %1 to be a tensor of float, found %2")
                         .arg(what, type.isEmpty() ? QStringLiteral("no tensor") : QStringLiteral("one of ") + type);
    }
};

class Inspection
{
public:
    Inspection(Ort::Session& session, ModelInspection& result) : m_session(session), m_result(result) {}

    void readMetadata()
    {
        const Ort::ModelMetadata metadata = m_session.GetModelMetadata();
        for (const Ort::AllocatedStringPtr& key : metadata.GetCustomMetadataMapKeysAllocated(m_allocator)) {
            const Ort::AllocatedStringPtr value = metadata.LookupCustomMetadataMapAllocated(key.get(), m_allocator);
            m_result.metadata.insert(QString::fromUtf8(key.get()), QString::fromUtf8(value.get()));
        }
    }

    void checkInput()
    {
        QStringList names;
        for (std::size_t i = 0; i < m_session.GetInputCount(); ++i) {
            names.append(QString::fromUtf8(m_session.GetInputNameAllocated(i, m_allocator).get()));
        }
        const QString expected = QString::fromLatin1(QualityModelCard::inputName);
        if (names != QStringList{expected}) {
            add(QStringLiteral("expected one input '%1', found %2").arg(expected, quoted(names)));
        }
        // Under another name it is the one that was meant.
        if (names.size() != 1) {
            return;
        }
        const Tensor input(m_session.GetInputTypeInfo(0));
        add(input.typeViolation(QStringLiteral("the input")));
        const bool isRow = input.shape == Shape{1, featureCount} || input.shape == Shape{anySize, featureCount};
        if (!input.type.isEmpty() && !isRow) {
            add(QStringLiteral("expected an input of shape [1, %1] or [any, %1], found %2")
                    .arg(featureCount)
                    .arg(shapeText(input.shape)));
        }
    }

    void checkOutput()
    {
        QStringList names;
        for (std::size_t i = 0; i < m_session.GetOutputCount(); ++i) {
            names.append(QString::fromUtf8(m_session.GetOutputNameAllocated(i, m_allocator).get()));
        }
        const QString expected = QString::fromLatin1(QualityModelCard::outputName);
        const int place = names.indexOf(expected);
        if (place < 0) {
            add(QStringLiteral("expected an output '%1', found %2").arg(expected, quoted(names)));
        }
        if (place < 0 && names.size() != 1) {
            return;
        }
        const Tensor output(m_session.GetOutputTypeInfo(static_cast<std::size_t>(qMax(0, place))));
        add(output.typeViolation(QStringLiteral("the output")));
        if (std::count(output.shape.begin(), output.shape.end(), 0) > 0) {
            add(QStringLiteral("expected an output of at least one value, found the shape %1")
                    .arg(shapeText(output.shape)));
        }
    }

    void tryOut()
    {
        const Features zeros{};
        Features notANumber{};
        notANumber.fill(std::numeric_limits<float>::quiet_NaN());
        try {
            m_result.trial = {run(ordinaryFeatures), run(zeros), run(notANumber)};
        } catch (const std::exception& error) {
            add(QStringLiteral("expected the model to run, found: ") + text(error));
            return;
        }
        if (std::isnan(m_result.trial->ordinary)) {
            add(QStringLiteral("expected a number as the score of ordinary features, found NaN"));
        }
    }

private:
    float run(Features features)
    {
        Ort::Value output = ModelRuntime::run(m_session, QualityModelCard::inputName, features.data(),
                                              static_cast<int>(features.size()), QualityModelCard::outputName);
        return *output.GetTensorData<float>();
    }

    void add(const QString& violation)
    {
        if (!violation.isEmpty()) {
            m_result.violations.append(violation);
        }
    }

    Ort::Session& m_session;
    ModelInspection& m_result;
    Ort::AllocatorWithDefaultOptions m_allocator;
};

void inspect(const QString& path, ModelInspection& result)
{
    // The caller hears of everything; nothing goes to the runtime's own log.
    Ort::SessionOptions options = ModelRuntime::created(Ort::SessionOptions());
    options.SetIntraOpNumThreads(1);
    options.SetLogSeverityLevel(ORT_LOGGING_LEVEL_FATAL);
    const std::unique_ptr<Ort::Session> session =
        ModelRuntime::openSession(QFile::encodeName(path).constData(), options);
    Inspection inspection(*session, result);
    inspection.readMetadata();
    inspection.checkInput();
    inspection.checkOutput();
    if (result.violations.isEmpty()) {
        inspection.tryOut();
    }
}

} // namespace

ModelInspection inspectModel(const QString& path)
{
    ModelInspection result;
    try {
        inspect(path, result);
    } catch (const std::exception& error) {
        result = ModelInspection();
        result.loadError = text(error);
    }
    return result;
}

} // namespace DataManager
