// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"

#include <workbench/view/OutsideSides.h>

#include <QTemporaryDir>

#include <algorithm>
#include <map>
#include <numeric>
#include <random>

using namespace Workbench;

namespace {

using Side = std::array<int, 3>;

QSharedPointer<const KernelMesh> read(const QString& path)
{
    return readKernelMesh(path, [](double) { return true; }).mesh;
}

QByteArray mesh(const QByteArray& nodes, const QByteArray& elements)
{
    return "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$Nodes\n" + nodes + "$EndNodes\n$Elements\n" + elements +
           "$EndElements\n";
}

const QByteArray sixNodes = "6\n1 0 0 0\n2 1 0 0\n3 0 1 0\n4 0 0 1\n5 1 1 1\n6 0 0 2\n";

// How often each set of three corners occurs among the sides of the elements.
std::map<Side, int> sidesOf(const KernelMesh& mesh, const std::vector<int>& places)
{
    std::map<Side, int> counts;
    for (int place : places) {
        std::array<int, 4> corners = mesh.report.corners(place);
        std::sort(corners.begin(), corners.end());
        for (std::size_t left = 0; left < 4; ++left) {
            Side side{};
            std::copy_if(corners.begin(), corners.end(), side.begin(),
                         [&](int corner) { return corner != corners[left]; });
            ++counts[side];
        }
    }
    return counts;
}

} // namespace

class tst_OutsideSides : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fewElements_data();
    void fewElements();
    void looksOutside();
    void partsOfSample_data();
    void partsOfSample();

private:
    QTemporaryDir m_directory;
};

void tst_OutsideSides::fewElements_data()
{
    QTest::addColumn<QByteArray>("elements");
    QTest::addColumn<int>("sides");
    QTest::newRow("one") << QByteArray("1\n1 4 2 1 1 1 2 3 4\n") << 4;
    QTest::newRow("two that share a side") << QByteArray("2\n1 4 2 1 1 1 2 3 4\n2 4 2 1 1 2 3 4 5\n") << 6;
    QTest::newRow("two groups that share a side") << QByteArray("2\n1 4 2 1 1 1 2 3 4\n2 4 2 2 1 2 3 4 5\n") << 6;
    QTest::newRow("two that share an edge") << QByteArray("2\n1 4 2 1 1 1 2 3 4\n2 4 2 1 1 3 4 5 6\n") << 8;
    // The other one lies on the same side of it, so neither hides it.
    QTest::newRow("the same twice") << QByteArray("2\n1 4 2 1 1 1 2 3 4\n2 4 2 1 1 1 2 3 4\n") << 8;
    QTest::newRow("turned in itself") << QByteArray("2\n1 4 2 1 1 1 2 3 4\n2 4 2 1 1 2 3 1 4\n") << 8;
    QTest::newRow("mirror images") << QByteArray("2\n1 4 2 1 1 1 2 3 4\n2 4 2 1 1 2 1 3 4\n") << 0;
    // Behind the side 2 3 4 lie two, upon one another; it is hidden, and of theirs the ones that see it.
    QTest::newRow("two behind one side") << QByteArray("3\n1 4 2 1 1 1 2 3 4\n2 4 2 1 1 2 3 4 5\n3 4 2 1 1 2 3 4 5\n")
                                         << 3 + 3 + 3;
}

void tst_OutsideSides::fewElements()
{
    QFETCH(QByteArray, elements);
    QFETCH(int, sides);
    const auto found = read(writeFile(m_directory.filePath(QStringLiteral("few.msh")), mesh(sixNodes, elements)));
    QVERIFY(found);
    std::vector<int> places(static_cast<std::size_t>(found->report.elementCount()));
    std::iota(places.begin(), places.end(), 0);
    QCOMPARE(static_cast<int>(outsideSides(*found, places).size()), sides);
    QCOMPARE(static_cast<int>(outsideSides(*found, {0}).size()), 4);
    QVERIFY(outsideSides(*found, {}).empty());
}

// Seen from outside the corners go round counter-clockwise: the element's own centre is behind its sides.
void tst_OutsideSides::looksOutside()
{
    const auto found = read(samplePath("graded-block.msh"));
    QVERIFY(found);
    for (int place = 0; place < 50; ++place) {
        const std::array<double, 3> centre = found->report.centroid(place);
        for (const Side& side : outsideSides(*found, {place})) {
            const auto& a = found->report.node(side[0]);
            const auto& b = found->report.node(side[1]);
            const auto& c = found->report.node(side[2]);
            std::array<double, 3> u{};
            std::array<double, 3> v{};
            double product = 0;
            for (std::size_t i = 0; i < 3; ++i) {
                u[i] = b[i] - a[i];
                v[i] = c[i] - a[i];
            }
            for (std::size_t i = 0; i < 3; ++i) {
                const double normal = u[(i + 1) % 3] * v[(i + 2) % 3] - u[(i + 2) % 3] * v[(i + 1) % 3];
                product += normal * (centre[i] - a[i]);
            }
            QVERIFY(product < 0);
        }
    }
}

void tst_OutsideSides::partsOfSample_data()
{
    QTest::addColumn<int>("outOf");
    QTest::newRow("all") << 1;
    QTest::newRow("half") << 2;
    QTest::newRow("few") << 50;
}

// In a sound mesh those are left that occur once.
void tst_OutsideSides::partsOfSample()
{
    QFETCH(int, outOf);
    const auto found = read(samplePath("bearing-housing.msh"));
    QVERIFY(found);
    std::mt19937 random(3);
    std::vector<int> places;
    for (int place = 0; place < found->report.elementCount(); ++place) {
        if (random() % static_cast<unsigned>(outOf) == 0) {
            places.push_back(place);
        }
    }
    std::vector<Side> expected;
    for (const auto& [side, count] : sidesOf(*found, places)) {
        if (count == 1) {
            expected.push_back(side);
        }
    }
    std::vector<Side> sides = outsideSides(*found, places);
    for (Side& side : sides) {
        std::sort(side.begin(), side.end());
    }
    std::sort(sides.begin(), sides.end());
    QVERIFY(!expected.empty());
    QVERIFY(sides == expected);
}

QTEST_GUILESS_MAIN(tst_OutsideSides)
#include "tst_outsidesides.moc"
