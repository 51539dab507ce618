// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/Picking.h>

#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/view/AxesPicking.h>
#include <workbench/view/SkinActor.h>

#include <vtkActor.h>
#include <vtkCellPicker.h>
#include <vtkHardwareSelector.h>
#include <vtkIdTypeArray.h>
#include <vtkInformation.h>
#include <vtkNew.h>
#include <vtkRenderer.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>
#include <vtkStaticCellLocator.h>

#include <algorithm>
#include <array>

namespace Workbench {
namespace {

// The group of the file that the element belongs to; 0 when it is in none.
int groupOfElement(int kernelID, const KernelMesh& mesh, int element)
{
    MeshManager* meshes = MeshManager::instance();
    for (int groupID : meshes->findGroups(kernelID, QString())) {
        if (meshes->getGroupPhysicalTag(kernelID, groupID) == mesh.report.physicalTag(element) &&
            mesh.report.physicalTag(element) != 0) {
            return groupID;
        }
    }
    return 0;
}

// The item of a model other than nodes that a face belongs to; false when there is none.
bool itemOfFace(int kernelID, const KernelMesh& mesh, const BoundaryFace& face, BaseModule::SelectModel model,
                Picking::Item& item)
{
    const FacePatch& patch = mesh.patches[static_cast<std::size_t>(face.patch)];
    const int componentID = GeometryManager::instance()->componentOfVolume(kernelID, patch.volumeTag);
    switch (model) {
    case BaseModule::GeometryComponent:
        item = {componentID, -1};
        return componentID > 0;
    case BaseModule::GeometryFace:
        item = {componentID, patch.faceID};
        return componentID > 0;
    case BaseModule::MeshElement:
        item = {kernelID, mesh.elementNumbers.number(face.element)};
        return true;
    case BaseModule::MeshGroup:
        item = {kernelID, groupOfElement(kernelID, mesh, face.element)};
        return item.second > 0;
    default:
        return false;
    }
}

std::array<double, 2> displayOf(vtkRenderer& renderer, const std::array<double, 3>& position)
{
    renderer.SetWorldPoint(position[0], position[1], position[2], 1);
    renderer.WorldToDisplay();
    const double* display = renderer.GetDisplayPoint();
    return {display[0], display[1]};
}

// Triangles of the actors that are drawn in the rectangle, by actor.
std::map<vtkProp*, std::vector<vtkIdType>> visibleCells(vtkRenderer& renderer, const int area[4])
{
    vtkNew<vtkHardwareSelector> selector;
    selector->SetRenderer(&renderer);
    selector->SetFieldAssociation(vtkDataObject::FIELD_ASSOCIATION_CELLS);
    selector->SetArea(static_cast<unsigned int>(area[0]), static_cast<unsigned int>(area[1]),
                      static_cast<unsigned int>(area[2]), static_cast<unsigned int>(area[3]));
    const auto selection = vtkSmartPointer<vtkSelection>::Take(selector->Select());
    std::map<vtkProp*, std::vector<vtkIdType>> cells;
    for (unsigned int i = 0; selection != nullptr && i < selection->GetNumberOfNodes(); ++i) {
        vtkSelectionNode* node = selection->GetNode(i);
        auto* prop = vtkProp::SafeDownCast(node->GetProperties()->Get(vtkSelectionNode::PROP()));
        const auto* ids = vtkIdTypeArray::SafeDownCast(node->GetSelectionList());
        for (vtkIdType k = 0; ids != nullptr && k < ids->GetNumberOfValues(); ++k) {
            cells[prop].push_back(ids->GetValue(k));
        }
    }
    return cells;
}

} // namespace

struct Picking::Hit
{
    int kernelID = 0;
    const SkinActor* skin = nullptr;
    vtkIdType cell = -1;
    double position[3] = {0, 0, 0};
};

bool Picking::hitAt(int x, int y, Hit& hit) const
{
    vtkNew<vtkCellPicker> picker;
    picker->SetTolerance(0.0005);
    picker->PickFromListOn();
    for (const auto& [kernelID, skin] : m_skins) {
        if (skin->cellCount() > 0) {
            picker->AddPickList(skin->actor());
            picker->AddLocator(skin->locator());
        }
    }
    if (picker->Pick(x, y, 0, &m_renderer) == 0) {
        return false;
    }
    for (const auto& [kernelID, skin] : m_skins) {
        if (skin->actor() == picker->GetActor()) {
            hit.kernelID = kernelID;
            hit.skin = skin.get();
        }
    }
    hit.cell = picker->GetCellId();
    picker->GetPickPosition(hit.position);
    return hit.skin != nullptr && hit.cell >= 0 && hit.cell < hit.skin->cellCount();
}

bool Picking::itemAt(int x, int y, BaseModule::SelectModel model, Item& item) const
{
    if (model == BaseModule::CoordinateAxes) {
        item = {axesAt(m_renderer, x, y), -1};
        return item.first >= 0;
    }
    Hit hit;
    if (!hitAt(x, y, hit)) {
        return false;
    }
    if (model == BaseModule::MeshNode) {
        item = {hit.kernelID, nearestNode(*hit.skin, hit.cell, x, y) + 1};
        return true;
    }
    return itemOfFace(hit.kernelID, hit.skin->mesh(), hit.skin->faceOfCell(hit.cell), model, item);
}

bool Picking::positionAt(int x, int y, double position[3]) const
{
    Hit hit;
    const bool isHit = hitAt(x, y, hit);
    std::copy(hit.position, hit.position + 3, position);
    return isHit;
}

int Picking::nearestNode(const SkinActor& skin, long long cell, int x, int y) const
{
    const std::array<int, 3>& nodes = skin.faceOfCell(cell).nodes;
    const auto distance = [&](int node) {
        const std::array<double, 2> display = displayOf(m_renderer, skin.mesh().report.node(node));
        return (display[0] - x) * (display[0] - x) + (display[1] - y) * (display[1] - y);
    };
    return *std::min_element(nodes.begin(), nodes.end(), [&](int a, int b) { return distance(a) < distance(b); });
}

bool Picking::isNodeIn(const SkinActor& skin, int node, const int area[4]) const
{
    const std::array<double, 2> display = displayOf(m_renderer, skin.mesh().report.node(node));
    return display[0] >= area[0] && display[0] <= area[2] && display[1] >= area[1] && display[1] <= area[3];
}

QList<Picking::Item> Picking::itemsIn(int x0, int y0, int x1, int y1, BaseModule::SelectModel model) const
{
    const int area[4] = {std::max(std::min(x0, x1), 0), std::max(std::min(y0, y1), 0), std::max(x0, x1),
                         std::max(y0, y1)};
    QList<Item> items;
    if (model == BaseModule::CoordinateAxes) {
        for (int id : axesIn(m_renderer, area)) {
            items.append({id, -1});
        }
        return items;
    }
    for (const auto& [first, second] : skinItemsIn(area, model)) {
        items.append({first, second});
    }
    return items;
}

std::set<std::pair<int, int>> Picking::skinItemsIn(const int area[4], BaseModule::SelectModel model) const
{
    const std::map<vtkProp*, std::vector<vtkIdType>> cells = visibleCells(m_renderer, area);
    std::set<std::pair<int, int>> found;
    for (const auto& [kernelID, skin] : m_skins) {
        const auto own = cells.find(skin->actor());
        for (vtkIdType cell : own == cells.end() ? std::vector<vtkIdType>() : own->second) {
            if (cell < 0 || cell >= skin->cellCount()) {
                continue;
            }
            const BoundaryFace& face = skin->faceOfCell(cell);
            Item item;
            if (model == BaseModule::MeshNode) {
                for (int node : face.nodes) {
                    if (isNodeIn(*skin, node, area)) {
                        found.insert({kernelID, node + 1});
                    }
                }
            } else if (itemOfFace(kernelID, skin->mesh(), face, model, item)) {
                found.insert({item.first, item.second});
            }
        }
    }
    return found;
}

} // namespace Workbench
