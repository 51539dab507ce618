// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/SkinData.h>

#include <vtkCellArray.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>

#include <unordered_map>

namespace Workbench {
namespace {

// Gives the nodes of a drawing numbers of their own, as they come.
class PointNumbers
{
public:
    PointNumbers(const KernelMesh& mesh, std::size_t triangleCount)
        : m_mesh(mesh), m_isSmall(triangleCount * 20 < static_cast<std::size_t>(mesh.report.nodeCount()))
    {
        points->SetDataTypeToDouble();
        if (!m_isSmall) {
            m_table.assign(static_cast<std::size_t>(mesh.report.nodeCount()), -1);
        }
    }

    vtkIdType number(int node)
    {
        int& known = m_isSmall ? m_few.try_emplace(node, -1).first->second : m_table[static_cast<std::size_t>(node)];
        if (known < 0) {
            known = static_cast<int>(nodes.size());
            nodes.push_back(node);
            points->InsertNextPoint(m_mesh.report.node(node).data());
        }
        return known;
    }

    vtkSmartPointer<vtkPoints> points = vtkSmartPointer<vtkPoints>::New();
    std::vector<int> nodes;

private:
    const KernelMesh& m_mesh;
    bool m_isSmall;
    std::vector<int> m_table;
    std::unordered_map<int, int> m_few; // so that drawing one element does not cost as much as the mesh
};

} // namespace

SkinData makeSkinData(const KernelMesh& mesh, const std::vector<std::array<int, 3>>& corners)
{
    PointNumbers numbers(mesh, corners.size());
    const auto cells = vtkSmartPointer<vtkCellArray>::New();
    cells->AllocateEstimate(static_cast<vtkIdType>(corners.size()), 3);
    for (const std::array<int, 3>& triangle : corners) {
        const vtkIdType points[3] = {numbers.number(triangle[0]), numbers.number(triangle[1]),
                                     numbers.number(triangle[2])};
        cells->InsertNextCell(3, points);
    }
    SkinData skin;
    skin.triangles = vtkSmartPointer<vtkPolyData>::New();
    skin.triangles->SetPoints(numbers.points);
    skin.triangles->SetPolys(cells);
    skin.nodes = std::move(numbers.nodes);
    return skin;
}

std::vector<int> shownFaces(const KernelMesh& mesh, const std::function<bool(int)>& isShown)
{
    std::vector<int> faces;
    for (std::size_t face = 0; face < mesh.faces.size(); ++face) {
        if (isShown(mesh.faces[face].element)) {
            faces.push_back(static_cast<int>(face));
        }
    }
    return faces;
}

std::vector<std::array<int, 3>> sidesOfElement(const KernelMesh& mesh, int element)
{
    const std::array<int, 4>& c = mesh.report.corners(element);
    return {{c[0], c[2], c[1]}, {c[0], c[1], c[3]}, {c[1], c[2], c[3]}, {c[0], c[3], c[2]}};
}

} // namespace Workbench
