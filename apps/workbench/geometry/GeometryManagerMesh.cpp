// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/geometry/GeometryManager.h>

#include <workbench/mesh/MeshManager.h>

#include <algorithm>

namespace Workbench {
namespace {

// The box of a group's elements, which their skin encloses.
QVector<double> boxOfVolume(const KernelMesh& mesh, int volumeTag)
{
    QVector<double> box;
    for (const BoundaryFace& face : mesh.faces) {
        if (mesh.report.physicalTag(face.element) != volumeTag) {
            continue;
        }
        for (int node : face.nodes) {
            const std::array<double, 3>& p = mesh.report.node(node);
            if (box.isEmpty()) {
                box = {p[0], p[0], p[1], p[1], p[2], p[2]};
            }
            for (int axis = 0; axis < 3; ++axis) {
                box[2 * axis] = std::min(box[2 * axis], p[static_cast<std::size_t>(axis)]);
                box[2 * axis + 1] = std::max(box[2 * axis + 1], p[static_cast<std::size_t>(axis)]);
            }
        }
    }
    return box;
}

// The volume groups that have elements.
QMap<int, QString> namesOfVolumes(const KernelMesh& mesh)
{
    QMap<int, QString> names;
    for (const FacePatch& patch : mesh.patches) {
        names.insert(patch.volumeTag, mesh.report.groupNames().value(patch.volumeTag));
    }
    return names;
}

} // namespace

int GeometryManager::getKernelID(int componentID) const
{
    return m_components.value(componentID).kernelID;
}

int GeometryManager::getVolumeTag(int componentID) const
{
    return m_components.value(componentID).volumeTag;
}

int GeometryManager::componentOfVolume(int kernelID, int volumeTag) const
{
    for (auto it = m_components.cbegin(); it != m_components.cend(); ++it) {
        if (kernelID > 0 && it->kernelID == kernelID && it->volumeTag == volumeTag) {
            return it.key();
        }
    }
    return 0;
}

bool GeometryManager::isElementShown(int kernelID, int elementID) const
{
    const QSharedPointer<const KernelMesh> mesh = MeshManager::instance()->mesh(kernelID);
    const int place = mesh == nullptr ? -1 : mesh->elementNumbers.place(elementID);
    return place >= 0 && isComponentShown(componentOfVolume(kernelID, mesh->report.physicalTag(place)));
}

QList<int> GeometryManager::getFaces(int componentID) const
{
    return m_components.value(componentID).faces.keys();
}

QString GeometryManager::getFaceName(int componentID, int faceID) const
{
    const QMap<int, Face> faces = m_components.value(componentID).faces;
    if (!faces.contains(faceID)) {
        return {};
    }
    const Face face = faces.value(faceID);
    if (!face.name.isEmpty()) {
        return face.name;
    }
    return face.isGroup ? tr("surface group %1").arg(faceID) : tr("face %1").arg(faceID);
}

int GeometryManager::getFaceTriangleCount(int componentID, int faceID) const
{
    return m_components.value(componentID).faces.value(faceID).triangleCount;
}

// Those that stay are found first, so that the names of those that go are free for new ones.
void GeometryManager::takeKernels(const QList<int>& kernelIDList)
{
    QList<int> taken;
    for (int kernelID : kernelIDList) {
        const auto isOfKernel = [kernelID](const Component& component) { return component.kernelID == kernelID; };
        const bool isKnown = std::any_of(m_components.cbegin(), m_components.cend(), isOfKernel);
        if (!isKnown && MeshManager::instance()->mesh(kernelID)) { // else only its name changed
            wakeComponents(kernelID);
            taken.append(kernelID);
        }
    }
    removeForgotten();
    QSet<int> changed;
    for (int kernelID : qAsConst(taken)) {
        takeKernel(kernelID, changed);
    }
    QList<int> changedList = changed.values();
    std::sort(changedList.begin(), changedList.end());
    if (!changedList.isEmpty()) {
        Q_EMIT signal_componentListDataChanged(changedList);
    }
}

void GeometryManager::wakeComponents(int kernelID)
{
    const QMap<int, QString> groupNames = namesOfVolumes(*MeshManager::instance()->mesh(kernelID));
    const QString origin = MeshManager::instance()->getOrigin(kernelID);
    for (int volumeTag : groupNames.keys()) {
        const int componentID = waitingComponent(origin, volumeTag, groupNames);
        if (componentID > 0) {
            m_components[componentID].kernelID = kernelID;
            m_components[componentID].volumeTag = volumeTag;
        }
    }
}

void GeometryManager::takeKernel(int kernelID, QSet<int>& changed)
{
    const QSharedPointer<const KernelMesh> mesh = MeshManager::instance()->mesh(kernelID);
    for (const FacePatch& patch : mesh->patches) {
        int componentID = componentOfVolume(kernelID, patch.volumeTag);
        if (componentID == 0) {
            componentID = generateComponentID();
            m_components[componentID].kernelID = kernelID;
            m_components[componentID].volumeTag = patch.volumeTag;
        }
        Component& component = m_components[componentID];
        component.faces.insert(patch.faceID, {patch.name, patch.isGroup, patch.triangleCount});
        if (!changed.contains(componentID)) {
            component.origin = MeshManager::instance()->getOrigin(kernelID);
            component.box = boxOfVolume(*mesh, patch.volumeTag);
            nameAfterGroup(componentID, mesh->report.groupNames().value(patch.volumeTag));
            changed.insert(componentID);
        }
    }
}

// Projects of earlier versions do not say where their components come from, or how their groups were called.
int GeometryManager::waitingComponent(const QString& origin, int volumeTag, const QMap<int, QString>& groupNames) const
{
    const QString groupName = groupNames.value(volumeTag);
    const QStringList allNames = groupNames.values();
    int ofTag = 0;
    for (auto it = m_components.cbegin(); it != m_components.cend(); ++it) {
        const bool isOfOrigin = it->origin == origin || it->origin.isEmpty();
        if (it->kernelID != 0 || !it->filePath.isEmpty() || !isOfOrigin) {
            continue;
        }
        if (!groupName.isEmpty() && it->groupName == groupName) {
            return it.key();
        }
        const bool isAwaited = !it->groupName.isEmpty() && allNames.contains(it->groupName);
        if (ofTag == 0 && it->volumeTag == volumeTag && !isAwaited) {
            ofTag = it.key();
        }
    }
    return ofTag;
}

// A name that a person gave stays.
void GeometryManager::nameAfterGroup(int componentID, const QString& groupName)
{
    Component& component = m_components[componentID];
    const bool isNew = component.name.isEmpty();
    const bool isNamedAfterGroup = !component.groupName.isEmpty() && component.name == component.groupName;
    if (isNew || (isNamedAfterGroup && groupName != component.groupName)) {
        component.name = freeName(groupName.isEmpty() ? tr("volume %1").arg(component.volumeTag) : groupName);
    }
    component.groupName = groupName;
}

QString GeometryManager::freeName(const QString& wanted)
{
    QString name = wanted;
    for (int i = 2; isNameTaken(name, 0); ++i) {
        name = QStringLiteral("%1 (%2)").arg(wanted).arg(i);
    }
    return name;
}

void GeometryManager::dropKernels(const QList<int>& kernelIDList)
{
    QList<int> changed;
    for (auto it = m_components.begin(); it != m_components.end(); ++it) {
        if (kernelIDList.contains(it->kernelID)) {
            it->kernelID = 0;
            it->faces.clear();
            it->box.clear();
            changed.append(it.key());
        }
    }
    removeFromSelection(changed);
    if (!changed.isEmpty()) {
        Q_EMIT signal_componentListDataChanged(changed);
    }
}

// Components of an earlier mesh that the new one does not hold.
void GeometryManager::removeForgotten()
{
    QList<int> forgotten;
    for (auto it = m_components.cbegin(); it != m_components.cend(); ++it) {
        if (it->kernelID == 0 && it->filePath.isEmpty()) {
            forgotten.append(it.key());
        }
    }
    removeComponents(forgotten);
}

} // namespace Workbench
