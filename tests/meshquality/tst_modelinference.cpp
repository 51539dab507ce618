// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "PredictionTest.h"
#include "StandardOutput.h"

#include <QDir>

#include <cmath>
#include <utility>

using DataManager::MeshQualityPredict;

/// Loading a model and running it.
class ModelInferenceTest : public PredictionTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qunsetenv("ORT_DISABLE_TELEMETRY"); }
    void leavesNoVariableBehind();
    void throwsWhenTheModelCannotBeLoaded_data();
    void throwsWhenTheModelCannotBeLoaded();
    void throwsWhenTheModelDoesNotFit_data();
    void throwsWhenTheModelDoesNotFit();
    void scoresAfterAnEarlierFailure();
    void namesTheModelFile();
    void startsNoThreads();
    void keepsTheLoadedModel();
    void usesTheGivenInputSize();
    void warnsOfMissingInputSize();
    void throwsWithoutModelOrInput();
    void throwsWithoutRuntime();
    void replacesTheModelOnlyByAGoodOne();
};

void ModelInferenceTest::leavesNoVariableBehind()
{
    MeshQualityPredict predict;
    predict.loadModel(QFile::encodeName(fixture("volume")).constData(), "onnx::Gemm_0", "19");
    QVERIFY(!qEnvironmentVariableIsSet("ORT_DISABLE_TELEMETRY"));
}

void ModelInferenceTest::throwsWhenTheModelCannotBeLoaded_data()
{
    QTest::addColumn<QByteArray>("content");
    QFile model(fixture("volume"));
    QVERIFY(model.open(QIODevice::ReadOnly));
    const QByteArray good = model.readAll();
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("text") << QByteArray("this is no model\n");
    for (int size = 16; size < good.size() - 16; size += 16) {
        QTest::addRow("cut after %d bytes", size) << good.left(size);
    }
}

void ModelInferenceTest::throwsWhenTheModelCannotBeLoaded()
{
    QFETCH(QByteArray, content);
    if (!content.isNull()) {
        MeshFiles::write(directory() + QStringLiteral("mesher/mesh.onnx"), content);
    }
    installMesh(corner(1));
    MeshQualityPredict predict;
    QString message;
    try {
        predict.predict();
    } catch (const Ort::Exception& error) {
        message = QString::fromUtf8(error.what());
        QVERIFY(error.GetOrtErrorCode() != ORT_OK);
    }
    QVERIFY(!message.isEmpty());
    QVERIFY(MeshQualityPredict::s_session == nullptr);
    QCOMPARE(predict.getOutput(), History(10, 0.0F));

    // The next call works once the file is good.
    installModel("volume");
    predict.predict();
    QCOMPARE(predict.getOutput(), endingWith({static_cast<float>(1.0 / 6)}));
}

