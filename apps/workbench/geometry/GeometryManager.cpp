// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/geometry/GeometryManager.h>

#include <workbench/mesh/MeshManager.h>

#include <basemodule/IBaseSignal.h>
#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QFileInfo>

#include <algorithm>

using BaseModule::IBaseSignal;
using DataManager::SelectedDataManager;

namespace Workbench {

GeometryManager* GeometryManager::instance()
{
    static auto* const manager = new GeometryManager;
    return manager;
}

GeometryManager::GeometryManager()
{
    MeshManager* meshes = MeshManager::instance();
    connect(meshes, &MeshManager::signal_kernalDataListChanged, this, &GeometryManager::takeKernels);
    connect(meshes, &MeshManager::signal_kernalDataListDeleted, this, &GeometryManager::dropKernels);
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_delMatUpdateGeometryData, this,
            &GeometryManager::dropMaterial);
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_checkHighLight, this, &GeometryManager::checkHighLight);
}

int GeometryManager::getSetCount()
{
    return m_sets.count();
}

QList<int> GeometryManager::findSets(const QString& name)
{
    return m_sets.find(name);
}

QString GeometryManager::getSetName(int setID)
{
    return m_sets.set(setID).name;
}

QList<QPair<int, int>> GeometryManager::getSetMembers(int setID) const
{
    return m_sets.set(setID).memberList;
}

int GeometryManager::addSet(const QString& name, const QList<QPair<int, int>>& memberList)
{
    if (m_sets.isTaken(name, 0)) {
        return 0;
    }
    const int setID = generateSetID();
    m_sets.add(setID, {name, memberList});
    Q_EMIT signal_geoSetListDataChanged({setID});
    return setID;
}

bool GeometryManager::renameSet(int setID, const QString& name)
{
    const bool isRenamed = m_sets.rename(setID, name);
    if (isRenamed) {
        Q_EMIT signal_geoSetListDataChanged({setID});
    }
    return isRenamed;
}

int GeometryManager::removeSets(const QList<int>& setIDList)
{
    const QList<int> removed = m_sets.remove(setIDList);
    if (!removed.isEmpty()) {
        SelectedDataManager::getInstance()->removeSelectedTargets(BaseModule::GeometrySet, removed);
        Q_EMIT signal_geoSetListRemoved(removed);
    }
    return removed.size();
}

void GeometryManager::showSets(const QList<int>& setIDList, bool isShow)
{
    QList<int> componentIDList;
    for (int setID : setIDList) {
        for (const QPair<int, int>& member : getSetMembers(setID)) {
            componentIDList.append(member.first);
        }
    }
    showComponents(componentIDList, isShow);
}

int GeometryManager::getComponentCount()
{
    return m_components.size();
}

QList<int> GeometryManager::findComponents(const QString& name)
{
    QList<int> found;
    for (auto it = m_components.cbegin(); it != m_components.cend(); ++it) {
        if (name.isEmpty() || it->name == name) {
            found.append(it.key());
        }
    }
    return found;
}

QString GeometryManager::getComponentName(int componentID)
{
    return m_components.value(componentID).name;
}

bool GeometryManager::isNameTaken(const QString& name, int componentID)
{
    const QList<int> others = findComponents(name);
    return name.isEmpty() ||
           std::any_of(others.begin(), others.end(), [componentID](int other) { return other != componentID; });
}

int GeometryManager::addComponent(const QString& name, const QString& filePath)
{
    const QFileInfo file(filePath);
    if (isNameTaken(name, 0) || !file.isFile() || !file.isReadable()) {
        return 0;
    }
    const int componentID = generateComponentID();
    Component& component = m_components[componentID];
    component.name = name;
    component.filePath = filePath;
    Q_EMIT signal_componentListDataChanged({componentID});
    return componentID;
}

bool GeometryManager::renameComponent(int componentID, const QString& name)
{
    if (!m_components.contains(componentID) || isNameTaken(name, componentID)) {
        return false;
    }
    m_components[componentID].name = name;
    Q_EMIT signal_componentListDataChanged({componentID});
    return true;
}

