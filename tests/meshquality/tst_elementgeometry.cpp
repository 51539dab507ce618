// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "LiteralPipeline.h"
#include "MeshFiles.h"
#include "SameValues.h"

#include <datamanager/meshquality/MeshQualityPredict.h>

#include <QtTest>

#include <cmath>
#include <limits>

using DataManager::MeshQualityPredict;
using Values = QVector<double>;
using Points = QVector<Values>;
using Elements = QVector<Points>;

class ElementGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void computesVectors();
    void readsThreeComponentsOnly();
    void formsEdgeVectors();
    void measuresPairsInOrder();
    void acceptsOtherNodeCounts();
    void computesFigures_data();
    void computesFigures();
    void appendsFigures();
    void leavesOutElementsWithoutSixEdges();
    void agreesWithLiteralFiguresOnSamples();

private:
    LiteralPipeline::Figures figures(const Elements& elementNodes)
    {
        LiteralPipeline::Figures f;
        m_predict.get_As_Lmaxs_Lmins_Rs_rs_Vs(m_predict.get_vectorLs(elementNodes),
                                              m_predict.get_ElementsLinesLength(elementNodes), f.As, f.Lmaxs, f.Lmins,
                                              f.Rs, f.rs, f.Vs);
        return f;
    }

    MeshQualityPredict m_predict;
};

namespace {

const Points rightCorner = MeshFiles::rightCorner();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

bool close(double actual, double expected)
{
    return (std::isnan(expected) && std::isnan(actual)) || actual == expected ||
           std::fabs(actual - expected) <= 1e-14 * std::fabs(expected);
}

} // namespace

void ElementGeometryTest::computesVectors()
{
    const Values a{1, 2, 3};
    const Values b{4, -5, 7};
    QCOMPARE(m_predict.ab(2.5, a), (Values{2.5, 5, 7.5}));
    QCOMPARE(m_predict.ab(a, b), 15.0);
    QCOMPARE(m_predict.axb(a, b), (Values{29, 5, -13}));
    QCOMPARE(m_predict.minus(a, b), (Values{-3, 7, -4}));
    QCOMPARE(m_predict.plus(a, b), (Values{5, -3, 10}));
    QCOMPARE(m_predict.calculate_vector(a, b), (Values{3, -7, 4}));
    QCOMPARE(m_predict.calculate_vectorLength({2, 3, 6}), 7.0);
    // Summed from the left: the small terms are lost beside the large one only when they come one by one.
    QCOMPARE(m_predict.ab(Values{1e16, 1, 1}, Values{1, 1, 1}), 1e16);
}

void ElementGeometryTest::readsThreeComponentsOnly()
{
    QCOMPARE(m_predict.calculate_vectorLength({2, 3, 6, 100, 100}), 7.0);
    QCOMPARE(m_predict.ab(2.0, Values{1, 2, 3, 4}), (Values{2, 4, 6}));
    QCOMPARE(m_predict.ab(Values{1, 1, 1, 1}, Values{1, 1, 1, 1}), 3.0);
    // Missing components count as zero.
    QCOMPARE(m_predict.calculate_vectorLength({}), 0.0);
    QCOMPARE(m_predict.plus({1}, {1, 2}), (Values{2, 2, 0}));
}

void ElementGeometryTest::formsEdgeVectors()
{
    const Points edges{{1, 0, 0}, {-1, 1, 0}, {0, -1, 0}, {0, 0, 1}, {-1, 0, 1}, {0, -1, 1}};
    QCOMPARE(m_predict.get_vectorLs({rightCorner}), (Elements{edges}));
    QVERIFY(m_predict.get_vectorLs({}).isEmpty());
}

void ElementGeometryTest::measuresPairsInOrder()
{
    const Points points{{0, 0, 0}, {1, 0, 0}, {0, 2, 0}, {0, 0, 3}};
    QCOMPARE(m_predict.get_ElementsLinesLength({points}),
             (Points{{1, 2, 3, std::sqrt(5.0), std::sqrt(10.0), std::sqrt(13.0)}}));
}