void ModelInferenceTest::throwsWhenTheModelDoesNotFit_data()
{
    QTest::addColumn<QByteArray>("model");
    for (const char* name : {"other-input-name", "other-output-name", "double-input", "rank-one-input", "five-inputs",
                             "integer-output", "double-output", "empty-output"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void ModelInferenceTest::throwsWhenTheModelDoesNotFit()
{
    QFETCH(QByteArray, model);
    installModel(model.constData());
    installMesh(corner(1));
    MeshQualityPredict predict;
    bool isCaught = false;
    try {
        predict.predict();
    } catch (const Ort::Exception& error) {
        isCaught = error.what()[0] != '\0';
    }
    QVERIFY(isCaught);
    QVERIFY(MeshQualityPredict::s_session != nullptr);
    QCOMPARE(predict.getOutput(), History(10, 0.0F));
    // The features count as scored: they were stored before the model ran.
    QCOMPARE(predict.m_lastInput[0], static_cast<float>(1.0 / 6));
}

void ModelInferenceTest::scoresAfterAnEarlierFailure()
{
    installMesh(corner(1));
    MeshQualityPredict predict;
    QVERIFY_EXCEPTION_THROWN(predict.predict(), Ort::Exception);
    QVERIFY_EXCEPTION_THROWN(predict.predict(), std::exception);
    installModel("above-one");
    predict.predict();
    QCOMPARE(predict.getOutput(), endingWith({1.0F}));
    QCOMPARE(QByteArray(predict.m_inputName), QByteArray("onnx::Gemm_0"));
    QCOMPARE(QByteArray(predict.m_outputName), QByteArray("19"));
    QCOMPARE(predict.m_inputSize, 11);
}

void ModelInferenceTest::namesTheModelFile()
{
    MeshQualityPredict predict;
    QByteArray message;
    try {
        predict.predict();
    } catch (const Ort::Exception& error) {
        message = error.what();
    }
    // The slash is doubled.
    const QByteArray path = QCoreApplication::applicationDirPath().toUtf8() + "//../mesher/mesh.onnx";
    QVERIFY2(message.contains(path), message.constData());
}

void ModelInferenceTest::startsNoThreads()
{
    const auto threads = [] {
        return QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
    };
    const QByteArray model = QFile::encodeName(fixture("volume"));
    const int before = threads();
    MeshQualityPredict predict;
    predict.loadModel(model.constData(), "onnx::Gemm_0", "19");
    const int withSession = threads();
    const Ort::Env environment;
    const Ort::Session session(environment, model.constData(), Ort::SessionOptions());
    if (threads() == withSession) {
        QSKIP("a session would start no threads here even if it might, as on one core");
    }
    QCOMPARE(withSession, before);
}

void ModelInferenceTest::keepsTheLoadedModel()
{
    installModel("above-one");
    MeshQualityPredict predict;
    predict.predict();
    installModel("below-zero");
    predict.predict();
    QCOMPARE(predict.getOutput(), endingWith({1.0F, 1.0F}));
}

void ModelInferenceTest::usesTheGivenInputSize()
{
    MeshQualityPredict predict;
    predict.loadModel(QFile::encodeName(fixture("five-inputs")).constData(), "onnx::Gemm_0", "19");
    predict.setFigureParameter(5);
    float values[] = {1, 2, 0.5F, 0.5F, 1};
    QVERIFY(std::fabs(predict.inferFigure(values) - 0.5F) < 1e-6F);
    for (const int size : {4, 0, -1, -2147483647}) {
        predict.setFigureParameter(size);
        QVERIFY_EXCEPTION_THROWN(predict.inferFigure(values), Ort::Exception);
    }
}

void ModelInferenceTest::warnsOfMissingInputSize()
{
    MeshQualityPredict predict;
    predict.loadModel(QFile::encodeName(fixture("above-one")).constData(), "onnx::Gemm_0", "19");
    float values[11] = {};
    StandardOutput output;
    QByteArray complaint;
    try {
        predict.inferFigure(values);
    } catch (const Ort::Exception& error) {
        complaint = error.what();
    }
    QCOMPARE(output.text(), QByteArray("未设置输入输出维度\n"));
    QVERIFY2(complaint.contains("Got: 0 Expected: 11"), complaint.constData()); // a row without a value
}

void ModelInferenceTest::throwsWithoutModelOrInput()
{
    MeshQualityPredict predict;
    predict.setFigureParameter(11);
    float values[11] = {};
    const auto complaint = [&predict](void* input) {
        try {
            predict.inferFigure(input);
        } catch (const Ort::Exception& error) {
            return QByteArray(error.what());
        }
        return QByteArray();
    };
    QCOMPARE(complaint(values), QByteArray("No model is loaded"));
    QVERIFY_EXCEPTION_THROWN(predict.loadModel(nullptr, nullptr, nullptr), Ort::Exception);
    predict.loadModel(QFile::encodeName(fixture("above-one")).constData(), "onnx::Gemm_0", "19");
    QCOMPARE(complaint(nullptr), QByteArray("No input is given"));
    // The names belong to the instance that loaded the model.
    MeshQualityPredict other;
    other.setFigureParameter(11);
    QVERIFY_EXCEPTION_THROWN(other.inferFigure(values), Ort::Exception);
    QCOMPARE(predict.inferFigure(values), 1.0F);
}

void ModelInferenceTest::throwsWithoutRuntime()
{
    MeshQualityPredict predict;
    const OrtApi* const functions = std::exchange(MeshQualityPredict::s_ortApi, nullptr);
    const QByteArray model = QFile::encodeName(fixture("above-one"));
    QVERIFY_EXCEPTION_THROWN(predict.loadModel(model.constData(), "onnx::Gemm_0", "19"), Ort::Exception);
    MeshQualityPredict::s_ortApi = functions;
    QVERIFY(MeshQualityPredict::s_session == nullptr);
}

void ModelInferenceTest::replacesTheModelOnlyByAGoodOne()
{
    MeshQualityPredict predict;
    predict.setFigureParameter(11);
    float values[11] = {};
    predict.loadModel(QFile::encodeName(fixture("above-one")).constData(), "onnx::Gemm_0", "19");
    QVERIFY_EXCEPTION_THROWN(predict.loadModel("none.onnx", "onnx::Gemm_0", "19"), Ort::Exception);
    QCOMPARE(predict.inferFigure(values), 1.0F);
    predict.loadModel(QFile::encodeName(fixture("below-zero")).constData(), "onnx::Gemm_0", "19");
    QCOMPARE(predict.inferFigure(values), 0.0F);
}

QTEST_GUILESS_MAIN(ModelInferenceTest)
#include "tst_modelinference.moc"
