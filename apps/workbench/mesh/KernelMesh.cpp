// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/KernelMesh.h>

#include <workbench/mesh/SurfaceReader.h>

#include <algorithm>
#include <limits>
#include <utility>

using DataManager::MeshQualityReport;

namespace Workbench {
namespace {

// How much of the work is done after each step, as measured on two million elements.
constexpr double doneMeasuring = 0.6;
constexpr double doneGroups = 0.75;

std::array<double, 6> boxOf(const MeshQualityReport& report)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    std::array<double, 6> box = {infinity, -infinity, infinity, -infinity, infinity, -infinity};
    for (qint64 place = 0; place < report.nodeCount(); ++place) {
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const double value = report.node(place)[axis];
            box[2 * axis] = std::min(box[2 * axis], value);
            box[2 * axis + 1] = std::max(box[2 * axis + 1], value);
        }
    }
    return box;
}

std::vector<int> tagsOf(const MeshQualityReport& report)
{
    std::vector<int> tags(static_cast<std::size_t>(report.elementCount()));
    for (int element = 0; element < report.elementCount(); ++element) {
        tags[static_cast<std::size_t>(element)] = report.tag(element);
    }
    return tags;
}

void makeSkin(KernelMesh& mesh, const SurfaceGroups& groups)
{
    const MeshQualityReport& report = mesh.report;
    const auto volume = [&report](int element) { return report.physicalTag(element); };
    Tetrahedra tetrahedra;
    tetrahedra.nodeCount = static_cast<int>(report.nodeCount());
    tetrahedra.elementCount = report.elementCount();
    tetrahedra.corners = [&report](int element) -> const std::array<int, 4>& { return report.corners(element); };
    tetrahedra.volume = volume;
    Neighbourhood found = neighbourhood(tetrahedra);
    mesh.faces = std::move(found.boundary);
    mesh.neighbours = std::move(found.neighbours);
    PatchInput input;
    input.groups = &groups;
    input.volume = volume;
    input.position = [&report](int node) -> const std::array<double, 3>& { return report.node(node); };
    mesh.patches = dividePatches(mesh.faces, input);
}

KernelReading failure(const MeshQualityReport& report)
{
    const bool isCancelled = report.problem() == MeshQualityReport::Problem::Cancelled;
    return {{}, isCancelled, isCancelled ? QString() : report.problemText()};
}

} // namespace

KernelReading readKernelMesh(const QString& path, const KernelProgress& progress)
{
    const auto part = [&progress](double from, double to) {
        return [&progress, from, to](qint64 read, qint64 size) {
            return progress(from + (to - from) * static_cast<double>(read) /
                                       static_cast<double>(std::max(size, Q_INT64_C(1))));
        };
    };
    auto mesh = QSharedPointer<KernelMesh>::create();
    if (!mesh->report.measure(path, part(0, doneMeasuring))) {
        return failure(mesh->report);
    }
    SurfaceGroups groups;
    if (!readSurfaceGroups(path, groups, part(doneMeasuring, doneGroups)) || !progress(doneGroups)) {
        return {{}, true, {}};
    }
    mesh->elementNumbers = ElementNumbers(tagsOf(mesh->report));
    mesh->box = boxOf(mesh->report);
    for (int element = 0; element < mesh->report.elementCount(); ++element) {
        ++mesh->elementCounts[mesh->report.physicalTag(element)];
    }
    makeSkin(*mesh, groups);
    return progress(1) ? KernelReading{mesh, false, {}} : KernelReading{{}, true, {}};
}

} // namespace Workbench
