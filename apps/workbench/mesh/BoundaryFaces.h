// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <array>
#include <functional>
#include <vector>

namespace Workbench {

/// A triangle that bounds a volume.
struct BoundaryFace
{
    /// Places of the nodes, counter-clockwise as seen from outside.
    std::array<int, 3> nodes;
    /// Place of the tetrahedron that it belongs to.
    int element;
    /// Place among the patches of the mesh.
    int patch;
};

/// Tetrahedra of which the bounding faces are sought.
struct Tetrahedra
{
    int nodeCount = 0;
    int elementCount = 0;
    /// Places of the element's corners, each below nodeCount.
    std::function<const std::array<int, 4>&(int element)> corners;
    /// What the element's volume is known by.
    std::function<int(int element)> volume;
};

/// The faces that no other tetrahedron of the same volume shares, in the order of their smallest nodes: the outer skin,
/// and where volumes meet one face for each of them. Takes time and memory in proportion to the elements.
std::vector<BoundaryFace> boundaryFaces(const Tetrahedra& mesh);

} // namespace Workbench
