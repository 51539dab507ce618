// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshFiles.h"
#include "MetricChain.h"
#include "SameValues.h"

#include <QtTest>

#include <vtkCellType.h>
#include <vtkMeshQuality.h>
#include <vtkPoints.h>
#include <vtkSmartPointer.h>
#include <vtkTetra.h>

#include <cmath>
#include <limits>

using DataManager::MeshQualityPredict;
using Values = QVector<double>;
using Points = QVector<Values>;

class QualityMetricsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void measures_data();
    void measures();
    void comparesVolumesWithTheirMean();
    void roundsJacobianForShape();
    void boundsScaledJacobianByTheJacobianItself();
    void ignoresAreasInCondition();
    void ignoresSurplusValues();
    void findsNoValueWhereOneIsMissing();
    void agreesWithLiteralMetricsOnSamples();
    void agreesWithVtk_data();
    void agreesWithVtk();

private:
    MeshQualityPredict m_predict;
};

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

bool close(double actual, double expected, double tolerance)
{
    return (std::isnan(expected) && std::isnan(actual)) || actual == expected ||
           std::fabs(actual - expected) <= tolerance * std::fabs(expected);
}

QByteArray text(double value)
{
    return QByteArray::number(value, 'g', 17);
}

} // namespace

void QualityMetricsTest::measures_data()
{
    QTest::addColumn<Points>("corners");
    QTest::addColumn<Values>("expected"); // in the order of the feature vector
    const double root2 = std::sqrt(2.0);
    const double root3 = std::sqrt(3.0);
    const double regularCondition = std::sqrt(52.0 / 27.0);
    QTest::newRow("regular, edge 1") << MeshFiles::regular()
                                     << Values{1 / (6 * root2), 1, 1, 1, regularCondition, 1 / root2, 1, 1, 1, 1, 1};
    QTest::newRow("regular, edge 3") << MeshFiles::regular(3)
                                     << Values{27 / (6 * root2), 1, 1, 1, regularCondition, 27 / root2, 1, 1, 1, 1, 1};
    const double aspectRatio = root2 * (3 + root3) / (2 * std::sqrt(6.0));
    const double aspectGamma = root2 * std::pow(1.5, 1.5) / 2;
    // c1 = (1, 0, 0), c2 = (-1, 2, 0) / sqrt(3), c3 = (-1, -1, 3): term1 = 41/3, term2 = 44, det = 2 sqrt(3).
    const double c1 = 1;
    const double c2 = 5.0 / 3;
    const double c3 = 11;
    const double term2 = 4.0 / 3 + 10 + (36 + 9 + 9) / 3.0;
    const double condition = std::sqrt((c1 + c2 + c3) * term2) / (2 * root3 * 3);
    const double radiusRatio = 0.5 * (3 + root3) / 3;
    const double shape = 3 * std::pow(root2, 2.0 / 3) / 4.5;
    QTest::newRow("right corner") << MeshFiles::rightCorner()
                                  << Values{1.0 / 6,     root2, aspectRatio, aspectGamma, condition, 1,
                                            radiusRatio, 1,     1 / root2,   shape,       shape};
    QTest::newRow("inverted") << MeshFiles::inverted(MeshFiles::rightCorner())
                              << Values{-1.0 / 6,    root2, -aspectRatio, -aspectGamma, notANumber, -1,
                                        radiusRatio, 1,     -1 / root2,   notANumber,   notANumber};
    QTest::newRow("flat") << Points{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {1, 1, 0}}
                          << Values{0, root2, infinity, infinity, infinity, 0, infinity, notANumber, 0, 0, notANumber};
    QTest::newRow("one point") << Points{{1, 1, 1}, {1, 1, 1}, {1, 1, 1}, {1, 1, 1}}
                               << Values{0,          notANumber, notANumber, notANumber, notANumber, 0,
                                         notANumber, notANumber, notANumber, notANumber, notANumber};
}

void QualityMetricsTest::measures()
{
    QFETCH(Points, corners);
    QFETCH(Values, expected);
    const std::array<Values, 11> values = MetricChain::metrics(m_predict, {corners});
    for (int i = 0; i < 11; ++i) {
        const Values& list = values[static_cast<std::size_t>(i)];
        QCOMPARE(list.size(), 1);
        // The orientation decides which corner the condition number starts from; only its sign is known by hand.
        if (qstrcmp(QTest::currentDataTag(), "inverted") == 0 && i == 4) {
            QVERIFY(list.first() < 0.0);
            continue;
        }
        QVERIFY2(close(list.first(), expected.at(i), 1e-7),
                 (QByteArray::number(i) + ": " + text(list.first())).constData());
        QVERIFY2(i == 9 || i == 10 || close(list.first(), expected.at(i), 1e-14),
                 (QByteArray::number(i) + ": " + text(list.first())).constData());
    }
}

void QualityMetricsTest::comparesVolumesWithTheirMean()
{
    QCOMPARE(m_predict.get_RelativeSizeSquared({3, 3, 3}), (Values{1, 1, 1}));
    // Mean 2: twice as large and half as large both give a half, which is not squared.
    QCOMPARE(m_predict.get_RelativeSizeSquared({4, 1, 2, 1, 2}), (Values{0.5, 0.5, 1, 0.5, 1}));
    QCOMPARE(m_predict.get_RelativeSizeSquared({0, 2}), (Values{0, 0.5}));
    QVERIFY(m_predict.get_RelativeSizeSquared({}).isEmpty());
}

