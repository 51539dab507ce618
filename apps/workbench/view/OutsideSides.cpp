// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/OutsideSides.h>

namespace Workbench {

std::vector<std::array<int, 3>> outsideSides(const KernelMesh& mesh, const std::vector<int>& places)
{
    std::vector<char> isOneOfThese(mesh.neighbours.size(), 0);
    for (int place : places) {
        isOneOfThese[static_cast<std::size_t>(place)] = 1;
    }
    std::vector<std::array<int, 3>> sides;
    for (int place : places) {
        const std::array<int, 4>& neighbours = mesh.neighbours[static_cast<std::size_t>(place)];
        for (std::size_t side = 0; side < neighbours.size(); ++side) {
            if (neighbours[side] < 0 || isOneOfThese[static_cast<std::size_t>(neighbours[side])] == 0) {
                sides.push_back(sideOfTetrahedron(mesh.report.corners(place), side));
            }
        }
    }
    return sides;
}

} // namespace Workbench