int GeometryManager::removeComponents(const QList<int>& componentIDList)
{
    QList<int> removed;
    for (int componentID : componentIDList) {
        if (m_components.remove(componentID) > 0) {
            removed.append(componentID);
        }
    }
    if (removed.isEmpty()) {
        return 0;
    }
    const QList<int> changedSets =
        m_sets.removeMembers([&removed](const QPair<int, int>& member) { return removed.contains(member.first); });
    removeFromSelection(removed);
    Q_EMIT signal_componentListRemoved(removed);
    if (!changedSets.isEmpty()) {
        Q_EMIT signal_geoSetListDataChanged(changedSets);
    }
    return removed.size();
}

void GeometryManager::removeFromSelection(const QList<int>& componentIDList)
{
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    selection->removeSelectedTargets(BaseModule::GeometryComponent, componentIDList);
    selection->removeSelectedTargets(BaseModule::GeometryFace, componentIDList);
}

void GeometryManager::showComponents(const QList<int>& componentIDList, bool isShow)
{
    QList<int> changed;
    for (int componentID : componentIDList) {
        const auto component = m_components.find(componentID);
        if (component != m_components.end() && component->isShown != isShow) {
            component->isShown = isShow;
            changed.append(componentID);
        }
    }
    if (!isShow) {
        removeFromSelection(changed);
    }
    if (!changed.isEmpty()) {
        Q_EMIT signal_componentListDataChanged(changed);
    }
}

QVector<double> GeometryManager::getBoundingBox(const QList<int>& componentIDList)
{
    QVector<double> box;
    for (int componentID : componentIDList.isEmpty() ? findComponents(QString()) : componentIDList) {
        const QVector<double> own = m_components.value(componentID).box;
        if (box.isEmpty() || own.isEmpty()) {
            box = own.isEmpty() ? box : own;
            continue;
        }
        for (int i = 0; i < 6; ++i) {
            box[i] = i % 2 == 0 ? std::min(box[i], own[i]) : std::max(box[i], own[i]);
        }
    }
    return box;
}

bool GeometryManager::isComponentShown(int componentID) const
{
    return m_components.value(componentID).isShown;
}

int GeometryManager::getMaterialID(int componentID) const
{
    return m_components.value(componentID).materialID;
}

void GeometryManager::setMaterialID(const QList<int>& componentIDList, int materialID)
{
    QList<int> changed;
    for (int componentID : componentIDList) {
        const auto component = m_components.find(componentID);
        if (component != m_components.end() && component->materialID != materialID) {
            component->materialID = materialID;
            changed.append(componentID);
        }
    }
    if (!changed.isEmpty()) {
        Q_EMIT signal_componentListDataChanged(changed);
    }
}

QList<int> GeometryManager::findComponentsOfMaterial(int materialID) const
{
    QList<int> found;
    for (auto it = m_components.cbegin(); it != m_components.cend(); ++it) {
        if (it->materialID == materialID) {
            found.append(it.key());
        }
    }
    return found;
}

void GeometryManager::dropMaterial(int materialID)
{
    setMaterialID(findComponentsOfMaterial(materialID), 0);
}

// What is hidden or gone cannot be picked; nor can elements of a hidden volume.
void GeometryManager::checkHighLight(bool& isAllowed, int selectModel, int firstID, int secondID) const
{
    if (selectModel == BaseModule::MeshElement) {
        isAllowed = isAllowed && isElementShown(firstID, secondID);
    }
    if (selectModel != BaseModule::GeometryComponent && selectModel != BaseModule::GeometryFace) {
        return;
    }
    const auto component = m_components.find(firstID);
    const bool isThere = component != m_components.end() && component->isShown &&
                         (selectModel == BaseModule::GeometryComponent || component->faces.contains(secondID));
    isAllowed = isAllowed && isThere;
}

} // namespace Workbench
