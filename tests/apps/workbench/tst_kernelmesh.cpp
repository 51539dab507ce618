// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"

#include <workbench/mesh/KernelMesh.h>
#include <workbench/mesh/SurfaceReader.h>

#include <QTemporaryDir>

#include <algorithm>
#include <map>

using namespace Workbench;

namespace {

// A unit cube of five tetrahedra would be ambiguous; these two share the face 2 3 4.
const QByteArray twoTetrahedra = "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n"
                                 "$PhysicalNames\n2\n2 7 \"a \"\"floor\"\n3 1 \"left\"\n$EndPhysicalNames\n"
                                 "$Nodes\n5\n1 0 0 0\n2 1 0 0\n3 0 1 0\n4 0 0 1\n5 1 1 1\n$EndNodes\n"
                                 "$Elements\n3\n"
                                 "10 2 2 7 1 3 2 1\n"
                                 "20 4 2 1 1 1 2 3 4\n"
                                 "15 4 2 %1 1 2 3 4 5\n$EndElements\n";

QByteArray twoVolumes(int secondVolume)
{
    return QByteArray(twoTetrahedra).replace("%1", QByteArray::number(secondVolume));
}

KernelReading read(const QString& path)
{
    return readKernelMesh(path, [](double) { return true; });
}

} // namespace

class tst_KernelMesh : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void elementNumbers_data();
    void elementNumbers();
    void skin_data();
    void skin();
    void facesLookOutside();
    void namesAndGroups();
    void surfaceLines_data();
    void surfaceLines();
    void longLinesAreLeftOut();
    void patchesEndAtEdges();
    void patchesOfSample();
    void cancelled();

private:
    QTemporaryDir m_directory;
};

void tst_KernelMesh::elementNumbers_data()
{
    QTest::addColumn<QVector<int>>("tags");
    QTest::addColumn<QVector<int>>("numbers");
    QTest::newRow("rising") << QVector<int>{3, 5, 9} << QVector<int>{3, 5, 9};
    QTest::newRow("out of order") << QVector<int>{9, 3, 5} << QVector<int>{9, 3, 5};
    QTest::newRow("repeated") << QVector<int>{4, 2, 4} << QVector<int>{1, 2, 3};
    QTest::newRow("repeated beside another") << QVector<int>{4, 4, 7} << QVector<int>{1, 2, 3};
    QTest::newRow("negative") << QVector<int>{-1, 2, 3} << QVector<int>{1, 2, 3};
    QTest::newRow("zero, out of order") << QVector<int>{5, 0} << QVector<int>{1, 2};
    QTest::newRow("none") << QVector<int>{} << QVector<int>{};
}

void tst_KernelMesh::elementNumbers()
{
    QFETCH(QVector<int>, tags);
    QFETCH(QVector<int>, numbers);
    const ElementNumbers found(std::vector<int>(tags.begin(), tags.end()));
    QCOMPARE(found.count(), tags.size());
    for (int place = 0; place < numbers.size(); ++place) {
        QCOMPARE(found.number(place), numbers[place]);
        QCOMPARE(found.place(numbers[place]), place);
    }
    for (int absent : {-1, 0, 1000}) {
        QCOMPARE(found.place(absent), -1);
    }
}

void tst_KernelMesh::skin_data()
{
    QTest::addColumn<int>("secondVolume");
    QTest::addColumn<int>("faces");
    QTest::newRow("the face between is inside") << 1 << 6;
    QTest::newRow("the face between bounds both volumes") << 2 << 8;
}

void tst_KernelMesh::skin()
{
    QFETCH(int, secondVolume);
    QFETCH(int, faces);
    const KernelReading reading =
        read(writeFile(m_directory.filePath(QStringLiteral("two.msh")), twoVolumes(secondVolume)));
    QVERIFY2(reading.mesh, qPrintable(reading.problem));
    QCOMPARE(static_cast<int>(reading.mesh->faces.size()), faces);
    QCOMPARE(reading.mesh->box, (std::array<double, 6>{0, 1, 0, 1, 0, 1}));
    QCOMPARE(reading.mesh->elementNumbers.number(1), 15);
    // The corners of the first that are not its first make its third side, the first three of the second its first.
    QCOMPARE(static_cast<int>(reading.mesh->neighbours.size()), 2);
    QCOMPARE(reading.mesh->neighbours[0], (std::array<int, 4>{-1, -1, 1, -1}));
    QCOMPARE(reading.mesh->neighbours[1], (std::array<int, 4>{0, -1, -1, -1}));
}

void tst_KernelMesh::facesLookOutside()
{
    const KernelReading reading = read(samplePath("plate-with-hole.msh"));
    QVERIFY(reading.mesh);
    const DataManager::MeshQualityReport& report = reading.mesh->report;
    for (const BoundaryFace& face : reading.mesh->faces) {
        const auto& a = report.node(face.nodes[0]);
        const auto& b = report.node(face.nodes[1]);
        const auto& c = report.node(face.nodes[2]);
        const auto inside = report.centroid(face.element);
        const double u[3] = {b[0] - a[0], b[1] - a[1], b[2] - a[2]};
        const double v[3] = {c[0] - a[0], c[1] - a[1], c[2] - a[2]};
        const double n[3] = {u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]};
        QVERIFY(n[0] * (inside[0] - a[0]) + n[1] * (inside[1] - a[1]) + n[2] * (inside[2] - a[2]) < 0);
    }
}

