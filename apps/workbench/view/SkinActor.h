// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/mesh/KernelMesh.h>
#include <workbench/view/SkinData.h>

#include <QSharedPointer>

#include <vtkSmartPointer.h>

#include <functional>
#include <vector>

class vtkActor;
class vtkPolyDataMapper;
class vtkStaticCellLocator;

namespace Workbench {

class MetricScale;

/// Draws the skin of one mesh.
class SkinActor
{
public:
    explicit SkinActor(const QSharedPointer<const KernelMesh>& mesh);
    ~SkinActor();

    vtkActor* actor() const;
    const KernelMesh& mesh() const { return *m_mesh; }
    /// Finds triangles on a line quickly.
    vtkStaticCellLocator* locator() const;

    /// Draws what belongs to these elements only.
    void show(const std::function<bool(int element)>& isShown);
    void colourByFace();
    void colourByMetric(DataManager::MeshQualityReport::Metric metric, const MetricScale& scale);
    void setTransparency(double transparency);
    void showEdges(bool areShown);
    void showNodes(bool areShown);

    /// The boundary face that a drawn triangle is.
    const BoundaryFace& faceOfCell(vtkIdType cell) const;
    vtkIdType cellCount() const { return static_cast<vtkIdType>(m_faces.size()); }

private:
    QSharedPointer<const KernelMesh> m_mesh;
    std::vector<int> m_faces;
    SkinData m_skin;
    vtkSmartPointer<vtkPolyDataMapper> m_mapper;
    vtkSmartPointer<vtkActor> m_actor;
    vtkSmartPointer<vtkStaticCellLocator> m_locator;
};

} // namespace Workbench
