// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/HighlightActor.h>

#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/view/FaceColours.h>
#include <workbench/view/HighlightState.h>
#include <workbench/view/OutsideSides.h>
#include <workbench/view/SkinData.h>

#include <basemodule/SelectModel.h>

#include <vtkActor.h>
#include <vtkCellArray.h>
#include <vtkNew.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>
#include <vtkProperty.h>

#include <algorithm>

namespace Workbench {
namespace {

using Corners = std::vector<std::array<int, 3>>;

// Beyond, edges are nearer to one another than pixels, and drawing them costs many times the triangles.
constexpr std::size_t mostWithEdges = 60000;

vtkSmartPointer<vtkActor> makeActor()
{
    const auto actor = vtkSmartPointer<vtkActor>::New();
    const auto mapper = vtkSmartPointer<vtkPolyDataMapper>::New();
    mapper->ScalarVisibilityOff();
    mapper->SetResolveCoincidentTopologyToPolygonOffset();
    actor->SetMapper(mapper);
    actor->PickableOff();
    actor->SetVisibility(false);
    vtkProperty* property = actor->GetProperty();
    property->SetColor(highlightColour[0] / 255.0, highlightColour[1] / 255.0, highlightColour[2] / 255.0);
    property->SetAmbient(0.35);
    property->SetDiffuse(0.7);
    property->SetInterpolationToFlat();
    property->SetEdgeVisibility(true);
    property->SetEdgeColor(0.45, 0.22, 0.0);
    return actor;
}

// Elements of the highlighted groups, marked where they are shown.
std::vector<char> groupElements(int kernelID, const KernelMesh& mesh, const HighlightState& state)
{
    const MeshManager* meshes = MeshManager::instance();
    const std::vector<char> shown = meshes->shownElements(kernelID);
    std::vector<char> marked(static_cast<std::size_t>(mesh.report.elementCount()), 0);
    for (int groupID : state.items(BaseModule::MeshGroup).secondsOf(kernelID)) {
        for (int place : meshes->getGroupElements(kernelID, groupID)) {
            marked[static_cast<std::size_t>(place)] = shown[static_cast<std::size_t>(place)];
        }
    }
    return marked;
}

// What is known of the patches of a mesh, by their places.
struct PatchMarks
{
    std::vector<char> isShown;
    /// As faces or with their volume.
    std::vector<char> isHighlighted;
};

PatchMarks markedPatches(int kernelID, const KernelMesh& mesh, const HighlightState& state)
{
    const GeometryManager* geometry = GeometryManager::instance();
    const ItemSet& volumes = state.items(BaseModule::GeometryComponent);
    const ItemSet& faces = state.items(BaseModule::GeometryFace);
    PatchMarks marks;
    for (const FacePatch& patch : mesh.patches) {
        const int componentID = geometry->componentOfVolume(kernelID, patch.volumeTag);
        const bool isShown = geometry->isComponentShown(componentID);
        marks.isShown.push_back(isShown);
        marks.isHighlighted.push_back(volumes.contains({componentID, -1}) ||
                                      faces.contains({componentID, patch.faceID}));
    }
    return marks;
}

Corners surfaceCorners(int kernelID, const KernelMesh& mesh, const HighlightState& state)
{
    const bool areGroups = !state.items(BaseModule::MeshGroup).isEmpty();
    const std::vector<char> elements = areGroups ? groupElements(kernelID, mesh, state) : std::vector<char>();
    const PatchMarks patches = markedPatches(kernelID, mesh, state);
    Corners corners;
    for (const BoundaryFace& face : mesh.faces) {
        const auto patch = static_cast<std::size_t>(face.patch);
        const bool isInGroup = areGroups && elements[static_cast<std::size_t>(face.element)] != 0;
        if (patches.isShown[patch] != 0 && (patches.isHighlighted[patch] != 0 || isInGroup)) {
            corners.push_back(face.nodes);
        }
    }
    return corners;
}

Corners elementCorners(int kernelID, const KernelMesh& mesh, const HighlightState& state)
{
    std::vector<int> places;
    for (int element : state.items(BaseModule::MeshElement).secondsOf(kernelID)) {
        const int place = mesh.elementNumbers.place(element);
        if (place >= 0) {
            places.push_back(place);
        }
    }
    return places.empty() ? Corners() : outsideSides(mesh, places);
}

std::vector<int> nodePlaces(int kernelID, const KernelMesh& mesh, const HighlightState& state)
{
    std::vector<int> places;
    for (int node : state.items(BaseModule::MeshNode).secondsOf(kernelID)) {
        if (node >= 1 && node <= mesh.report.nodeCount()) {
            places.push_back(node - 1);
        }
    }
    return places;
}

} // namespace

HighlightActor::HighlightActor() : m_surfaces(makeActor()), m_elements(makeActor()), m_nodes(makeActor())
{
    // That the skin stands back does not do where it is seen askew.
    m_surfaces->GetMapper()->SetRelativeCoincidentTopologyPolygonOffsetParameters(-2, -2);
    m_elements->GetProperty()->BackfaceCullingOn(); // they are closed
    m_nodes->GetProperty()->SetPointSize(9);
    m_nodes->GetProperty()->SetEdgeVisibility(false);
    m_nodes->GetProperty()->LightingOff();
    m_nodes->GetProperty()->RenderPointsAsSpheresOn();
}

HighlightActor::~HighlightActor() = default;

vtkActor* HighlightActor::surfaces() const
{
    return m_surfaces;
}

vtkActor* HighlightActor::elements() const
{
    return m_elements;
}

vtkActor* HighlightActor::nodes() const
{
    return m_nodes;
}

long long HighlightActor::cellCount() const
{
    long long count = 0;
    for (vtkActor* actor : {m_surfaces.Get(), m_elements.Get(), m_nodes.Get()}) {
        if (actor->GetVisibility() != 0) {
            count += vtkPolyDataMapper::SafeDownCast(actor->GetMapper())->GetInput()->GetNumberOfCells();
        }
    }
    return count;
}

void HighlightActor::update(int kernelID, const KernelMesh& mesh, const HighlightState& state)
{
    setTriangles(*m_surfaces, mesh, surfaceCorners(kernelID, mesh, state));
    setTriangles(*m_elements, mesh, elementCorners(kernelID, mesh, state));
    setPoints(mesh, nodePlaces(kernelID, mesh, state));
}

void HighlightActor::setTriangles(vtkActor& actor, const KernelMesh& mesh, const Corners& corners)
{
    actor.SetVisibility(!corners.empty());
    actor.GetProperty()->SetEdgeVisibility(corners.size() <= mostWithEdges);
    vtkPolyDataMapper::SafeDownCast(actor.GetMapper())->SetInputData(makeSkinData(mesh, corners).triangles);
}

void HighlightActor::setPoints(const KernelMesh& mesh, const std::vector<int>& places)
{
    vtkNew<vtkCellArray> vertices;
    vertices->AllocateEstimate(static_cast<vtkIdType>(places.size()), 1);
    for (vtkIdType point = 0; point < static_cast<vtkIdType>(places.size()); ++point) {
        vertices->InsertNextCell(1, &point);
    }
    vtkNew<vtkPolyData> data;
    data->SetPoints(pointsOf(mesh, places));
    data->SetVerts(vertices);
    m_nodes->SetVisibility(!places.empty());
    vtkPolyDataMapper::SafeDownCast(m_nodes->GetMapper())->SetInputData(data);
}

} // namespace Workbench
