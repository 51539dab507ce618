// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/SkinData.h>

#include <vtkCellArray.h>
#include <vtkNew.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>

#include <algorithm>
#include <unordered_map>

namespace Workbench {
namespace {

// Gives the nodes of a drawing numbers of their own, as they come.
class PointNumbers
{
public:
    PointNumbers(const KernelMesh& mesh, std::size_t triangleCount)
        : m_isSmall(triangleCount * 20 < static_cast<std::size_t>(mesh.report.nodeCount()))
    {
        if (!m_isSmall) {
            m_table.assign(static_cast<std::size_t>(mesh.report.nodeCount()), -1);
        }
    }

    int number(int node)
    {
        int& known = m_isSmall ? m_few.try_emplace(node, -1).first->second : m_table[static_cast<std::size_t>(node)];
        if (known < 0) {
            known = static_cast<int>(nodes.size());
            nodes.push_back(node);
        }
        return known;
    }

    std::vector<int> nodes;

private:
    bool m_isSmall;
    std::vector<int> m_table;
    std::unordered_map<int, int> m_few; // so that drawing one element does not cost as much as the mesh
};

using Array = vtkCellArray::ArrayType32;

vtkSmartPointer<vtkCellArray> trianglesOf(const std::vector<std::array<int, 3>>& corners, PointNumbers& numbers)
{
    const auto count = static_cast<vtkIdType>(corners.size());
    vtkNew<Array> points;
    points->SetNumberOfValues(3 * count);
    int* next = points->GetPointer(0);
    for (const std::array<int, 3>& triangle : corners) {
        next = std::transform(triangle.begin(), triangle.end(), next, [&](int node) { return numbers.number(node); });
    }
    vtkNew<Array> starts;
    starts->SetNumberOfValues(count + 1);
    for (vtkIdType i = 0; i <= count; ++i) {
        starts->SetValue(i, static_cast<int>(3 * i));
    }
    auto cells = vtkSmartPointer<vtkCellArray>::New();
    cells->SetData(starts, points);
    return cells;
}

} // namespace

vtkSmartPointer<vtkPoints> pointsOf(const KernelMesh& mesh, const std::vector<int>& nodes)
{
    auto points = vtkSmartPointer<vtkPoints>::New();
    points->SetDataTypeToDouble();
    points->SetNumberOfPoints(static_cast<vtkIdType>(nodes.size()));
    double* next = static_cast<double*>(points->GetVoidPointer(0));
    for (int node : nodes) {
        const std::array<double, 3>& position = mesh.report.node(node);
        next = std::copy(position.begin(), position.end(), next);
    }
    return points;
}

SkinData makeSkinData(const KernelMesh& mesh, const std::vector<std::array<int, 3>>& corners)
{
    PointNumbers numbers(mesh, corners.size());
    SkinData skin;
    skin.triangles = vtkSmartPointer<vtkPolyData>::New();
    skin.triangles->SetPolys(trianglesOf(corners, numbers));
    skin.triangles->SetPoints(pointsOf(mesh, numbers.nodes));
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
    std::vector<std::array<int, 3>> sides;
    for (std::size_t side = 0; side < 4; ++side) {
        sides.push_back(sideOfTetrahedron(mesh.report.corners(element), side));
    }
    return sides;
}

} // namespace Workbench
