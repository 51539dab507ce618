// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/selection/ProjectTreeContent.h>

#include <workbench/geometry/GeometryManager.h>
#include <workbench/material/MaterialName.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/selection/ProjectTree.h>

#include <basemodule/MaterialLibType.h>
#include <basemodule/SelectModel.h>
#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>
#include <datamanager/material/MaterialLibraryManager.h>
#include <datamodel/MaterialData.h>

using DataManager::MaterialLibraryManager;
using DataManager::RelativeCoordinateSystemDate;

namespace Workbench {
namespace {

using Line = ProjectTreeLine;

QString materialOfVolume(int componentID)
{
    const int materialID = GeometryManager::instance()->getMaterialID(componentID);
    return materialID == 0 ? QString() : fillingTitle(materialID);
}

Line faceLine(int componentID, int faceID)
{
    const GeometryManager* geometry = GeometryManager::instance();
    Line line;
    line.kind = Line::Kind::Face;
    line.text = geometry->getFaceName(componentID, faceID);
    line.details = ProjectTree::tr("%1 triangles").arg(geometry->getFaceTriangleCount(componentID, faceID));
    line.selectModel = BaseModule::GeometryFace;
    line.firstID = componentID;
    line.secondID = faceID;
    return line;
}

Line volumesLine()
{
    GeometryManager* geometry = GeometryManager::instance();
    Line heading;
    heading.text = ProjectTree::tr("Volumes");
    for (int componentID : geometry->findComponents(QString())) {
        Line line;
        line.kind = Line::Kind::Volume;
        line.text = geometry->getComponentName(componentID);
        line.details = materialOfVolume(componentID);
        line.selectModel = BaseModule::GeometryComponent;
        line.firstID = componentID;
        line.isCheckable = true;
        line.isShown = geometry->isComponentShown(componentID);
        for (int faceID : geometry->getFaces(componentID)) {
            line.children.append(faceLine(componentID, faceID));
        }
        heading.children.append(line);
    }
    return heading;
}

Line setsLine()
{
    GeometryManager* geometry = GeometryManager::instance();
    Line heading;
    heading.text = ProjectTree::tr("Sets");
    for (int setID : geometry->findSets(QString())) {
        Line line;
        line.kind = Line::Kind::Set;
        line.text = geometry->getSetName(setID);
        line.details = ProjectTree::tr("%1 members").arg(geometry->getSetMembers(setID).size());
        line.firstID = setID;
        line.isOwn = true;
        heading.children.append(line);
    }
    return heading;
}

Line groupLine(int kernelID, int groupID)
{
    MeshManager* meshes = MeshManager::instance();
    Line line;
    line.kind = Line::Kind::Group;
    line.text = meshes->getGroupName(kernelID, groupID);
    line.details = ProjectTree::tr("%1 elements").arg(meshes->getGroupSize(kernelID, groupID));
    line.selectModel = BaseModule::MeshGroup;
    line.firstID = kernelID;
    line.secondID = groupID;
    line.isCheckable = true;
    line.isShown = meshes->isGroupShown(kernelID, groupID);
    line.isOwn = meshes->getGroupPhysicalTag(kernelID, groupID) == 0;
    return line;
}

Line meshesLine()
{
    MeshManager* meshes = MeshManager::instance();
    Line heading;
    heading.text = ProjectTree::tr("Meshes");
    for (int kernelID : meshes->findKernels(QString())) {
        Line line;
        line.kind = Line::Kind::Mesh;
        line.text = meshes->getKernelName(kernelID);
        line.details = ProjectTree::tr("%1 elements").arg(meshes->getElementCount(kernelID));
        line.firstID = kernelID;
        for (int groupID : meshes->findGroups(kernelID, QString())) {
            line.children.append(groupLine(kernelID, groupID));
        }
        heading.children.append(line);
    }
    for (const QString& name : meshes->getUnreadNames()) {
        Line line;
        line.kind = Line::Kind::UnreadMesh;
        line.text = name;
        line.details = ProjectTree::tr("not read");
        heading.children.append(line);
    }
    return heading;
}

Line materialsLine()
{
    Line heading;
    heading.text = ProjectTree::tr("Materials");
    for (const auto& material : MaterialLibraryManager::getInstance()->getMatLibDataByType(BaseModule::ProjectLib)) {
        if (!material || material->isDeleted) {
            continue;
        }
        Line line;
        line.kind = Line::Kind::Material;
        line.text = materialTitle(*material);
        const int uses = GeometryManager::instance()->findComponentsOfMaterial(material->id).size();
        line.details = uses > 0 ? ProjectTree::tr("used by %1").arg(uses) : QString();
        line.firstID = material->id;
        heading.children.append(line);
    }
    return heading;
}

Line systemsLine()
{
    const RelativeCoordinateSystemDate* systems = RelativeCoordinateSystemDate::getInstance();
    Line heading;
    heading.text = ProjectTree::tr("Coordinate systems");
    for (int i = 0; i < systems->getRelativeCoordinateSystemDateCount(); ++i) {
        const DataManager::RelativeCoordinateSystem* system = systems->getCoordinateSystemByIndex(i);
        const bool isCurrent = system->getID() == systems->getCurrentCoordinateSystemID();
        Line line;
        line.kind = Line::Kind::CoordinateSystem;
        line.text = system->getID() == 0 ? ProjectTree::tr("Global") : system->getName();
        line.details = isCurrent ? ProjectTree::tr("current") : QString();
        line.selectModel = BaseModule::CoordinateAxes;
        line.firstID = system->getID();
        heading.children.append(line);
    }
    return heading;
}

} // namespace

QList<ProjectTreeLine> projectTreeContent()
{
    QList<ProjectTreeLine> headings{volumesLine(), setsLine(), meshesLine(), materialsLine(), systemsLine()};
    for (int i = 0; i < headings.size(); ++i) {
        headings[i].firstID = i; // the same for each heading, whichever are there
    }
    if (headings[1].children.isEmpty()) {
        headings.removeAt(1);
    }
    return headings;
}

} // namespace Workbench
