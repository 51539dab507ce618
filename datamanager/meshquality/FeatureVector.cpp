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

LaneCorners cornersOfLanes(const MeshTables& mesh, std::size_t first)
{
    LaneCorners result;
    for (std::size_t lane = 0; lane < Lanes::count; ++lane) {
        const Tetrahedron::Corners corners = mesh.corners(first + lane);
        for (std::size_t i = 0; i < corners.size(); ++i) {
            result[i].x.v[lane] = corners[i].x;
            result[i].y.v[lane] = corners[i].y;
            result[i].z.v[lane] = corners[i].z;
        }
    }
    return result;
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
        const LaneMeasures measures = Tetrahedron::measures(cornersOfLanes(mesh, element));
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
