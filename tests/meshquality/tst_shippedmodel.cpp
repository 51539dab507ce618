// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshFiles.h"

#include <datamanager/meshquality/MeshQualityPredict.h>
#include <datamanager/meshquality/QualityModelCard.h>

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <limits>
#include <random>

using DataManager::MeshQualityPredict;
using DataManager::MeshQualityReport;
using DataManager::QualityModelCard;
using Features = QualityModelCard::Features;
using Metric = MeshQualityReport::Metric;
using Point = std::array<double, 3>;
using Points = std::vector<Point>;

/// What is promised of the model that comes with the library.
class ShippedModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void expectationsAreOfThisModel();
    void givesTheExpectedScores_data() { addSamples(); }
    void givesTheExpectedScores();
    void doesNotSeeSize_data() { addSamples(); }
    void doesNotSeeSize();
    void neverGainsByJitter_data() { addSamples(); }
    void neverGainsByJitter();
    void neverGainsOutsideOfItsTraining_data() { addSamples(); }
    void neverGainsOutsideOfItsTraining();
    void knowsNoMeshAndNoNumbers();
    void meetsTheContract();
    void namesItsData();

private:
    static void addSamples();
    static QByteArray content(const char* file);
    static QByteArray hash(const char* file);
    static float score(Features features);
    Features features(const MeshQualityReport& mesh, const Points& points);

    const QString m_model = QStringLiteral(DATAMANAGER_SOURCE_DIR "/model/mesh.onnx");
    // Written by model/expected_scores.py, which shares no code with the library or the runtime.
    QJsonObject m_expected;
    QualityModelCard m_card;
    QTemporaryDir m_directory;
};

namespace {

constexpr int jitterSteps = 10;

Points points(const MeshQualityReport& mesh)
{
    Points result;
    for (qint64 i = 0; i < mesh.nodeCount(); ++i) {
        result.push_back(mesh.node(i));
    }
    return result;
}

/// from + factor step
Points moved(Points from, const Points& steps, double factor)
{
    for (std::size_t i = 0; i < from.size(); ++i) {
        for (std::size_t axis = 0; axis < 3; ++axis) {
            from[i][axis] += factor * steps[i][axis];
        }
    }
    return from;
}

double distance(const Point& a, const Point& b)
{
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

double volume(const Points& all, const std::array<int, 4>& corners)
{
    double e[3][3];
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t axis = 0; axis < 3; ++axis) {
            e[i][axis] =
                all[static_cast<std::size_t>(corners[i + 1])][axis] - all[static_cast<std::size_t>(corners[0])][axis];
        }
    }
    return (e[0][0] * (e[1][1] * e[2][2] - e[1][2] * e[2][1]) - e[0][1] * (e[1][0] * e[2][2] - e[1][2] * e[2][0]) +
            e[0][2] * (e[1][0] * e[2][1] - e[1][1] * e[2][0])) /
           6.0;
}

std::vector<double> shortestEdges(const MeshQualityReport& mesh, const Points& all)
{
    std::vector<double> result(all.size(), std::numeric_limits<double>::infinity());
    for (int element = 0; element < mesh.elementCount(); ++element) {
        for (const int a : mesh.corners(element)) {
            for (const int b : mesh.corners(element)) {
                double& shortest = result[static_cast<std::size_t>(a)];
                shortest = a == b ? shortest
                                  : qMin(shortest,
                                         distance(all[static_cast<std::size_t>(a)], all[static_cast<std::size_t>(b)]));
            }
        }
    }
    return result;
}

/// A step for each node, up to half of its shortest edge along each axis.
Points randomSteps(const MeshQualityReport& mesh, const Points& all, unsigned seed)
{
    std::mt19937 generator(seed);
    const std::vector<double> shortest = shortestEdges(mesh, all);
    Points steps(all.size());
    for (std::size_t i = 0; i < steps.size(); ++i) {
        for (double& step : steps[i]) {
            const double uniform = static_cast<double>(generator()) / 4294967296.0 - 0.5;
            step = std::isfinite(shortest[i]) ? uniform * shortest[i] : 0.0;
        }
    }
    return steps;
}

