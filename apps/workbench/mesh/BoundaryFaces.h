// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <array>
#include <cstddef>
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

/// The corners of one of the four sides of a tetrahedron, counter-clockwise as seen from outside.
std::array<int, 3> sideOfTetrahedron(const std::array<int, 4>& corners, std::size_t side);

/// How tetrahedra lie to one another.
struct Neighbourhood
{
    /// The faces that no other tetrahedron of the same volume shares, in the order of their smallest nodes: the outer
    /// skin, and where volumes meet one face for each of them.
    std::vector<BoundaryFace> boundary;
    /// For each tetrahedron and each of its sides the tetrahedron behind it, of whichever volume; -1 where there is
    /// none. One that lies on the same side, as an inverted or a doubled one does, is not behind.
    std::vector<std::array<int, 4>> neighbours;
};

/// Takes time and memory in proportion to the elements, of which there may be 2^29.
Neighbourhood neighbourhood(const Tetrahedra& mesh);

} // namespace Workbench
