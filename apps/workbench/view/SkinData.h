// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/mesh/KernelMesh.h>

#include <vtkSmartPointer.h>

#include <functional>
#include <vector>

class vtkPoints;
class vtkPolyData;

namespace Workbench {

/// Triangles for drawing, of nodes of a mesh; their points are only those that they use.
struct SkinData
{
    vtkSmartPointer<vtkPolyData> triangles;
    /// For each point its node's place.
    std::vector<int> nodes;
};

/// The triangles with these corners, given as places of nodes.
SkinData makeSkinData(const KernelMesh& mesh, const std::vector<std::array<int, 3>>& corners);

/// The positions of nodes.
vtkSmartPointer<vtkPoints> pointsOf(const KernelMesh& mesh, const std::vector<int>& nodes);

/// Places of the boundary faces of the mesh whose element is shown.
std::vector<int> shownFaces(const KernelMesh& mesh, const std::function<bool(int element)>& isShown);

/// The four sides of an element.
std::vector<std::array<int, 3>> sidesOfElement(const KernelMesh& mesh, int element);

} // namespace Workbench