void tst_KernelMesh::namesAndGroups()
{
    SurfaceGroups groups;
    const QString path = writeFile(m_directory.filePath(QStringLiteral("groups.msh")), twoVolumes(1));
    QVERIFY(readSurfaceGroups(path, groups, [](qint64, qint64) { return true; }));
    QCOMPARE(groups.names.value(7), QStringLiteral("a \"\"floor"));
    QCOMPARE(groups.names.size(), 1);
    QCOMPARE(groups.groupOf({1, 3, 2}), 7);
    QCOMPARE(groups.groupOf({2, 3, 1}), 7);
    QCOMPARE(groups.groupOf({1, 2, 4}), 0);
}

void tst_KernelMesh::surfaceLines_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("count");
    QTest::newRow("good") << QByteArray("1 2 2 7 1 1 2 3") << 1;
    QTest::newRow("carriage return") << QByteArray("1 2 2 7 1 1 2 3\r") << 1;
    QTest::newRow("tabs") << QByteArray("1\t2\t2\t7\t1\t1\t2\t3") << 1;
    QTest::newRow("three tags") << QByteArray("1 2 3 7 1 0 1 2 3") << 1;
    QTest::newRow("no tags") << QByteArray("1 2 0 1 2 3") << 0;
    QTest::newRow("no group") << QByteArray("1 2 2 0 1 1 2 3") << 0;
    QTest::newRow("a node twice") << QByteArray("1 2 2 7 1 1 1 3") << 0;
    QTest::newRow("too short") << QByteArray("1 2 2 7 1 1 2") << 0;
    QTest::newRow("huge count of tags") << QByteArray("1 2 2147483647 7 1 1 2 3") << 0;
    QTest::newRow("too large a number") << QByteArray("1 2 2 99999999999 1 1 2 3") << 0;
    QTest::newRow("letters") << QByteArray("1 2 2 7 1 1 2 x") << 0;
    QTest::newRow("another type") << QByteArray("1 3 2 7 1 1 2 3 4") << 0;
    QTest::newRow("empty") << QByteArray("") << 0;
}

void tst_KernelMesh::surfaceLines()
{
    QFETCH(QByteArray, line);
    QFETCH(int, count);
    SurfaceGroups groups;
    const QByteArray content = "9 2 2 7 1 1 2 3\n$Elements\r\n1\n" + line + "\n$EndElements\n8 2 2 7 1 1 2 3";
    const QString path = writeFile(m_directory.filePath(QStringLiteral("line.msh")), content);
    QVERIFY(readSurfaceGroups(path, groups, [](qint64, qint64) { return true; }));
    QCOMPARE(static_cast<int>(groups.triangles.size()), count);
}

void tst_KernelMesh::longLinesAreLeftOut()
{
    QByteArray content = "first\n";
    content += QByteArray(3 << 20, 'x') + "\nsecond\n" + QByteArray(700000, 'y') + "\nlast";
    QList<int> lengths;
    FileLines lines(writeFile(m_directory.filePath(QStringLiteral("long.txt")), content));
    QVERIFY(
        lines.forEach([&lengths](const char* begin, const char* end) { lengths.append(static_cast<int>(end - begin)); },
                      [](qint64, qint64) { return true; }));
    QCOMPARE(lengths, (QList<int>{5, 6, 700000, 4}));
    QVERIFY(!FileLines(m_directory.filePath(QStringLiteral("absent")))
                 .forEach([](const char*, const char*) {}, [](qint64, qint64) { return true; }));
}

// Without groups the two tetrahedra have sharp edges everywhere but where triangles lie in one plane.
void tst_KernelMesh::patchesEndAtEdges()
{
    const KernelReading reading = read(writeFile(m_directory.filePath(QStringLiteral("edges.msh")), twoVolumes(1)));
    QVERIFY(reading.mesh);
    QCOMPARE(static_cast<int>(reading.mesh->patches.size()), 6);
    const FacePatch& floor = reading.mesh->patches.front();
    QCOMPARE(floor.faceID, 7);
    QVERIFY(floor.isGroup);
    QCOMPARE(floor.name, QStringLiteral("a \"\"floor"));
    QCOMPARE(floor.triangleCount, 1);
    QCOMPARE(reading.mesh->patches.back().faceID, 12);
    QVERIFY(!reading.mesh->patches.back().isGroup);
}

// A plate has six sides and a hole. Three of these are groups, so four faces without group are left.
void tst_KernelMesh::patchesOfSample()
{
    const KernelReading reading = read(samplePath("plate-with-hole.msh"));
    QVERIFY(reading.mesh);
    std::map<int, QString> names;
    int triangles = 0;
    for (const FacePatch& patch : reading.mesh->patches) {
        names[patch.faceID] = patch.name;
        triangles += patch.triangleCount;
    }
    const std::map<int, QString> expected = {{2, QStringLiteral("clamped")},
                                             {3, QStringLiteral("pulled")},
                                             {4, QStringLiteral("hole")},
                                             {5, QString()},
                                             {6, QString()},
                                             {7, QString()},
                                             {8, QString()}};
    QCOMPARE(names, expected);
    QCOMPARE(triangles, static_cast<int>(reading.mesh->faces.size()));
}

void tst_KernelMesh::cancelled()
{
    double last = 0;
    const KernelReading reading = readKernelMesh(samplePath("plate-with-hole.msh"), [&last](double done) {
        last = done;
        return done < 0.7;
    });
    QVERIFY(!reading.mesh);
    QVERIFY(reading.isCancelled);
    QVERIFY(reading.problem.isEmpty());
    QVERIFY(last >= 0.7);
}

QTEST_GUILESS_MAIN(tst_KernelMesh)
#include "tst_kernelmesh.moc"
