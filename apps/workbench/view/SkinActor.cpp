// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/SkinActor.h>

#include <workbench/view/FaceColours.h>
#include <workbench/view/MetricScale.h>

#include <vtkActor.h>
#include <vtkCellData.h>
#include <vtkDoubleArray.h>
#include <vtkLookupTable.h>
#include <vtkNew.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>
#include <vtkProperty.h>
#include <vtkScalarBarActor.h>
#include <vtkStaticCellLocator.h>
#include <vtkUnsignedCharArray.h>

namespace Workbench {

SkinActor::SkinActor(const QSharedPointer<const KernelMesh>& mesh)
    : m_mesh(mesh), m_mapper(vtkSmartPointer<vtkPolyDataMapper>::New()), m_actor(vtkSmartPointer<vtkActor>::New()),
      m_locator(vtkSmartPointer<vtkStaticCellLocator>::New())
{
    m_actor->SetMapper(m_mapper);
    m_mapper->SetScalarModeToUseCellData();
    m_mapper->SetInterpolateScalarsBeforeMapping(false);
    // Surfaces stand back a little, so that edges and highlights on them are seen whole.
    m_mapper->SetResolveCoincidentTopologyToPolygonOffset();
    m_mapper->SetRelativeCoincidentTopologyPolygonOffsetParameters(2, 2);
    vtkProperty* property = m_actor->GetProperty();
    property->SetInterpolationToFlat();
    property->SetEdgeColor(0.28, 0.33, 0.38);
    property->SetVertexColor(0.15, 0.25, 0.45);
    property->SetPointSize(4);
    show([](int) { return true; });
}

SkinActor::~SkinActor() = default;

vtkActor* SkinActor::actor() const
{
    return m_actor;
}

vtkStaticCellLocator* SkinActor::locator() const
{
    return m_locator;
}

void SkinActor::show(const std::function<bool(int)>& isShown)
{
    m_faces = shownFaces(*m_mesh, isShown);
    std::vector<std::array<int, 3>> corners;
    corners.reserve(m_faces.size());
    for (int face : m_faces) {
        corners.push_back(m_mesh->faces[static_cast<std::size_t>(face)].nodes);
    }
    m_skin = makeSkinData(*m_mesh, corners);
    m_mapper->SetInputData(m_skin.triangles);
    m_locator->SetDataSet(m_skin.triangles);
    m_locator->Modified();
    m_actor->SetVisibility(!m_faces.empty());
    m_actor->SetPickable(!m_faces.empty());
}

void SkinActor::colourByFace()
{
    vtkNew<vtkUnsignedCharArray> colours;
    colours->SetNumberOfComponents(3);
    colours->SetNumberOfTuples(cellCount());
    for (vtkIdType cell = 0; cell < cellCount(); ++cell) {
        colours->SetTypedTuple(cell, faceColour(faceOfCell(cell).patch).data());
    }
    m_skin.triangles->GetCellData()->SetScalars(colours);
    m_mapper->SetColorModeToDirectScalars();
    m_actor->GetProperty()->SetAmbient(0.18);
    m_actor->GetProperty()->SetDiffuse(0.85);
}

void SkinActor::colourByMetric(DataManager::MeshQualityReport::Metric metric, const MetricScale& scale)
{
    const std::vector<double>& values = m_mesh->report.values(metric);
    vtkNew<vtkDoubleArray> scalars;
    scalars->SetNumberOfTuples(cellCount());
    for (vtkIdType cell = 0; cell < cellCount(); ++cell) {
        scalars->SetValue(cell, values[static_cast<std::size_t>(faceOfCell(cell).element)]);
    }
    m_skin.triangles->GetCellData()->SetScalars(scalars);
    m_mapper->SetColorModeToMapScalars();
    m_mapper->SetLookupTable(scale.table());
    m_mapper->UseLookupTableScalarRangeOn();
    // Less shade, so that colours are those of the legend.
    m_actor->GetProperty()->SetAmbient(0.55);
    m_actor->GetProperty()->SetDiffuse(0.5);
}

void SkinActor::setTransparency(double transparency)
{
    m_actor->GetProperty()->SetOpacity(1 - transparency);
}

void SkinActor::showEdges(bool areShown)
{
    m_actor->GetProperty()->SetEdgeVisibility(areShown);
}

void SkinActor::showNodes(bool areShown)
{
    m_actor->GetProperty()->SetVertexVisibility(areShown);
}

const BoundaryFace& SkinActor::faceOfCell(vtkIdType cell) const
{
    return m_mesh->faces[static_cast<std::size_t>(m_faces[static_cast<std::size_t>(cell)])];
}

} // namespace Workbench
