// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/Scene.h>

#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MeshDisplay.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/view/CameraMotion.h>
#include <workbench/view/FaceColours.h>
#include <workbench/view/HighlightActor.h>
#include <workbench/view/HighlightState.h>
#include <workbench/view/SkinActor.h>

#include <basemodule/SelectModel.h>
#include <basewidget/FixedPixelSizeAxesActor.h>
#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <vtkActor.h>
#include <vtkAxesActor.h>
#include <vtkCamera.h>
#include <vtkLightKit.h>
#include <vtkLookupTable.h>
#include <vtkNew.h>
#include <vtkOrientationMarkerWidget.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>
#include <vtkProperty.h>
#include <vtkRenderWindow.h>
#include <vtkRenderWindowInteractor.h>
#include <vtkRenderer.h>
#include <vtkScalarBarActor.h>
#include <vtkStaticCellLocator.h>

#include <algorithm>
#include <cmath>

namespace Workbench {

Scene::Scene()
    : m_renderer(vtkSmartPointer<vtkRenderer>::New()), m_front(vtkSmartPointer<vtkRenderer>::New()),
      m_axes(vtkSmartPointer<vtkRenderer>::New()), m_focus(vtkSmartPointer<vtkActor>::New())
{
    m_renderer->SetBackground(0.86, 0.89, 0.92);
    m_renderer->SetBackground2(0.98, 0.98, 0.99);
    m_renderer->GradientBackgroundOn();
    m_renderer->GetActiveCamera()->ParallelProjectionOn();
    m_renderer->AddActor(m_scale.legend());
    m_renderer->AutomaticLightCreationOff();
    vtkNew<vtkLightKit> lights;
    lights->SetKeyLightIntensity(0.85);
    lights->SetKeyToFillRatio(2);
    lights->SetKeyToHeadRatio(2.5);
    lights->AddLightsToRenderer(m_renderer);
    int layer = 1;
    for (vtkRenderer* renderer : {m_front.Get(), m_axes.Get()}) {
        renderer->SetLayer(layer++);
        renderer->InteractiveOff();
        renderer->SetActiveCamera(m_renderer->GetActiveCamera());
    }
    vtkNew<vtkPolyDataMapper> mapper;
    mapper->ScalarVisibilityOff();
    m_focus->SetMapper(mapper);
    m_focus->GetProperty()->SetColor(focusColour[0] / 255.0, focusColour[1] / 255.0, focusColour[2] / 255.0);
    m_focus->GetProperty()->SetEdgeVisibility(true);
    m_focus->GetProperty()->SetEdgeColor(0.3, 0, 0);
    m_focus->SetVisibility(false);
    m_front->AddActor(m_focus);
    m_measuringLine.addTo(*m_front);
}

Scene::~Scene() = default;

vtkRenderer& Scene::renderer()
{
    return *m_renderer;
}

void Scene::addTo(vtkRenderWindow& window)
{
    window.SetNumberOfLayers(3);
    for (vtkRenderer* renderer : {m_renderer.Get(), m_front.Get(), m_axes.Get()}) {
        window.AddRenderer(renderer);
    }
}

void Scene::addMarker(vtkRenderWindowInteractor* interactor)
{
    vtkNew<vtkAxesActor> axes;
    axes->SetShaftTypeToCylinder();
    m_marker = vtkSmartPointer<vtkOrientationMarkerWidget>::New();
    m_marker->SetOrientationMarker(axes);
    m_marker->SetInteractor(interactor);
    m_marker->SetViewport(0, 0, 0.13, 0.2);
    m_marker->EnabledOn();
    m_marker->InteractiveOff();
}

void Scene::setKernels(const QList<int>& kernelIDList)
{
    const auto isGone = [this, &kernelIDList](int kernelID) {
        const auto skin = m_skins.find(kernelID);
        return !kernelIDList.contains(kernelID) ||
               &skin->second->mesh() != MeshManager::instance()->mesh(kernelID).data();
    };
    std::vector<int> gone;
    for (const auto& [kernelID, skin] : m_skins) {
        if (isGone(kernelID)) {
            gone.push_back(kernelID);
        }
    }
    std::for_each(gone.begin(), gone.end(), [this](int kernelID) { removeKernel(kernelID); });
    for (int kernelID : kernelIDList) {
        if (m_skins.count(kernelID) == 0) {
            addKernel(kernelID);
        }
    }
}

void Scene::addKernel(int kernelID)
{
    auto skin = std::make_unique<SkinActor>(MeshManager::instance()->mesh(kernelID));
    auto highlight = std::make_unique<HighlightActor>();
    m_renderer->AddActor(skin->actor());
    m_renderer->AddActor(highlight->surfaces());
    m_front->AddActor(highlight->elements());
    m_front->AddActor(highlight->nodes());
    m_skins[kernelID] = std::move(skin);
    m_highlights[kernelID] = std::move(highlight);
}

void Scene::removeKernel(int kernelID)
{
    dropFocus();
    m_measuringLine.hide();
    m_renderer->RemoveActor(m_skins[kernelID]->actor());
    m_renderer->RemoveActor(m_highlights[kernelID]->surfaces());
    m_front->RemoveActor(m_highlights[kernelID]->elements());
    m_front->RemoveActor(m_highlights[kernelID]->nodes());
    m_skins.erase(kernelID);
    m_highlights.erase(kernelID);
}

void Scene::updateVisibility()
{
    const GeometryManager* geometry = GeometryManager::instance();
    for (const auto& [kernelID, skin] : m_skins) {
        const std::vector<char> shown = MeshManager::instance()->shownElements(kernelID);
        const DataManager::MeshQualityReport& report = skin->mesh().report;
        std::map<int, bool> isVolumeShown;
        for (const FacePatch& patch : skin->mesh().patches) {
            const int componentID = geometry->componentOfVolume(kernelID, patch.volumeTag);
            isVolumeShown[patch.volumeTag] = geometry->isComponentShown(componentID);
        }
        skin->show([&](int element) {
            return shown[static_cast<std::size_t>(element)] != 0 && isVolumeShown[report.physicalTag(element)];
        });
        colour(kernelID);
    }
}

void Scene::colour(int kernelID)
{
    const MeshDisplay* display = MeshDisplay::instance();
    if (display->isColouredByMetric()) {
        m_scale.setMetric(m_skins[kernelID]->mesh().report, display->metric());
        m_skins[kernelID]->colourByMetric(display->metric(), m_scale);
    } else {
        m_skins[kernelID]->colourByFace();
    }
}

void Scene::updateColours()
{
    for (const auto& [kernelID, skin] : m_skins) {
        colour(kernelID);
    }
    m_scale.showLegend(MeshDisplay::instance()->isColouredByMetric() && !m_skins.empty());
}

void Scene::updateLook()
{
    const MeshDisplay* display = MeshDisplay::instance();
    const bool areNodes = DataManager::SelectedDataManager::getInstance()->getSelectModel() == BaseModule::MeshNode;
    for (const auto& [kernelID, skin] : m_skins) {
        skin->setTransparency(display->transparency());
        skin->showEdges(display->areEdgesShown());
        skin->showNodes(areNodes);
    }
}

void Scene::updateHighlight(const HighlightState& state)
{
    for (const auto& [kernelID, highlight] : m_highlights) {
        highlight->update(kernelID, m_skins[kernelID]->mesh(), state);
    }
}

long long Scene::cellCount() const
{
    long long count = 0;
    for (const auto& [kernelID, skin] : m_skins) {
        count += skin->cellCount() + m_highlights.at(kernelID)->cellCount();
    }
    return count;
}

void Scene::updateCoordinateAxes()
{
    for (const vtkSmartPointer<vtkProp>& axes : m_shownAxes) {
        m_axes->RemoveViewProp(axes);
    }
    m_shownAxes.clear();
    const DataManager::RelativeCoordinateSystemDate* systems = DataManager::RelativeCoordinateSystemDate::getInstance();
    for (int i = 0; i < systems->getRelativeCoordinateSystemDateCount(); ++i) {
        if (BaseWidget::FixedPixelSizeAxesActor* actor = systems->getCoordinateSystemByIndex(i)->getActor()) {
            m_axes->AddViewProp(actor);
            m_shownAxes.emplace_back(actor);
        }
    }
}

bool Scene::focusElement(int kernelID, int elementID)
{
    const auto skin = m_skins.find(kernelID);
    const int place = skin == m_skins.end() ? -1 : skin->second->mesh().elementNumbers.place(elementID);
    if (place < 0) {
        return false;
    }
    const KernelMesh& mesh = skin->second->mesh();
    const SkinData data = makeSkinData(mesh, sidesOfElement(mesh, place));
    vtkPolyDataMapper::SafeDownCast(m_focus->GetMapper())->SetInputData(data.triangles);
    m_focus->SetVisibility(true);
    double box[6];
    data.triangles->GetBounds(box);
    const double centre[3] = {(box[0] + box[1]) / 2, (box[2] + box[3]) / 2, (box[4] + box[5]) / 2};
    const double size = std::hypot(box[1] - box[0], box[3] - box[2], box[5] - box[4]);
    CameraMotion(*m_renderer).lookAt(centre, size > 0 ? 2 * size : 1);
    return true;
}

void Scene::dropFocus()
{
    m_focus->SetVisibility(false);
}

} // namespace Workbench
