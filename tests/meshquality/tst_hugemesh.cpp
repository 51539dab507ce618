// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshFiles.h"

#include <datamanager/meshquality/MeshQualityPredict.h>
#include <datamanager/meshquality/MeshQualityReport.h>

#include <QCoreApplication>
#include <QFile>
#include <QtTest>

#include <cmath>

using DataManager::MeshQualityPredict;
using DataManager::MeshQualityReport;
using Metric = MeshQualityReport::Metric;

namespace {

#ifdef DATAMANAGER_EXHAUSTIVE_TESTS
constexpr int elementCount = 10000000;
constexpr int lineSize = 1 << 30;
#else
constexpr int elementCount = 100000;
constexpr int lineSize = 1 << 23;
#endif

const QByteArray head = "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$Nodes\n7\n1 0 0 0\n2 1 0 0\n3 0 1 0\n4 0 0 1\n"
                        "5 2 0 0\n6 0 2 0\n7 0 0 2\n";

} // namespace

/// Ten million tetrahedra and a line of 1 GiB in the exhaustive tier; fewer, and a shorter one, otherwise.
class HugeMeshTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readsEveryTetrahedron();
    void takesTheMeans();
    void reportsEveryTetrahedron();
    void endsWithAnEndlessLine_data();
    void endsWithAnEndlessLine();
    void cleanupTestCase();

private:
    static QString path() { return QCoreApplication::applicationDirPath() + QStringLiteral("/../temp/mesh.msh"); }

    bool m_isWritten = false;
};

/// Right corners with legs of 1 and 2 in turn.
void HugeMeshTest::init()
{
    if (m_isWritten) {
        return;
    }
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(head + "$EndNodes\n$Elements\n" + QByteArray::number(elementCount) + '\n');
    for (int i = 1; i <= elementCount; i += 2) {
        file.write(QByteArray::number(i) + " 4 2 3 1 1 2 3 4\n" + QByteArray::number(i + 1) + " 4 2 3 1 1 5 6 7\n");
    }
    file.write("$EndElements\n");
    file.close();
    m_isWritten = file.error() == QFileDevice::NoError;
    QVERIFY(m_isWritten);
}

void HugeMeshTest::readsEveryTetrahedron()
{
    QVector<QVector<double>> nodes;
    QVector<QVector<int>> elements;
    MeshQualityPredict().get_Nodes_Elements(path(), nodes, elements);
    QCOMPARE(nodes.size(), 7);
    QCOMPARE(elements.size(), elementCount);
    QCOMPARE(elements.first(), (QVector<int>{1, 2, 3, 4}));
    QCOMPARE(elements.last(), (QVector<int>{1, 5, 6, 7}));
}

void HugeMeshTest::takesTheMeans()
{
    float features[11] = {};
    MeshQualityPredict().getInput(features);
    // Volumes of 1/6 and 8/6 with the mean 3/4, so relative sizes of 2/9 and 9/16.
    const double meanSize = (2.0 / 9 + 9.0 / 16) / 2;
    const auto differs = [](float value, double expected) {
        return std::fabs(static_cast<double>(value) - expected) > 1e-6;
    };
    QVERIFY(!differs(features[0], 0.75));
    QVERIFY(!differs(features[1], std::sqrt(2.0)));
    QVERIFY(!differs(features[5], 4.5));
    QVERIFY(!differs(features[7], meanSize));
}

void HugeMeshTest::reportsEveryTetrahedron()
{
    MeshQualityReport report;
    QVERIFY(report.measure(path()));
    QCOMPARE(report.elementCount(), elementCount);
    QCOMPARE(report.skippedLineCount(), qint64(0));
    QCOMPARE(report.tag(elementCount - 1), elementCount);
    QCOMPARE(report.worst(Metric::Volume, 2), (std::vector<int>{0, 2}));
    QCOMPARE(report.histogram(Metric::Volume, 3).counts, (std::vector<int>{elementCount / 2, 0, elementCount / 2}));
    const std::vector<MeshQualityReport::Region> regions = report.regions();
    QCOMPARE(regions.size(), std::size_t(1));
    QCOMPARE(regions.front().elementCount, elementCount);
}

void HugeMeshTest::endsWithAnEndlessLine_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("filling");
    QTest::addColumn<int>("nodeCount");
    QTest::newRow("numbers") << QByteArray("8 1 2 3") << QByteArray(" 1") << 8;
    QTest::newRow("one number") << QByteArray("8 1 2 3") << QByteArray("33") << 8;
    QTest::newRow("NUL") << QByteArray("8 1") << QByteArray(2, '\0') << 7;
    QTest::newRow("blanks") << QByteArray("8 1") << QByteArray("  ") << 8;
    QTest::newRow("outside of a section") << QByteArray("$EndNodes\n8 1 2 3") << QByteArray(" 1") << 7;
}

void HugeMeshTest::endsWithAnEndlessLine()
{
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, filling);
    QFETCH(int, nodeCount);
    m_isWritten = false;
    MeshFiles::write(path(), head + start + filling.repeated(lineSize / filling.size()));
    QVector<QVector<double>> nodes;
    QVector<QVector<int>> elements;
    MeshQualityPredict().get_Nodes_Elements(path(), nodes, elements);
    QCOMPARE(nodes.size(), nodeCount);
    QCOMPARE(nodes.at(6), (QVector<double>{0, 0, 2}));
    QVERIFY(elements.isEmpty());
    MeshQualityReport report;
    QVERIFY(!report.measure(path()));
    QCOMPARE(report.problem(), MeshQualityReport::Problem::NoTetrahedra);
}

void HugeMeshTest::cleanupTestCase()
{
    QFile::remove(path());
}

QTEST_GUILESS_MAIN(HugeMeshTest)
#include "tst_hugemesh.moc"
