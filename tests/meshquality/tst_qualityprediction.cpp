// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "PredictionTest.h"
#include "StandardOutput.h"

#include <cmath>
#include <limits>

using DataManager::MeshQualityPredict;

/// The cycle of predict(), and the history of scores.
class QualityPredictionTest : public PredictionTest
{
    Q_OBJECT

private Q_SLOTS:
    void handsOutOneInstance();
    void startsEmpty();
    void copiesMembers();
    void recordsClampedScores_data();
    void recordsClampedScores();
    void keepsTenScores();
    void skipsTheUnchangedMesh();
    void comparesTenFeaturesOnly();
    void drawsTheLineAtTheThreshold_data();
    void drawsTheLineAtTheThreshold();
    void scoresZerosWithoutMesh();
    void measuresAngles();
    void measuresLengths();
    void agreesWithTheModelThatComesWithIt();
};

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

void QualityPredictionTest::scoresZerosWithoutMesh()
{
    installModel("above-one");
    MeshQualityPredict predict;
    predict.predict();
    // Zeros have no direction, so they are never unchanged.
    predict.predict();
    QCOMPARE(predict.getOutput(), endingWith({1.0F, 1.0F}));
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