void ElementGeometryTest::acceptsOtherNodeCounts()
{
    const Points three = rightCorner.mid(0, 3);
    const Points five = rightCorner + Points{{1, 1, 1}};
    const Elements elements{three, rightCorner, five, {}, {{1, 2, 3}}};
    const Elements edges = m_predict.get_vectorLs(elements);
    QCOMPARE(edges.size(), 5);
    QCOMPARE(edges.at(1).size(), 6);
    for (const int other : {0, 2, 3, 4}) {
        QVERIFY(edges.at(other).isEmpty());
    }
    const Points lengths = m_predict.get_ElementsLinesLength(elements);
    QCOMPARE(lengths.size(), 5);
    QCOMPARE(lengths.at(0), (Values{1, 1, std::sqrt(2.0)}));
    QCOMPARE(lengths.at(2).size(), 10);
    QVERIFY(lengths.at(3).isEmpty());
    QVERIFY(lengths.at(4).isEmpty());
}

void ElementGeometryTest::computesFigures_data()
{
    QTest::addColumn<Points>("corners");
    QTest::addColumn<Values>("expected"); // A, Lmax, Lmin, R, r, V
    const double root2 = std::sqrt(2.0);
    const double root3 = std::sqrt(3.0);
    QTest::newRow("right corner") << rightCorner << Values{(3 + root3) / 2, root2, 1, 0.5, 1 / (3 + root3), 1.0 / 6};
    QTest::newRow("inverted") << MeshFiles::inverted(rightCorner)
                              << Values{(3 + root3) / 2, root2, 1, -0.5, -1 / (3 + root3), -1.0 / 6};
    // The faces are 6, 18, 24 and, by their squares, 6 sqrt(26); |L3|^2 |L2 x L0| / (12 V) is 144 * 12 / 288.
    QTest::newRow("legs of 3, 4 and 12")
        << Points{{0, 0, 0}, {3, 0, 0}, {0, 4, 0}, {0, 0, 12}}
        << Values{48 + 6 * std::sqrt(26.0), 4 * std::sqrt(10.0), 3, 6, 72 / (48 + 6 * std::sqrt(26.0)), 24};
    const double edge = 2;
    QTest::newRow("regular") << MeshFiles::regular(edge)
                             << Values{root3 * edge * edge,
                                       edge,
                                       edge,
                                       edge * std::sqrt(6.0) / 4,
                                       edge / (2 * std::sqrt(6.0)),
                                       edge * edge * edge / (6 * root2)};
    // V = 0: r = 0 and R = |L3|^2 |L2 x L0| / 0.
    QTest::newRow("flat") << Points{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {1, 1, 0}} << Values{2, root2, 1, infinity, 0, 0};
    QTest::newRow("one point") << Points{{1, 1, 1}, {1, 1, 1}, {1, 1, 1}, {1, 1, 1}}
                               << Values{0, 0, 0, notANumber, notANumber, 0};
    QTest::newRow("overflowing") << Points{{0, 0, 0}, {1e200, 0, 0}, {0, 1e200, 0}, {0, 0, 1e200}}
                                 << Values{infinity, infinity, infinity, notANumber, notANumber, infinity};
    QTest::newRow("vanishing") << Points{{0, 0, 0}, {1e-320, 0, 0}, {0, 1e-320, 0}, {0, 0, 1e-320}}
                               << Values{0, 0, 0, notANumber, notANumber, 0};
    // Differences of such coordinates are exact.
    const double far = 1e9;
    const double leg = 1.0 / 1024;
    QTest::newRow("tiny and far away")
        << Points{{far, far, far}, {far + leg, far, far}, {far, far + leg, far}, {far, far, far + leg}}
        << Values{(3 + root3) / 2 * leg * leg, root2 * leg, leg, leg / 2, leg / (3 + root3), leg * leg * leg / 6};
}