void QualityMetricsTest::roundsJacobianForShape()
{
    const QVector<Points> edges = m_predict.get_vectorLs({MeshFiles::rightCorner()});
    const double jacobian = 1.0 + 1e-9; // as a float: 1
    QCOMPARE(m_predict.get_Shape(edges, {jacobian}), m_predict.get_Shape(edges, {1.0}));
    QVERIFY(m_predict.get_Shape(edges, {1.0 + 1e-6}) != m_predict.get_Shape(edges, {1.0}));
}

void QualityMetricsTest::boundsScaledJacobianByTheJacobianItself()
{
    const QVector<Points> edges = m_predict.get_vectorLs({MeshFiles::rightCorner()});
    QCOMPARE(m_predict.get_ScaledJacobian(edges, {100.0}), Values{std::sqrt(2.0) * 100.0 / 100.0});
}

void QualityMetricsTest::ignoresAreasInCondition()
{
    const QVector<Points> edges = m_predict.get_vectorLs({MeshFiles::regular()});
    QCOMPARE(m_predict.get_Condition(edges, {}), m_predict.get_Condition(edges, {12345.0}));
}

void QualityMetricsTest::ignoresSurplusValues()
{
    QCOMPARE(m_predict.get_EdgeRatio({4}, {2, 3}), Values{2});
    QCOMPARE(m_predict.get_ShapeAndSize({}, {2, 3}), Values{});
    QCOMPARE(m_predict.get_AspectGamma({}, {1}), Values{});
}

void QualityMetricsTest::findsNoValueWhereOneIsMissing()
{
    const QVector<Points> edges = m_predict.get_vectorLs({MeshFiles::regular(), {}});
    const QVector<Values> lists{m_predict.get_EdgeRatio({4, 4}, {2}),   m_predict.get_AspectRatio({4, 4}, {2}),
                                m_predict.get_RadiusRatio({4, 4}, {2}), m_predict.get_ShapeAndSize({4, 4}, {2}),
                                m_predict.get_AspectGamma(edges, {1}),  m_predict.get_Condition(edges, {}),
                                m_predict.get_Jacobian(edges),          m_predict.get_ScaledJacobian(edges, {1}),
                                m_predict.get_Shape(edges, {1})};
    for (const Values& list : lists) {
        QCOMPARE(list.size(), 2);
        QVERIFY(!std::isnan(list.at(0)));
        QVERIFY(std::isnan(list.at(1)));
    }
}

void QualityMetricsTest::agreesWithLiteralMetricsOnSamples()
{
    for (const QString& sample : MeshFiles::samples()) {
        const std::array<Values, 11> actual = MetricChain::metrics(m_predict, sample);
        const std::array<Values, 11> expected = LiteralPipeline::metrics(LiteralPipeline::read(sample));
        QVERIFY(expected[0].size() > 1000);
        for (std::size_t i = 0; i < actual.size(); ++i) {
            QVERIFY2(SameValues::same(actual[i], expected[i]), qPrintable(QStringLiteral("%1 %2").arg(sample).arg(i)));
        }
    }
}

using VtkMetric = double (*)(vtkCell*);
Q_DECLARE_METATYPE(VtkMetric)

void QualityMetricsTest::agreesWithVtk_data()
{
    QTest::addColumn<int>("metric");
    QTest::addColumn<VtkMetric>("vtkMetric");
    QTest::addColumn<double>("tolerance");
    QTest::newRow("edge ratio") << 1 << VtkMetric(vtkMeshQuality::TetEdgeRatio) << 1e-12;
    QTest::newRow("aspect ratio") << 2 << VtkMetric(vtkMeshQuality::TetAspectRatio) << 1e-9;
    QTest::newRow("aspect gamma") << 3 << VtkMetric(vtkMeshQuality::TetAspectGamma) << 1e-9;
    QTest::newRow("Jacobian") << 5 << VtkMetric(vtkMeshQuality::TetJacobian) << 1e-9;
    QTest::newRow("scaled Jacobian") << 8 << VtkMetric(vtkMeshQuality::TetScaledJacobian) << 1e-9;
    // Ours rounds the Jacobian to single precision.
    QTest::newRow("shape") << 9 << VtkMetric(vtkMeshQuality::TetShape) << 1e-7;
}

void QualityMetricsTest::agreesWithVtk()
{
    QFETCH(int, metric);
    QFETCH(VtkMetric, vtkMetric);
    QFETCH(double, tolerance);
    int compared = 0;
    for (const QString& sample : MeshFiles::samples()) {
        Points nodes;
        QVector<QVector<int>> elements;
        m_predict.get_Nodes_Elements(sample, nodes, elements);
        const QVector<Points> corners = m_predict.get_ElementsNodes(nodes, elements);
        const Values ours = MetricChain::metrics(m_predict, corners)[static_cast<std::size_t>(metric)];
        const vtkSmartPointer<vtkTetra> tetra = vtkSmartPointer<vtkTetra>::New();
        for (int i = 0; i < corners.size(); ++i) {
            for (int corner = 0; corner < 4; ++corner) {
                tetra->GetPoints()->SetPoint(corner, corners.at(i).at(corner).constData());
            }
            const double theirs = vtkMetric(tetra);
            QVERIFY2(close(ours.at(i), theirs, tolerance), (text(ours.at(i)) + " " + text(theirs)).constData());
            ++compared;
        }
    }
    QVERIFY(compared > 10000);
}

QTEST_APPLESS_MAIN(QualityMetricsTest)
#include "tst_qualitymetrics.moc"
