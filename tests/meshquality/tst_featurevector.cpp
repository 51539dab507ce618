// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshFiles.h"
#include "MetricChain.h"
#include "SameValues.h"

#include <QtTest>

#include <cmath>

using DataManager::MeshQualityPredict;
using Features = std::array<float, 11>;

class FeatureVectorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void leavesInputAloneWithoutFile();
    void averagesOneElement();
    void averagesInOrder();
    void averagesAnyNumber_data();
    void averagesAnyNumber();
    void hasNoMeansWithoutTetrahedra_data();
    void hasNoMeansWithoutTetrahedra();
    void doesNotReadNodeNumbers();
    void readsTheFileAgainOnEveryCall();
    void acceptsNoArray();
    void agreesWithTheChainOfCallsAndTheLiteralPipeline_data();
    void agreesWithTheChainOfCallsAndTheLiteralPipeline();

private:
    static QString path() { return QCoreApplication::applicationDirPath() + QStringLiteral("/../temp/mesh.msh"); }

    Features input()
    {
        Features features{};
        m_predict.getInput(features.data());
        return features;
    }

    MeshQualityPredict m_predict;
};

void FeatureVectorTest::cleanup()
{
    QFile::remove(path());
    QDir().rmdir(path());
}

void FeatureVectorTest::leavesInputAloneWithoutFile()
{
    QVERIFY(!QFile::exists(path()));
    Features features{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
    m_predict.getInput(features.data());
    QCOMPARE(features, (Features{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
    QCOMPARE(input(), Features{});
}

void FeatureVectorTest::averagesOneElement()
{
    MeshFiles::write(path(), MeshFiles::oneTetrahedron(MeshFiles::regular(2)));
    const double root2 = std::sqrt(2.0);
    const std::array<double, 11> expected{8 / (6 * root2), 1, 1, 1, std::sqrt(52.0 / 27), 8 / root2, 1, 1, 1, 1, 1};
    const Features actual = input();
    for (std::size_t i = 0; i < expected.size(); ++i) {
        QVERIFY2(std::fabs(static_cast<double>(actual[i]) - expected[i]) < 1e-6, qPrintable(QString::number(i)));
    }
}

void FeatureVectorTest::averagesInOrder()
{
    // Volumes 1/6 and 8/6 of the same shape: the means of size-free metrics are one element's.
    const QByteArray content =
        MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0 0 1", "5 2 0 0", "6 0 2 0", "7 0 0 2"},
                        {"1 4 2 0 1 1 2 3 4", "2 4 2 0 1 1 5 6 7"});
    MeshFiles::write(path(), content);
    const Features features = input();
    QCOMPARE(features[0], 0.75F);
    QCOMPARE(features[1], std::sqrt(2.0F));
    QCOMPARE(features[5], 4.5F);
    // 1/6 of a mean of 3/4 is 2/9; 3/4 of 8/6 is 9/16.
    QCOMPARE(features[7], static_cast<float>((2.0 / 9 + 9.0 / 16) / 2));
    QCOMPARE(features[8], std::sqrt(0.5F));
}

void FeatureVectorTest::averagesAnyNumber_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {1, 2, 3, 4, 5, 7, 8, 9}) {
        QTest::addRow("%d", count) << count;
    }
}

// Elements may be measured several at a time. Element i has its own four nodes; its legs are 1, i + 1 and (i + 1)^2, in
// turn along each axis.
void FeatureVectorTest::averagesAnyNumber()
{
    QFETCH(int, count);
    QList<QByteArray> nodes;
    QList<QByteArray> elements;
    double volumes = 0.0;
    for (int i = 0; i < count; ++i) {
        const int first = nodes.size() + 1;
        const std::array<int, 3> legs{1, i + 1, (i + 1) * (i + 1)};
        for (int corner = 0; corner < 4; ++corner) {
            std::array<int, 3> point{i, 2 * i, -i};
            if (corner > 0) {
                point[std::size_t(corner - 1)] += legs[std::size_t((corner + i) % 3)];
            }
            nodes.append("1 " + QByteArray::number(point[0]) + ' ' + QByteArray::number(point[1]) + ' ' +
                         QByteArray::number(point[2]));
        }
        elements.append("1 4 2 0 1 " + QByteArray::number(first) + ' ' + QByteArray::number(first + 1) + ' ' +
                        QByteArray::number(first + 2) + ' ' + QByteArray::number(first + 3));
        volumes += std::pow(i + 1, 3) / 6;
    }
    MeshFiles::write(path(), MeshFiles::mesh(nodes, elements));
    const Features features = input();
    QCOMPARE(features[0], static_cast<float>(volumes / count));
    QVERIFY(SameValues::same(features, LiteralPipeline::features(path())));
}

void FeatureVectorTest::hasNoMeansWithoutTetrahedra_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("triangle") << MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0"}, {"1 2 2 0 1 1 2 3"});
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("missing node") << MeshFiles::mesh({"1 0 0 0"}, {"1 4 2 0 1 1 1 1 2"});
    QTest::newRow("directory") << QByteArray("directory");
}

void FeatureVectorTest::hasNoMeansWithoutTetrahedra()
{
    QFETCH(QByteArray, content);
    if (content == "directory") {
        QVERIFY(QDir().mkpath(path()));
    } else {
        MeshFiles::write(path(), content);
    }
    for (const float feature : input()) {
        QVERIFY(std::isnan(feature));
    }
}

void FeatureVectorTest::doesNotReadNodeNumbers()
{
    const QList<QByteArray> elements{"1 4 2 0 1 1 2 3 4"};
    MeshFiles::write(path(), MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0 0 1"}, elements));
    const Features first = input();
    MeshFiles::write(path(), MeshFiles::mesh({"70 0 0 0", "2 1 0 0", "x 0 1 0", " 0 0 1"}, elements));
    QCOMPARE(input(), first);
}

void FeatureVectorTest::readsTheFileAgainOnEveryCall()
{
    MeshFiles::write(path(), MeshFiles::oneTetrahedron(MeshFiles::rightCorner()));
    const Features first = input();
    MeshFiles::write(path(), MeshFiles::oneTetrahedron(MeshFiles::regular()));
    QVERIFY(input() != first);
}

void FeatureVectorTest::acceptsNoArray()
{
    MeshFiles::write(path(), MeshFiles::oneTetrahedron(MeshFiles::rightCorner()));
    m_predict.getInput(nullptr);
}

void FeatureVectorTest::agreesWithTheChainOfCallsAndTheLiteralPipeline_data()
{
    QTest::addColumn<QByteArray>("content");
    for (const QString& sample : MeshFiles::samples()) {
        QFile mesh(sample);
        QVERIFY(mesh.open(QIODevice::ReadOnly));
        QTest::newRow(qPrintable(sample)) << mesh.readAll();
    }
    for (const auto& [name, content] : MeshFiles::hostile()) {
        QTest::newRow(name.constData()) << content;
    }
}

void FeatureVectorTest::agreesWithTheChainOfCallsAndTheLiteralPipeline()
{
    QFETCH(QByteArray, content);
    MeshFiles::write(path(), content);
    const Features streamed = input();
    QVERIFY(SameValues::same(streamed, MetricChain::features(m_predict, path())));
    QVERIFY(SameValues::same(streamed, LiteralPipeline::features(path())));
}

QTEST_GUILESS_MAIN(FeatureVectorTest)
#include "tst_featurevector.moc"
