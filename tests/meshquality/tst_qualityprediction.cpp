// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshFiles.h"

#include <datamanager/meshquality/MeshQualityPredict.h>

#include <onnxruntime_cxx_api.h>

#include <QtTest>

#include <cmath>
#include <cstdio>
#include <limits>
#include <unistd.h>

using DataManager::MeshQualityPredict;
using History = std::vector<float>;

/// What is written to standard output during its lifetime.
class StandardOutput
{
public:
    StandardOutput() : m_file(std::tmpfile()), m_saved(dup(1))
    {
        std::fflush(stdout);
        dup2(fileno(m_file), 1);
    }
    ~StandardOutput()
    {
        text();
        std::fclose(m_file);
    }
    QByteArray text()
    {
        if (m_saved >= 0) {
            std::fflush(stdout);
            dup2(m_saved, 1);
            close(m_saved);
            m_saved = -1;
            std::rewind(m_file);
            QFile file;
            file.open(m_file, QIODevice::ReadOnly);
            m_text = file.readAll();
        }
        return m_text;
    }

private:
    std::FILE* m_file;
    int m_saved;
    QByteArray m_text;
};

class QualityPredictionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void handsOutOneInstance();
    void startsEmpty();
    void copiesMembers();
    void throwsWhenTheModelCannotBeLoaded_data();
    void throwsWhenTheModelCannotBeLoaded();
    void throwsWhenTheModelDoesNotFit_data();
    void throwsWhenTheModelDoesNotFit();
    void scoresAfterAnEarlierFailure();
    void recordsClampedScores_data();
    void recordsClampedScores();
    void keepsTenScores();
    void skipsTheUnchangedMesh();
    void comparesTenFeaturesOnly();
    void drawsTheLineAtTheThreshold_data();
    void drawsTheLineAtTheThreshold();
    void namesTheModelFile();
    void startsNoThreads();
    void scoresZerosWithoutMesh();
    void keepsTheLoadedModel();
    void usesTheGivenInputSize();
    void warnsOfMissingInputSize();
    void throwsWithoutModelOrInput();
    void replacesTheModelOnlyByAGoodOne();
    void measuresAngles();
    void measuresLengths();
    void agreesWithTheModelThatComesWithIt();

private:
    static QString directory() { return QCoreApplication::applicationDirPath() + QStringLiteral("/../"); }
    static QString fixture(const char* name)
    {
        return QStringLiteral(DATAMANAGER_SOURCE_DIR "/tests/meshquality/models/%1.onnx")
            .arg(QString::fromLatin1(name));
    }
    static void installModel(const char* name)
    {
        QFile::remove(directory() + QStringLiteral("mesher/mesh.onnx"));
        QVERIFY(QFile::copy(fixture(name), directory() + QStringLiteral("mesher/mesh.onnx")));
    }
    static void installMesh(const QVector<QVector<double>>& corners)
    {
        MeshFiles::write(directory() + QStringLiteral("temp/mesh.msh"), MeshFiles::oneTetrahedron(corners));
    }
    /// A right corner with legs of this length: volume edge^3 / 6.
    static QVector<QVector<double>> corner(double edge)
    {
        return {{0, 0, 0}, {edge, 0, 0}, {0, edge, 0}, {0, 0, edge}};
    }
    static History endingWith(const History& scores)
    {
        History history(10 - scores.size(), 0.0F);
        history.insert(history.end(), scores.begin(), scores.end());
        return history;
    }
};

void QualityPredictionTest::init()
{
    // As in a new process.
    delete MeshQualityPredict::s_session;
    MeshQualityPredict::s_session = nullptr;
    QFile::remove(directory() + QStringLiteral("mesher/mesh.onnx"));
    QFile::remove(directory() + QStringLiteral("temp/mesh.msh"));
}

void QualityPredictionTest::handsOutOneInstance()
{
    MeshQualityPredict* const first = MeshQualityPredict::getinstance();
    QVERIFY(first != nullptr);
    QCOMPARE(MeshQualityPredict::getinstance(), first);
    QCOMPARE(MeshQualityPredict::m_instance, first);
}

void QualityPredictionTest::startsEmpty()
{
    MeshQualityPredict predict;
    QVERIFY(predict.m_inputName == nullptr);
    QVERIFY(predict.m_outputName == nullptr);
    QVERIFY(!predict.m_isDimensionSet);
    QVERIFY(predict.m_output.empty());
    for (const float value : predict.m_lastInput) {
        QCOMPARE(value, 0.0F);
    }
    QCOMPARE(predict.getOutput(), History(10, 0.0F));
    QCOMPARE(predict.m_output, History(10, 0.0F));
    QVERIFY(MeshQualityPredict::s_ortApi == OrtGetApiBase()->GetApi(6));
}

