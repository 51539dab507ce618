// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "ModelFiles.h"
#include "PredictionTest.h"

#include <cmath>

using DataManager::MeshQualityPredict;

/// Models with a flipped bit or without their end. The runtime may refuse one, or find nothing wrong with it: then its
/// score is recorded. Either way nothing crashes, and the good file is used once it is there.
class DamagedModelTest : public PredictionTest
{
    Q_OBJECT

private Q_SLOTS:
    void survivesFlippedBits_data();
    void survivesFlippedBits();
    void refusesEveryLength();
    void cleanupTestCase();

private:
    void predictWith(const QByteArray& content);
    void predictWithTheGoodFile(MeshQualityPredict& predict);

    int m_refused = 0;
    int m_scored = 0;
};

void DamagedModelTest::survivesFlippedBits_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<int>("step");
    QTest::newRow("small") << ModelFiles::content("volume") << 1;
    // Primes, so that every bit of a byte has its turn.
#ifdef DATAMANAGER_EXHAUSTIVE_TESTS
    QTest::newRow("shipped") << ModelFiles::shipped() << 7;
#else
    QTest::newRow("shipped") << ModelFiles::shipped() << 197;
#endif
}

void DamagedModelTest::survivesFlippedBits()
{
    QFETCH(QByteArray, model);
    QFETCH(int, step);
    QVERIFY(!model.isEmpty());
    for (int bit = 0; bit < model.size() * 8; bit += step) {
        QByteArray damaged = model;
        damaged[bit / 8] = char(damaged.at(bit / 8) ^ (1 << bit % 8));
        predictWith(damaged);
        if (QTest::currentTestFailed()) {
            qCritical("at bit %d", bit);
            return;
        }
    }
}

/// Up to each kilobyte, and to the last byte but one.
void DamagedModelTest::refusesEveryLength()
{
    const QByteArray model = ModelFiles::shipped();
    QVERIFY(model.size() > 1024);
    const int scored = m_scored;
    for (int size = 0; size < model.size() && !QTest::currentTestFailed(); size += 1024) {
        predictWith(model.left(size));
    }
    predictWith(model.left(model.size() - 1));
    QCOMPARE(m_scored, scored);
}

void DamagedModelTest::cleanupTestCase()
{
    std::printf("%d damaged models were refused, %d scored\n", m_refused, m_scored);
    QVERIFY(m_refused > 0);
    QVERIFY(m_scored > 0);
}

void DamagedModelTest::predictWith(const QByteArray& content)
{
    MeshFiles::write(directory() + QStringLiteral("mesher/mesh.onnx"), content);
    installMesh(corner(1));
    MeshQualityPredict predict;
    bool isRefused = false;
    try {
        predict.predict();
    } catch (const Ort::Exception& error) {
        isRefused = true;
        QVERIFY(error.what()[0] != '\0');
    }
    const History history = predict.getOutput();
    const float score = history.back();
    QCOMPARE(History(history.begin(), history.end() - 1), History(9, 0.0F));
    QVERIFY(isRefused ? score == 0.0F : std::isnan(score) || (score >= 0.0F && score <= 1.0F));
    ++(isRefused ? m_refused : m_scored);
    // What was loaded stays, as described; a new process would not have it.
    delete MeshQualityPredict::s_session;
    MeshQualityPredict::s_session = nullptr;
    predictWithTheGoodFile(predict);
}

void DamagedModelTest::predictWithTheGoodFile(MeshQualityPredict& predict)
{
    // Copying a file waits for the disk, which thousands of times takes minutes.
    MeshFiles::write(directory() + QStringLiteral("mesher/mesh.onnx"), ModelFiles::content("above-one"));
    installMesh(corner(2));
    predict.predict();
    QCOMPARE(predict.getOutput().back(), 1.0F);
    delete MeshQualityPredict::s_session;
    MeshQualityPredict::s_session = nullptr;
}

QTEST_GUILESS_MAIN(DamagedModelTest)
#include "tst_damagedmodel.moc"
