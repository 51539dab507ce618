// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/MeshManager.h>

#include <workbench/mesh/MeshLoader.h>

#include <basemodule/IBaseSignal.h>
#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <algorithm>

using BaseModule::IBaseSignal;
using DataManager::SelectedDataManager;

namespace Workbench {

MeshManager* MeshManager::instance()
{
    static auto* const manager = new MeshManager;
    return manager;
}

MeshManager::MeshManager() : m_loader(new MeshLoader(this))
{
    connect(m_loader, &MeshLoader::signal_progress, this, &MeshManager::signal_loadProgress);
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_checkHighLight, this, &MeshManager::checkHighLight);
}

int MeshManager::getSetCount()
{
    return m_sets.count();
}

QList<int> MeshManager::findSets(const QString& name)
{
    return m_sets.find(name);
}

QString MeshManager::getSetName(int setID)
{
    return m_sets.set(setID).name;
}

int MeshManager::addSet(const QString& name, const QList<QPair<int, int>>& memberList)
{
    if (m_sets.isTaken(name, 0)) {
        return 0;
    }
    const int setID = generateSetID();
    m_sets.add(setID, {name, memberList});
    return setID;
}

bool MeshManager::renameSet(int setID, const QString& name)
{
    return m_sets.rename(setID, name);
}

int MeshManager::removeSets(const QList<int>& setIDList)
{
    return m_sets.remove(setIDList).size();
}

void MeshManager::showSets(const QList<int>& setIDList, bool isShow)
{
    QList<int> kernelIDList;
    for (int setID : setIDList) {
        for (const QPair<int, int>& member : m_sets.set(setID).memberList) {
            kernelIDList.append(member.first);
        }
    }
    showKernels(kernelIDList, isShow);
}

int MeshManager::getKernelCount()
{
    return m_kernels.size();
}

QList<int> MeshManager::findKernels(const QString& name)
{
    QList<int> found;
    for (auto it = m_kernels.cbegin(); it != m_kernels.cend(); ++it) {
        if (name.isEmpty() || it->name == name) {
            found.append(it.key());
        }
    }
    return found;
}

const MeshManager::Kernel* MeshManager::kernel(int kernelID) const
{
    const auto found = m_kernels.find(kernelID);
    return found == m_kernels.end() ? nullptr : &*found;
}

QSharedPointer<const KernelMesh> MeshManager::mesh(int kernelID) const
{
    return m_kernels.value(kernelID).mesh;
}

QString MeshManager::getKernelName(int kernelID)
{
    return m_kernels.value(kernelID).name;
}

QString MeshManager::getOrigin(int kernelID) const
{
    return m_kernels.value(kernelID).origin;
}

bool MeshManager::isNameTaken(const QString& name, int kernelID) const
{
    const auto hasName = [&](int other) { return other != kernelID && m_kernels[other].name == name; };
    const QList<int> others = m_kernels.keys();
    return name.isEmpty() || std::any_of(others.begin(), others.end(), hasName);
}

bool MeshManager::renameKernel(int kernelID, const QString& name)
{
    if (!m_kernels.contains(kernelID) || isNameTaken(name, kernelID)) {
        return false;
    }
    m_kernels[kernelID].name = name;
    Q_EMIT signal_kernalDataListChanged({kernelID});
    return true;
}

void MeshManager::showKernels(const QList<int>& kernelIDList, bool isShow)
{
    for (int kernelID : kernelIDList) {
        if (m_kernels.contains(kernelID)) {
            m_kernels[kernelID].isShown = isShow;
        }
    }
    if (!isShow) {
        removeFromSelection(kernelIDList);
    }
    Q_EMIT signal_visibilityChanged();
}

void MeshManager::removeFromSelection(const QList<int>& kernelIDList)
{
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    for (const auto model : {BaseModule::MeshNode, BaseModule::MeshElement, BaseModule::MeshGroup}) {
        selection->removeSelectedTargets(model, kernelIDList);
    }
}

bool MeshManager::isKernelShown(int kernelID) const
{
    return m_kernels.value(kernelID).isShown;
}

int MeshManager::getNodeCount(int kernelID)
{
    const Kernel* found = kernel(kernelID);
    return found == nullptr ? 0 : static_cast<int>(found->mesh->report.nodeCount());
}

QVector<double> MeshManager::getNodePosition(int kernelID, int nodeID)
{
    if (nodeID < 1 || nodeID > getNodeCount(kernelID)) {
        return {};
    }
    const std::array<double, 3>& position = m_kernels[kernelID].mesh->report.node(nodeID - 1);
    return {position[0], position[1], position[2]};
}

int MeshManager::getElementCount(int kernelID)
{
    const Kernel* found = kernel(kernelID);
    return found == nullptr ? 0 : found->mesh->report.elementCount();
}

QVector<int> MeshManager::getElementNodes(int kernelID, int elementID)
{
    const Kernel* found = kernel(kernelID);
    const int place = found == nullptr ? -1 : found->mesh->elementNumbers.place(elementID);
    if (place < 0) {
        return {};
    }
    const std::array<int, 4>& corners = found->mesh->report.corners(place);
    return {corners[0] + 1, corners[1] + 1, corners[2] + 1, corners[3] + 1};
}

QVector<int> MeshManager::getNodeElements(int kernelID, int nodeID)
{
    QVector<int> elements;
    const Kernel* found = kernel(kernelID);
    for (int place = 0; found != nullptr && place < found->mesh->report.elementCount(); ++place) {
        const std::array<int, 4>& corners = found->mesh->report.corners(place);
        if (std::find(corners.begin(), corners.end(), nodeID - 1) != corners.end()) {
            elements.append(found->mesh->elementNumbers.number(place));
        }
    }
    std::sort(elements.begin(), elements.end());
    return elements;
}

QVector<double> MeshManager::getBoundingBox(const QList<int>& kernelIDList)
{
    QVector<double> box;
    for (int kernelID : kernelIDList.isEmpty() ? findKernels(QString()) : kernelIDList) {
        const Kernel* found = kernel(kernelID);
        if (found == nullptr) {
            continue;
        }
        const std::array<double, 6>& own = found->mesh->box;
        for (int i = 0; i < 6; ++i) {
            const double value = own[static_cast<std::size_t>(i)];
            if (box.size() < 6) {
                box.append(value);
            } else {
                box[i] = i % 2 == 0 ? std::min(box[i], value) : std::max(box[i], value);
            }
        }
    }
    return box;
}

// What is gone cannot be picked, and elements and groups not while they are hidden. Of elements in hidden volumes the
// geometry's manager says so.
void MeshManager::checkHighLight(bool& isAllowed, int selectModel, int firstID, int secondID) const
{
    const Kernel* found = kernel(firstID);
    const bool isShown = found != nullptr && found->isShown;
    if (selectModel == BaseModule::MeshNode) {
        isAllowed = isAllowed && isShown && secondID >= 1 && secondID <= found->mesh->report.nodeCount();
    } else if (selectModel == BaseModule::MeshElement) {
        const int place = isShown ? found->mesh->elementNumbers.place(secondID) : -1;
        isAllowed = isAllowed && place >= 0 && !isInHiddenGroup(*found, place);
    } else if (selectModel == BaseModule::MeshGroup) {
        isAllowed = isAllowed && isShown && isGroupShown(firstID, secondID);
    }
}

} // namespace Workbench
