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

void GeometryManager::takeKernels(const QList<int>& kernelIDList)
{
    QSet<int> changed;
    for (int kernelID : kernelIDList) {
        takeKernel(kernelID, changed);
    }
    removeForgotten();
    QList<int> changedList = changed.values();
    std::sort(changedList.begin(), changedList.end());
    if (!changedList.isEmpty()) {
        Q_EMIT signal_componentListDataChanged(changedList);
    }
}

void GeometryManager::takeKernel(int kernelID, QSet<int>& changed)
{
    const QSharedPointer<const KernelMesh> mesh = MeshManager::instance()->mesh(kernelID);
    const auto isOfKernel = [kernelID](const Component& component) { return component.kernelID == kernelID; };
    if (!mesh || std::any_of(m_components.cbegin(), m_components.cend(), isOfKernel)) {
        return; // only the kernel's name changed
    }
    for (const FacePatch& patch : mesh->patches) {
        const QString name = mesh->report.groupNames().value(patch.volumeTag);
        const int componentID = componentForVolume(kernelID, patch.volumeTag, name);
        Component& component = m_components[componentID];
        component.faces.insert(patch.faceID, {patch.name, patch.isGroup, patch.triangleCount});
        if (component.box.isEmpty()) {
            component.box = boxOfVolume(*mesh, patch.volumeTag);
        }
        changed.insert(componentID);
    }
}

// The component that stands for the volume already, else one without mesh that it can stand for, else a new one.
int GeometryManager::componentForVolume(int kernelID, int volumeTag, const QString& name)
{
    int componentID = componentOfVolume(kernelID, volumeTag);
    if (componentID > 0) {
        return componentID;
    }
    for (auto it = m_components.cbegin(); it != m_components.cend() && componentID == 0; ++it) {
        const bool isWaiting = it->kernelID == 0 && it->filePath.isEmpty();
        componentID = isWaiting && it->volumeTag == volumeTag ? it.key() : 0;
    }
    if (componentID == 0) {
        componentID = generateComponentID();
        m_components[componentID].name = freeName(name.isEmpty() ? tr("volume %1").arg(volumeTag) : name);
    }
    m_components[componentID].kernelID = kernelID;
    m_components[componentID].volumeTag = volumeTag;
    return componentID;
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