void ElementGeometryTest::computesFigures()
{
    QFETCH(Points, corners);
    QFETCH(Values, expected);
    const LiteralPipeline::Figures f = figures({corners});
    const QVector<Values> lists{f.As, f.Lmaxs, f.Lmins, f.Rs, f.rs, f.Vs};
    for (int i = 0; i < lists.size(); ++i) {
        QCOMPARE(lists.at(i).size(), 1);
        QVERIFY2(close(lists.at(i).first(), expected.at(i)),
                 qPrintable(QStringLiteral("%1: %2").arg(i).arg(lists.at(i).first(), 0, 'g', 17)));
    }
}

void ElementGeometryTest::appendsFigures()
{
    LiteralPipeline::Figures f = figures({rightCorner});
    const Elements elements{MeshFiles::regular()};
    m_predict.get_As_Lmaxs_Lmins_Rs_rs_Vs(m_predict.get_vectorLs(elements), m_predict.get_ElementsLinesLength(elements),
                                          f.As, f.Lmaxs, f.Lmins, f.Rs, f.rs, f.Vs);
    for (const Values& list : {f.As, f.Lmaxs, f.Lmins, f.Rs, f.rs, f.Vs}) {
        QCOMPARE(list.size(), 2);
    }
    // The second element is number 0 of its call and takes the volume at place 0, the first call's.
    QCOMPARE(f.rs.at(1), f.Vs.at(0) * 3.0 / f.As.at(1));
    QCOMPARE(f.Lmaxs.at(1), 1.0);
}

void ElementGeometryTest::leavesOutElementsWithoutSixEdges()
{
    const Points large = MeshFiles::regular(2);
    const LiteralPipeline::Figures f = figures({rightCorner, rightCorner.mid(1), large, MeshFiles::regular(3)});
    for (const Values& list : {f.As, f.Lmaxs, f.Lmins, f.Rs, f.rs, f.Vs}) {
        QCOMPARE(list.size(), 3);
    }
    QCOMPARE(f.Lmaxs.at(1), 2.0);
    // Element 2 takes the volume at place 2, which is element 3's; element 3 finds none.
    QCOMPARE(f.rs.at(1), f.Vs.at(2) * 3.0 / f.As.at(1));
    QVERIFY(std::isnan(f.rs.at(2)));
    QVERIFY(std::isnan(f.Rs.at(2)));

    LiteralPipeline::Figures withoutLengths;
    m_predict.get_As_Lmaxs_Lmins_Rs_rs_Vs(m_predict.get_vectorLs({large, large}), {{}}, withoutLengths.As,
                                          withoutLengths.Lmaxs, withoutLengths.Lmins, withoutLengths.Rs,
                                          withoutLengths.rs, withoutLengths.Vs);
    QVERIFY(withoutLengths.As.isEmpty());
    QVERIFY(withoutLengths.Vs.isEmpty());
}

void ElementGeometryTest::agreesWithLiteralFiguresOnSamples()
{
    for (const QString& sample : MeshFiles::samples()) {
        const LiteralPipeline::PointsOfElements nodes = LiteralPipeline::elementNodes(LiteralPipeline::read(sample));
        const LiteralPipeline::PointsOfElements vectors = LiteralPipeline::edgeVectors(nodes);
        const Points lengths = LiteralPipeline::lineLengths(nodes);
        QVERIFY(SameValues::same(m_predict.get_vectorLs(nodes), vectors));
        QVERIFY(SameValues::same(m_predict.get_ElementsLinesLength(nodes), lengths));
        const LiteralPipeline::Figures expected = LiteralPipeline::figures(vectors, lengths);
        const LiteralPipeline::Figures actual = figures(nodes);
        QVERIFY(expected.As.size() > 1000);
        QVERIFY(SameValues::same(actual.As, expected.As));
        QVERIFY(SameValues::same(actual.Lmaxs, expected.Lmaxs));
        QVERIFY(SameValues::same(actual.Lmins, expected.Lmins));
        QVERIFY(SameValues::same(actual.Rs, expected.Rs));
        QVERIFY(SameValues::same(actual.rs, expected.rs));
        QVERIFY(SameValues::same(actual.Vs, expected.Vs));
    }
}

QTEST_APPLESS_MAIN(ElementGeometryTest)
#include "tst_elementgeometry.moc"
