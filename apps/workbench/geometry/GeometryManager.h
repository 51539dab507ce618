// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/geometry/NamedSets.h>

#include <datamanager/frame/IdaIGeometryManager.h>

#include <QMap>
#include <QSet>

class QJsonObject;

namespace Workbench {

/// The volumes of the project, with their faces and materials.
///
/// A component is a volume. It is known by its name, and while a mesh is loaded stands for the elements of one physical
/// group of that mesh; its faces are then the pieces of that group's skin. A mesh of the same origin (MeshSource) keeps
/// components, with their identifiers, names and materials, whose group is found again, by its name or, where it has
/// none or a new one, by its number. A mesh of another origin makes new ones.
///
/// Selected items: (component, -1) under GeometryComponent, (component, face) under GeometryFace, (set, -1) under
/// GeometrySet.
class GeometryManager : public DataManager::IdaIGeometryManager
{
    Q_OBJECT

public:
    /// The manager, created by the first call and never destroyed.
    static GeometryManager* instance();

    int getSetCount() override;
    QList<int> findSets(const QString& name) override;
    QString getSetName(int setID) override;
    int addSet(const QString& name, const QList<QPair<int, int>>& memberList) override;
    bool renameSet(int setID, const QString& name) override;
    int removeSets(const QList<int>& setIDList) override;
    void showSets(const QList<int>& setIDList, bool isShow) override;

    int getComponentCount() override;
    QList<int> findComponents(const QString& name) override;
    QString getComponentName(int componentID) override;
    /// The file is a geometry for the mesher, or a mesh; it is only looked at, its faces come with a mesh.
    int addComponent(const QString& name, const QString& filePath) override;
    bool renameComponent(int componentID, const QString& name) override;
    int removeComponents(const QList<int>& componentIDList) override;
    void showComponents(const QList<int>& componentIDList, bool isShow) override;

    QVector<double> getBoundingBox(const QList<int>& componentIDList) override;
    bool save(const QString& filePath) override;
    bool load(const QString& filePath) override;
    /// Whether load() takes the file. Any thread may ask.
    static bool isDescription(const QString& filePath);

    /// The members of a set; none when there is no such set.
    QList<QPair<int, int>> getSetMembers(int setID) const;
    bool isComponentShown(int componentID) const;

    /// The material of the project library that a component is made of; 0, the default material, without one.
    int getMaterialID(int componentID) const;
    /// Assigns a material to those of the components that exist; 0 takes it away.
    void setMaterialID(const QList<int>& componentIDList, int materialID);
    /// The components made of that material, ascending.
    QList<int> findComponentsOfMaterial(int materialID) const;

    /// The mesh and the physical group that the component stands for; 0 without a mesh.
    int getKernelID(int componentID) const;
    int getVolumeTag(int componentID) const;
    /// The component that stands for that group; 0 when there is none.
    int componentOfVolume(int kernelID, int volumeTag) const;

    /// The component's faces, ascending; none without a mesh.
    QList<int> getFaces(int componentID) const;
    /// The name that the file gives to the face, or one made from its number; empty when there is no such face.
    QString getFaceName(int componentID, int faceID) const;
    /// How many triangles of the mesh make the face up; 0 when there is no such face.
    int getFaceTriangleCount(int componentID, int faceID) const;

    /// Removes everything and starts counting again.
    void clear();

Q_SIGNALS:
    /// Name, material, faces or visibility of these components changed, or they were added.
    void signal_componentListDataChanged(QList<int> componentIDList);
    /// These components were removed.
    void signal_componentListRemoved(QList<int> componentIDList);

private:
    struct Face
    {
        QString name;
        bool isGroup = false;
        int triangleCount = 0;
    };

    struct Component
    {
        QString name;
        QString filePath;
        int materialID = 0;
        bool isShown = true;
        int kernelID = 0;
        /// The group that it stands for or stood for last, and the origin of the mesh.
        int volumeTag = 0;
        QString groupName;
        QString origin;
        QMap<int, Face> faces;
        QVector<double> box;
    };

    GeometryManager();
    ~GeometryManager() override = default;

    bool isNameTaken(const QString& name, int componentID);
    QString freeName(const QString& wanted);
    void removeFromSelection(const QList<int>& componentIDList);
    void dropMaterial(int materialID);
    bool isElementShown(int kernelID, int elementID) const;
    void checkHighLight(bool& isAllowed, int selectModel, int firstID, int secondID) const;

    void takeKernels(const QList<int>& kernelIDList);
    void dropKernels(const QList<int>& kernelIDList);
    void takeKernel(int kernelID, QSet<int>& changed);
    void wakeComponents(int kernelID);
    int waitingComponent(const QString& origin, int volumeTag, const QMap<int, QString>& groupNames) const;
    void nameAfterGroup(int componentID, const QString& groupName);
    void removeForgotten();

    QJsonObject componentToJson(int componentID) const;
    void takeJson(const QJsonObject& object);
    void restoreComponentMaxID(int largestID);

    QMap<int, Component> m_components;
    NamedSets m_sets;
};

} // namespace Workbench
