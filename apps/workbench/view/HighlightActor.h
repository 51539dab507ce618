// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/mesh/KernelMesh.h>

#include <vtkSmartPointer.h>

class vtkActor;
class vtkPolyDataMapper;

namespace Workbench {

class HighlightState;

/// Draws the highlighted items of one mesh over its skin.
class HighlightActor
{
public:
    HighlightActor();
    ~HighlightActor();

    /// On the skin: volumes, faces and groups.
    vtkActor* surfaces() const;
    /// To be drawn before everything else, because they may lie inside: elements.
    vtkActor* elements() const;
    /// Likewise: nodes.
    vtkActor* nodes() const;

    /// How many triangles and points are drawn.
    long long cellCount() const;

    void update(int kernelID, const KernelMesh& mesh, const HighlightState& state);

private:
    void setTriangles(vtkActor& actor, const KernelMesh& mesh, const std::vector<std::array<int, 3>>& corners);
    void setPoints(const KernelMesh& mesh, const std::vector<int>& places);

    vtkSmartPointer<vtkActor> m_surfaces;
    vtkSmartPointer<vtkActor> m_elements;
    vtkSmartPointer<vtkActor> m_nodes;
};

} // namespace Workbench
