// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/MeshQualityPredict.h>

#include <datamanager/meshquality/private/FeatureSums.h>
#include <datamanager/meshquality/private/Lanes.h>

#include <QCoreApplication>
#include <QFile>

#include <new>

namespace DataManager {

namespace {

using Tetrahedron::Lanes;
using LaneCorners = Tetrahedron::CornersOf<Lanes>;
using LaneMeasures = Tetrahedron::MeasuresOf<Lanes>;

/// The same corner of the elements from `first` on.
Tetrahedron::VectorOf<Lanes> cornerOfLanes(const MeshTables& mesh, std::size_t first, std::size_t corner)
{
    static_assert(Lanes::count == 4);
    const auto node = [&](std::size_t lane) { return mesh.position(mesh.tetrahedra[first + lane][corner]); };
    const Tetrahedron::Vector a = node(0);
    const Tetrahedron::Vector b = node(1);
    const Tetrahedron::Vector c = node(2);
    const Tetrahedron::Vector d = node(3);
    return {Lanes{{a.x, b.x, c.x, d.x}}, Lanes{{a.y, b.y, c.y, d.y}}, Lanes{{a.z, b.z, c.z, d.z}}};
}

LaneCorners cornersOfLanes(const MeshTables& mesh, std::size_t first)
{
    return {cornerOfLanes(mesh, first, 0), cornerOfLanes(mesh, first, 1), cornerOfLanes(mesh, first, 2),
            cornerOfLanes(mesh, first, 3)};
}

/// Has the nodes of four elements fetched that come soon. Elements name nodes in no order, and waiting for each when it
/// is needed costs more than the arithmetic.
void fetchNodes(const MeshTables& mesh, std::size_t first)
{
    constexpr std::size_t ahead = 16;
    const std::size_t begin = std::min(first + ahead, mesh.tetrahedra.size() - Lanes::count);
    for (std::size_t element = begin; element < begin + Lanes::count; ++element) {
        for (const int number : mesh.tetrahedra[element]) {
#ifdef __GNUC__
            __builtin_prefetch(&mesh.position(number));
#else
            Q_UNUSED(number);
#endif
        }
    }
}

/// One function with all its arithmetic in it: lanes that are passed from function to function go through memory.
[[gnu::flatten]] LaneMeasures measuresOfLanes(const LaneCorners& corners)
{
    return Tetrahedron::measures(corners);
}

Tetrahedron::Measures measuresOfLane(const LaneMeasures& m, std::size_t lane)
{
    return {m.volume.v[lane],      m.edgeRatio.v[lane],      m.aspectRatio.v[lane],
            m.aspectGamma.v[lane], m.condition.v[lane],      m.jacobian.v[lane],
            m.radiusRatio.v[lane], m.scaledJacobian.v[lane], m.shape.v[lane]};
}

FeatureMeans featureMeans(const MeshTables& mesh)
{
    const std::size_t count = mesh.tetrahedra.size();
    FeatureSums sums;
    sums.reserve(count);
    std::size_t element = 0;
    for (; element + Lanes::count <= count; element += Lanes::count) {
        fetchNodes(mesh, element);
        const LaneMeasures measures = measuresOfLanes(cornersOfLanes(mesh, element));
        for (std::size_t lane = 0; lane < Lanes::count; ++lane) {
            sums.add(measuresOfLane(measures, lane));
        }
    }
    for (; element < count; ++element) {
        sums.add(Tetrahedron::measures(mesh.corners(element)));
    }
    return sums.means();
}

/// Those of an empty mesh when the mesh does not fit into the memory.
FeatureMeans featureMeansOf(const QString& path)
{
    try {
        return featureMeans(readMeshTables(path));
    } catch (const std::bad_alloc&) {
        return featureMeans(MeshTables());
    }
}

} // namespace

void MeshQualityPredict::getInput(float* input)
{
    const QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/../temp/mesh.msh");
    if (input == nullptr || !QFile::exists(path)) {
        return;
    }
    const FeatureMeans means = featureMeansOf(path);
    std::copy(means.begin(), means.end(), input);
}

} // namespace DataManager