/// Holds the corners of each element back until it keeps a fiftieth of its volume all the way.
Points heldBack(const MeshQualityReport& mesh, const Points& all, Points steps)
{
    bool isHeld = true;
    for (int round = 0; isHeld && round < 60; ++round) {
        isHeld = false;
        for (int share = 1; share <= jitterSteps; ++share) {
            const Points there = moved(all, steps, double(share) / jitterSteps);
            for (int element = 0; element < mesh.elementCount(); ++element) {
                const std::array<int, 4>& corners = mesh.corners(element);
                if (volume(there, corners) < 0.02 * volume(all, corners)) {
                    isHeld = true;
                    for (const int corner : corners) {
                        for (double& step : steps[static_cast<std::size_t>(corner)]) {
                            step *= 0.6;
                        }
                    }
                }
            }
        }
    }
    return steps;
}

} // namespace

void ShippedModelTest::addSamples()
{
    QTest::addColumn<QString>("sample");
    for (const QString& sample : MeshFiles::samples()) {
        QTest::newRow(qPrintable(QFileInfo(sample).fileName())) << sample;
    }
}

QByteArray ShippedModelTest::content(const char* file)
{
    QFile source(QStringLiteral(DATAMANAGER_SOURCE_DIR "/") + QString::fromLatin1(file));
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

QByteArray ShippedModelTest::hash(const char* file)
{
    return QCryptographicHash::hash(content(file), QCryptographicHash::Sha256).toHex();
}

float ShippedModelTest::score(Features features)
{
    return MeshQualityPredict::getinstance()->inferFigure(features.data());
}

/// The features that the library finds in a file with the mesh's elements on these points.
Features ShippedModelTest::features(const MeshQualityReport& mesh, const Points& points)
{
    QList<QByteArray> nodes;
    for (const Point& point : points) {
        QByteArray line = QByteArray::number(nodes.size() + 1);
        for (const double coordinate : point) {
            line += ' ' + QByteArray::number(coordinate, 'g', 17);
        }
        nodes.append(line);
    }
    QList<QByteArray> elements;
    for (int element = 0; element < mesh.elementCount(); ++element) {
        QByteArray line = QByteArray::number(element + 1) + " 4 2 1 1";
        for (const int corner : mesh.corners(element)) {
            line += ' ' + QByteArray::number(corner + 1);
        }
        elements.append(line);
    }
    const QString path = m_directory.filePath(QStringLiteral("mesh.msh"));
    MeshFiles::write(path, MeshFiles::mesh(nodes, elements));
    MeshQualityReport report;
    report.measure(path);
    return report.elementCount() == mesh.elementCount() ? report.features() : Features{};
}

void ShippedModelTest::initTestCase()
{
    MeshQualityPredict* const predictor = MeshQualityPredict::getinstance();
    predictor->loadModel(QFile::encodeName(m_model).constData(), "onnx::Gemm_0", "19");
    predictor->setFigureParameter(MeshQualityReport::metricCount);
    QVERIFY2(m_card.read(m_model), qPrintable(m_card.problemText()));
    m_expected = QJsonDocument::fromJson(content("tests/meshquality/shipped-model/expected-scores.json")).object();
}

void ShippedModelTest::expectationsAreOfThisModel()
{
    const QString madeOf = m_expected.value(QStringLiteral("modelSha256")).toString();
    QVERIFY2(madeOf.toLatin1() == hash("model/mesh.onnx"), "mesh.onnx has changed: run model/expected_scores.py");
    QCOMPARE(m_expected.value(QStringLiteral("scores")).toObject().size(), MeshFiles::samples().size());
}

void ShippedModelTest::givesTheExpectedScores()
{
    QFETCH(QString, sample);
    MeshQualityReport mesh;
    QVERIFY(mesh.measure(sample));
    const QJsonValue expected =
        m_expected.value(QStringLiteral("scores")).toObject().value(QFileInfo(sample).fileName());
    const double found = static_cast<double>(score(mesh.features()));
    QVERIFY2(expected.isDouble() && std::fabs(found - expected.toDouble()) <= 1e-6,
             QByteArray::number(found, 'g', 9).constData());
}

void ShippedModelTest::doesNotSeeSize()
{
    QFETCH(QString, sample);
    MeshQualityReport mesh;
    QVERIFY(mesh.measure(sample));
    const float inOwnSize = score(mesh.features());
    for (const double scale : {1e-6, 1e6}) {
        const Points original = points(mesh);
        const Features scaled = features(mesh, moved(original, original, scale - 1.0));
        QVERIFY(std::fabs(static_cast<double>(scaled[0] / mesh.features()[0]) / std::pow(scale, 3) - 1.0) < 1e-5);
        const float difference = std::fabs(score(scaled) - inOwnSize);
        QVERIFY2(difference <= 0.005F, QByteArray::number(static_cast<double>(difference)).constData());
    }
}

void ShippedModelTest::neverGainsByJitter()
{
    QFETCH(QString, sample);
    MeshQualityReport mesh;
    QVERIFY(mesh.measure(sample));
    const Points original = points(mesh);
    for (const unsigned seed : {1U, 2U}) {
        const Points steps = heldBack(mesh, original, randomSteps(mesh, original, seed));
        const float first = score(mesh.features());
        float lowest = first;
        for (int share = 1; share <= jitterSteps; ++share) {
            const float next = score(features(mesh, moved(original, steps, double(share) / jitterSteps)));
            QVERIFY2(next - lowest <= 0.01F, QByteArray::number(static_cast<double>(next - lowest)).constData());
            lowest = qMin(lowest, next);
        }
        // Otherwise nothing was moved.
        QVERIFY2(lowest < first - 0.02F, QByteArray::number(static_cast<double>(lowest)).constData());
    }
}

void ShippedModelTest::neverGainsOutsideOfItsTraining()
{
    QFETCH(QString, sample);
    MeshQualityReport mesh;
    QVERIFY(mesh.measure(sample));
    for (std::size_t i = 0; i < mesh.features().size(); ++i) {
        const std::optional<QualityModelCard::Range> range = m_card.trainingRange(static_cast<Metric>(i));
        const auto scoreAt = [&](double value) {
            Features features = mesh.features();
            features[i] = static_cast<float>(value);
            return score(features);
        };
        for (const double factor : {1.1, 2.0, 10.0, 1e6}) {
            if (range) {
                QVERIFY(scoreAt(range->highest * factor) <= scoreAt(range->highest));
                QVERIFY(scoreAt(range->lowest / factor) <= scoreAt(range->lowest));
            }
        }
    }
}

void ShippedModelTest::knowsNoMeshAndNoNumbers()
{
    QCOMPARE(score(Features{}), 0.0F);
    MeshQualityReport mesh;
    QVERIFY(mesh.measure(MeshFiles::samples().first()));
    Features none;
    none.fill(std::numeric_limits<float>::quiet_NaN());
    QVERIFY(std::isnan(score(none)));
    for (std::size_t i = 0; i < none.size(); ++i) {
        Features features = mesh.features();
        features[i] = none[i];
        QVERIFY2(std::isnan(score(features)), QByteArray::number(int(i)).constData());
    }
}

void ShippedModelTest::meetsTheContract()
{
    QCOMPARE(m_card.violations(), QStringList());
    QVERIFY(m_card.trial().has_value());
    QVERIFY(m_card.trial()->ordinary > 0.0F && m_card.trial()->ordinary < 1.0F);
    QCOMPARE(m_card.trial()->zeros, 0.0F);
    QVERIFY(std::isnan(m_card.trial()->notANumber));
}

void ShippedModelTest::namesItsData()
{
    for (const char* key : {"name", "version", "meaning", "trainedOn", "licence", "dataSha256", "featureOrder"}) {
        QVERIFY2(!m_card.metadata().value(QString::fromLatin1(key)).isEmpty(), key);
    }
    QVERIFY(m_card.takesOurFeatures());
    QCOMPARE(m_card.metadata().value(QStringLiteral("dataSha256")).toLatin1(), hash("model/data/meshes.csv"));
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        const Metric metric = static_cast<Metric>(i);
        const bool isSize = metric == Metric::Volume || metric == Metric::Jacobian;
        QCOMPARE(m_card.trainingRange(metric).has_value(), !isSize);
    }
}

QTEST_GUILESS_MAIN(ShippedModelTest)
#include "tst_shippedmodel.moc"