void QualityPredictionTest::copiesMembers()
{
    MeshQualityPredict original;
    original.setFigureParameter(7);
    original.m_history.push_back(0.5F);
    original.m_history.pop_front();
    original.m_lastInput[9] = 3.0F;
    const MeshQualityPredict copy(original);
    MeshQualityPredict assigned;
    assigned = original;
    for (MeshQualityPredict other : {copy, assigned}) {
        QVERIFY(other.m_isDimensionSet);
        QCOMPARE(other.m_inputSize, 7);
        QCOMPARE(other.m_lastInput[9], 3.0F);
        QCOMPARE(other.getOutput(), endingWith({0.5F}));
    }
}

void QualityPredictionTest::throwsWhenTheModelCannotBeLoaded_data()
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

void QualityPredictionTest::throwsWhenTheModelCannotBeLoaded()
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

void QualityPredictionTest::throwsWhenTheModelDoesNotFit_data()
{
    QTest::addColumn<QByteArray>("model");
    for (const char* name : {"other-input-name", "other-output-name", "double-input", "rank-one-input", "five-inputs",
                             "integer-output", "double-output", "empty-output"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void QualityPredictionTest::throwsWhenTheModelDoesNotFit()
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

void QualityPredictionTest::scoresAfterAnEarlierFailure()
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

void QualityPredictionTest::recordsClampedScores_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<float>("expected");
    QTest::newRow("1.7") << QByteArray("above-one") << 1.0F;
    QTest::newRow("-0.2") << QByteArray("below-zero") << 0.0F;
    QTest::newRow("NaN") << QByteArray("not-a-number") << std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("in between") << QByteArray("volume") << static_cast<float>(1.0 / 6);
}

void QualityPredictionTest::recordsClampedScores()
{
    QFETCH(QByteArray, model);
    QFETCH(float, expected);
    installModel(model.constData());
    installMesh(corner(1));
    MeshQualityPredict predict;
    predict.m_history.back() = 0.25F;
    StandardOutput output;
    predict.predict();
    QCOMPARE(output.text(), QByteArray());
    const History history = predict.getOutput();
    QCOMPARE(history.size(), std::size_t(10));
    QCOMPARE(history[8], 0.25F);
    QCOMPARE(std::isnan(history[9]), std::isnan(expected));
    QVERIFY(std::isnan(expected) || history[9] == expected);
}

void QualityPredictionTest::keepsTenScores()
{
    installModel("volume");
    MeshQualityPredict predict;
    History expected;
    for (int i = 1; i <= 12; ++i) {
        // Legs of different lengths: the direction of the feature vector changes.
        installMesh({{0, 0, 0}, {0.1 * i, 0, 0}, {0, 1, 0}, {0, 0, 1}});
        predict.predict();
        expected.push_back(static_cast<float>(0.1 * i / 6));
        QCOMPARE(predict.getOutput().size(), std::size_t(10));
    }
    const History history = predict.getOutput();
    for (std::size_t i = 0; i < 10; ++i) {
        QVERIFY(std::fabs(history[i] - expected[i + 2]) < 1e-6F);
    }
}

void QualityPredictionTest::skipsTheUnchangedMesh()
{
    installModel("volume");
    installMesh(corner(1));
    MeshQualityPredict predict;
    predict.predict();
    predict.predict();
    const float first = static_cast<float>(1.0 / 6);
    QCOMPARE(predict.getOutput(), endingWith({first}));
    installMesh(corner(2));
    predict.predict();
    QCOMPARE(predict.getOutput(), endingWith({first, 1.0F}));
    QVERIFY(std::fabs(predict.m_lastInput[0] - 8.0F / 6) < 1e-6F);
}

void QualityPredictionTest::comparesTenFeaturesOnly()
{
    installModel("last-feature");
    installMesh(corner(1));
    MeshQualityPredict predict;
    predict.predict();
    const History once = predict.getOutput();
    QVERIFY(once.back() > 0.8F);
    // A positive multiple of the ten stored features is no change.
    for (float& feature : predict.m_lastInput) {
        feature *= 1024.0F;
    }
    predict.predict();
    QCOMPARE(predict.getOutput(), once);
    // A negative one is.
    predict.m_lastInput[0] *= -1.0F;
    for (float& feature : predict.m_lastInput) {
        feature *= -1.0F;
    }
    predict.predict();
    QCOMPARE(predict.getOutput(), endingWith({once.back(), once.back()}));
}

void QualityPredictionTest::drawsTheLineAtTheThreshold_data()
{
    QTest::addColumn<double>("angle");
    QTest::addColumn<int>("scores");
    // The cosine is 1 - angle^2 / 2 in good approximation.
    QTest::newRow("0.99999992") << 4e-4 << 1;
    QTest::newRow("0.99999982") << 6e-4 << 2;
    QTest::newRow("0.999992") << 4e-3 << 2;
}

void QualityPredictionTest::drawsTheLineAtTheThreshold()
{
    QFETCH(double, angle);
    QFETCH(int, scores);
    installModel("above-one");
    installMesh(corner(1));
    MeshQualityPredict predict;
    predict.predict();
    // Turned by the angle within the plane of the two largest features.
    float* const features = predict.m_lastInput;
    const std::vector<float> before(features, features + 10);
    const double a = static_cast<double>(before[4]);
    const double b = static_cast<double>(before[1]);
    double squares = 0.0;
    for (const float feature : before) {
        squares += std::pow(static_cast<double>(feature), 2);
    }
    const double step = angle * std::sqrt(squares / (a * a + b * b));
    features[4] = static_cast<float>(a - step * b);
    features[1] = static_cast<float>(b + step * a);
    const double expected = 1.0 / std::sqrt(1.0 + angle * angle);
    QVERIFY(std::fabs(predict.cosDistance(features, const_cast<float*>(before.data())) - expected) < 1e-9);
    predict.predict();
    QCOMPARE(predict.getOutput(), endingWith(History(static_cast<std::size_t>(scores), 1.0F)));
}

void QualityPredictionTest::namesTheModelFile()
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

void QualityPredictionTest::startsNoThreads()
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

void QualityPredictionTest::scoresZerosWithoutMesh()
{
    installModel("above-one");
    MeshQualityPredict predict;
    predict.predict();
    // Zeros have no direction, so they are never unchanged.
    predict.predict();
    QCOMPARE(predict.getOutput(), endingWith({1.0F, 1.0F}));
}

void QualityPredictionTest::keepsTheLoadedModel()
{
    installModel("above-one");
    MeshQualityPredict predict;
    predict.predict();
    installModel("below-zero");
    predict.predict();
    QCOMPARE(predict.getOutput(), endingWith({1.0F, 1.0F}));
}

void QualityPredictionTest::usesTheGivenInputSize()
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

void QualityPredictionTest::warnsOfMissingInputSize()
{
    MeshQualityPredict predict;
    predict.loadModel(QFile::encodeName(fixture("above-one")).constData(), "onnx::Gemm_0", "19");
    float values[11] = {};
    StandardOutput output;
    QVERIFY_EXCEPTION_THROWN(predict.inferFigure(values), Ort::Exception);
    QCOMPARE(output.text(), QByteArray("未设置输入输出维度\n"));
}

void QualityPredictionTest::throwsWithoutModelOrInput()
{
    MeshQualityPredict predict;
    predict.setFigureParameter(11);
    float values[11] = {};
    QVERIFY_EXCEPTION_THROWN(predict.inferFigure(values), Ort::Exception);
    QVERIFY_EXCEPTION_THROWN(predict.loadModel(nullptr, nullptr, nullptr), Ort::Exception);
    predict.loadModel(QFile::encodeName(fixture("above-one")).constData(), "onnx::Gemm_0", "19");
    QVERIFY_EXCEPTION_THROWN(predict.inferFigure(nullptr), Ort::Exception);
    // The names belong to the instance that loaded the model.
    MeshQualityPredict other;
    other.setFigureParameter(11);
    QVERIFY_EXCEPTION_THROWN(other.inferFigure(values), Ort::Exception);
    QCOMPARE(predict.inferFigure(values), 1.0F);
}

void QualityPredictionTest::replacesTheModelOnlyByAGoodOne()
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

void QualityPredictionTest::measuresAngles()
{
    MeshQualityPredict predict;
    float a[] = {1, 1, 1, 1, 1, 0, 0, 0, 0, 0};
    float b[] = {1, 0, 0, 0, 0, 0, 0, 0, 0, 1};
    float zero[10] = {};
    QCOMPARE(predict.cosDistance(a, b), 1.0 / (std::sqrt(2.0) * std::sqrt(5.0)));
    QVERIFY(std::fabs(predict.cosDistance(a, a) - 1.0) < 1e-15);
    QVERIFY(std::isnan(predict.cosDistance(a, zero)));
    QVERIFY(std::isnan(predict.cosDistance(zero, zero)));
    QVERIFY(std::isnan(predict.cosDistance(nullptr, a)));
    // In double precision: the squares overflow a float.
    float large[] = {1e30F, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    QCOMPARE(predict.cosDistance(large, large), 1.0);
}

void QualityPredictionTest::measuresLengths()
{
    MeshQualityPredict predict;
    QCOMPARE(predict.getMold({2, 3, 6}), 7.0);
    QCOMPARE(predict.getMold({}), 0.0);
    QCOMPARE(predict.getMold(std::vector<double>(16, 1.0)), 4.0);
}

void QualityPredictionTest::agreesWithTheModelThatComesWithIt()
{
    const QString model = directory() + QStringLiteral("mesher/mesh.onnx");
    const QString mesh = directory() + QStringLiteral("temp/mesh.msh");
    QVERIFY(QFile::copy(QStringLiteral(DATAMANAGER_SOURCE_DIR "/model/mesh.onnx"), model));
    QVERIFY(QFile::copy(QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/slivers.msh"), mesh));
    MeshQualityPredict predict;
    predict.predict();
    QFile::remove(mesh);
    QVERIFY(QFile::copy(QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/plate-with-hole.msh"), mesh));
    predict.predict();
    const History history = predict.getOutput();
    QVERIFY(history[8] > 0.0F);
    QVERIFY(history[9] > history[8]);
    QVERIFY(history[9] < 1.0F);
}

QTEST_GUILESS_MAIN(QualityPredictionTest)
#include "tst_qualityprediction.moc"
