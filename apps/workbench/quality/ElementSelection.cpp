// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/quality/ElementSelection.h>

#include <workbench/mesh/MeshManager.h>
#include <workbench/selection/SelectionUndo.h>

#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>

using DataManager::SelectedDataManager;

namespace Workbench {

void selectElements(int kernelID, const std::vector<int>& places, bool added)
{
    const SelectionUndo::Burst oneStep;
    const QSharedPointer<const KernelMesh> mesh = MeshManager::instance()->mesh(kernelID);
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    if (selection->getSelectModel() != BaseModule::MeshElement) {
        selection->setSelectModelInMainWindow(BaseModule::MeshElement);
    }
    if (!mesh || selection->getSelectModel() != BaseModule::MeshElement) {
        return;
    }
    if (!added && selection->getDataCount() > 0) {
        selection->clearAllSelectedTarget();
    }
    QList<QPair<int, int>> elements;
    elements.reserve(static_cast<int>(places.size()));
    for (int place : places) {
        elements.append({kernelID, mesh->elementNumbers.number(place)});
    }
    selection->addSelectedTargetList(BaseModule::MeshElement, elements);
}

} // namespace Workbench
