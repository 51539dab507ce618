// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/MeshManager.h>

#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <algorithm>

using DataManager::SelectedDataManager;

namespace Workbench {

const MeshManager::Group* MeshManager::group(int kernelID, int groupID) const
{
    const Kernel* owner = kernel(kernelID);
    if (owner == nullptr) {
        return nullptr;
    }
    const auto found = owner->groups.find(groupID);
    return found == owner->groups.end() ? nullptr : &*found;
}

bool MeshManager::isGroupNameTaken(const Kernel& kernel, const QString& name, int groupID) const
{
    const QList<int> others = kernel.groups.keys();
    return name.isEmpty() || std::any_of(others.begin(), others.end(), [&](int other) {
               return other != groupID && kernel.groups[other].name == name;
           });
}

int MeshManager::getGroupCount(int kernelID)
{
    return m_kernels.value(kernelID).groups.size();
}

QList<int> MeshManager::findGroups(int kernelID, const QString& name)
{
    QList<int> found;
    const QMap<int, Group> groups = m_kernels.value(kernelID).groups;
    for (auto it = groups.cbegin(); it != groups.cend(); ++it) {
        if (name.isEmpty() || it->name == name) {
            found.append(it.key());
        }
    }
    return found;
}

QString MeshManager::getGroupName(int kernelID, int groupID)
{
    const Group* found = group(kernelID, groupID);
    return found == nullptr ? QString() : found->name;
}

int MeshManager::addGroup(int kernelID, const QString& name, const QList<int>& elementIDList)
{
    if (kernel(kernelID) == nullptr || isGroupNameTaken(*kernel(kernelID), name, 0)) {
        return 0;
    }
    Kernel& owner = m_kernels[kernelID];
    Group added;
    added.name = name;
    for (int elementID : elementIDList) {
        const int place = owner.mesh->elementNumbers.place(elementID);
        if (place >= 0) {
            added.elements.push_back(place);
        }
    }
    std::sort(added.elements.begin(), added.elements.end());
    added.elements.erase(std::unique(added.elements.begin(), added.elements.end()), added.elements.end());
    const int groupID = ++owner.groupMaxID;
    owner.groups.insert(groupID, added);
    Q_EMIT signal_groupDataListChanged({{kernelID, groupID}});
    return groupID;
}

bool MeshManager::renameGroup(int kernelID, int groupID, const QString& name)
{
    if (group(kernelID, groupID) == nullptr || isGroupNameTaken(*kernel(kernelID), name, groupID)) {
        return false;
    }
    m_kernels[kernelID].groups[groupID].name = name;
    Q_EMIT signal_groupDataListChanged({{kernelID, groupID}});
    return true;
}

int MeshManager::removeGroups(const QMultiMap<int, int>& kernel2GroupMap)
{
    QMultiMap<int, int> removed;
    QList<QPair<int, int>> items;
    for (auto it = kernel2GroupMap.cbegin(); it != kernel2GroupMap.cend(); ++it) {
        if (group(it.key(), it.value()) != nullptr) {
            m_kernels[it.key()].groups.remove(it.value());
            removed.insert(it.key(), it.value());
            items.append({it.key(), it.value()});
        }
    }
    if (!removed.isEmpty()) {
        SelectedDataManager::getInstance()->removeSelectedTargetList(BaseModule::MeshGroup, items);
        Q_EMIT signal_groupDataListDeleted(removed);
    }
    return removed.size();
}

void MeshManager::showGroups(const QMultiMap<int, int>& kernel2GroupMap, bool isShow)
{
    QList<QPair<int, int>> items;
    for (auto it = kernel2GroupMap.cbegin(); it != kernel2GroupMap.cend(); ++it) {
        if (group(it.key(), it.value()) != nullptr) {
            m_kernels[it.key()].groups[it.value()].isShown = isShow;
            items.append({it.key(), it.value()});
        }
    }
    if (!isShow) {
        SelectedDataManager::getInstance()->removeSelectedTargetList(BaseModule::MeshGroup, items);
    }
    Q_EMIT signal_visibilityChanged();
}

bool MeshManager::isGroupShown(int kernelID, int groupID) const
{
    const Group* found = group(kernelID, groupID);
    return found != nullptr && found->isShown;
}

std::vector<int> MeshManager::getGroupElements(int kernelID, int groupID) const
{
    const Group* found = group(kernelID, groupID);
    if (found == nullptr) {
        return {};
    }
    std::vector<int> elements = found->elements;
    const DataManager::MeshQualityReport& report = kernel(kernelID)->mesh->report;
    for (int place = 0; found->physicalTag != 0 && place < report.elementCount(); ++place) {
        if (report.physicalTag(place) == found->physicalTag) {
            elements.push_back(place);
        }
    }
    return elements;
}

int MeshManager::getGroupPhysicalTag(int kernelID, int groupID) const
{
    const Group* found = group(kernelID, groupID);
    return found == nullptr ? 0 : found->physicalTag;
}

int MeshManager::getGroupSize(int kernelID, int groupID) const
{
    const Group* found = group(kernelID, groupID);
    if (found == nullptr) {
        return 0;
    }
    const std::map<int, int>& counts = kernel(kernelID)->mesh->elementCounts;
    const auto count = counts.find(found->physicalTag);
    return found->physicalTag != 0 && count != counts.end() ? count->second : static_cast<int>(found->elements.size());
}

std::vector<char> MeshManager::shownElements(int kernelID) const
{
    const Kernel* owner = kernel(kernelID);
    if (owner == nullptr) {
        return {};
    }
    std::vector<char> shown(static_cast<std::size_t>(owner->mesh->report.elementCount()), owner->isShown ? 1 : 0);
    for (auto it = owner->groups.cbegin(); owner->isShown && it != owner->groups.cend(); ++it) {
        if (!it->isShown) {
            for (int place : getGroupElements(kernelID, it.key())) {
                shown[static_cast<std::size_t>(place)] = 0;
            }
        }
    }
    return shown;
}

bool MeshManager::isInHiddenGroup(const Kernel& kernel, int place)
{
    const int tag = kernel.mesh->report.physicalTag(place);
    return std::any_of(kernel.groups.cbegin(), kernel.groups.cend(), [place, tag](const Group& group) {
        return !group.isShown && ((group.physicalTag != 0 && group.physicalTag == tag) ||
                                  std::binary_search(group.elements.begin(), group.elements.end(), place));
    });
}

void MeshManager::makeFileGroups(Kernel& kernel)
{
    for (const FacePatch& patch : kernel.mesh->patches) {
        const auto isHere = [&patch](const Group& group) { return group.physicalTag == patch.volumeTag; };
        if (patch.volumeTag == 0 || std::any_of(kernel.groups.cbegin(), kernel.groups.cend(), isHere)) {
            continue; // elements without a group make none
        }
        Group group;
        group.physicalTag = patch.volumeTag;
        group.name = kernel.mesh->report.groupNames().value(patch.volumeTag);
        if (group.name.isEmpty()) {
            group.name = tr("volume %1").arg(patch.volumeTag);
        }
        kernel.groups.insert(++kernel.groupMaxID, group);
    }
}

} // namespace Workbench
