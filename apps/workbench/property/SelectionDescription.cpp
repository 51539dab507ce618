// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/property/SelectionDescription.h>

#include <workbench/geometry/GeometryManager.h>
#include <workbench/material/MaterialName.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/project/Project.h>

#include <basemodule/SelectModel.h>
#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>
#include <datamanager/selection/SelectedDataManager.h>
#include <datamodel/SelectedDataBase.h>

#include <QCoreApplication>
#include <QDir>

using DataManager::MeshQualityReport;
using DataManager::SelectedDataManager;
using DataModel::PropertyTableData;

namespace Workbench {
namespace {

/// Translated with the table that shows them.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::PropertyTable)
};

QString number(double value)
{
    return QString::number(value, 'g', 9);
}

QString point(double x, double y, double z)
{
    return QStringLiteral("%1, %2, %3").arg(number(x), number(y), number(z));
}

void addRow(PropertyTableData& table, const QString& key, const QString& value)
{
    table.appendRowKeyValue(key, value, false);
}

void addBox(PropertyTableData& table, const QVector<double>& box)
{
    if (box.size() == 6) {
        addRow(table, Texts::tr("from (x, y, z)"), point(box[0], box[2], box[4]));
        addRow(table, Texts::tr("to (x, y, z)"), point(box[1], box[3], box[5]));
    }
}

void describeVolume(PropertyTableData& table, int componentID)
{
    GeometryManager* geometry = GeometryManager::instance();
    addRow(table, Texts::tr("volume"), geometry->getComponentName(componentID));
    addRow(table, Texts::tr("number"), QString::number(componentID));
    addRow(table, Texts::tr("material"), fillingTitle(geometry->getMaterialID(componentID)));
    addRow(table, Texts::tr("physical group"), QString::number(geometry->getVolumeTag(componentID)));
    addRow(table, Texts::tr("faces"), QString::number(geometry->getFaces(componentID).size()));
    addBox(table, geometry->getBoundingBox({componentID}));
}

void describeFace(PropertyTableData& table, int componentID, int faceID)
{
    GeometryManager* geometry = GeometryManager::instance();
    addRow(table, Texts::tr("face"), geometry->getFaceName(componentID, faceID));
    addRow(table, Texts::tr("number"), QString::number(faceID));
    addRow(table, Texts::tr("volume"), geometry->getComponentName(componentID));
    addRow(table, Texts::tr("triangles"), QString::number(geometry->getFaceTriangleCount(componentID, faceID)));
}

void describeNode(PropertyTableData& table, int kernelID, int nodeID)
{
    MeshManager* meshes = MeshManager::instance();
    const QVector<double> position = meshes->getNodePosition(kernelID, nodeID);
    addRow(table, Texts::tr("node"), QString::number(nodeID));
    if (position.size() == 3) {
        addRow(table, Texts::tr("position (x, y, z)"), point(position[0], position[1], position[2]));
        addRow(table, Texts::tr("elements"), QString::number(meshes->getNodeElements(kernelID, nodeID).size()));
    }
}

void describeElement(PropertyTableData& table, int kernelID, int elementID)
{
    const QSharedPointer<const KernelMesh> mesh = MeshManager::instance()->mesh(kernelID);
    const int place = mesh ? mesh->elementNumbers.place(elementID) : -1;
    if (place < 0) {
        return;
    }
    QStringList nodes;
    for (int node : MeshManager::instance()->getElementNodes(kernelID, elementID)) {
        nodes.append(QString::number(node));
    }
    const std::array<double, 3> centre = mesh->report.centroid(place);
    addRow(table, Texts::tr("element"), QString::number(elementID));
    addRow(table, Texts::tr("nodes"), nodes.join(QStringLiteral(", ")));
    addRow(table, Texts::tr("centre (x, y, z)"), point(centre[0], centre[1], centre[2]));
    addRow(table, Texts::tr("physical group"), QString::number(mesh->report.physicalTag(place)));
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        const auto metric = static_cast<MeshQualityReport::Metric>(i);
        addRow(table, MeshQualityReport::metricName(metric),
               number(mesh->report.values(metric)[static_cast<std::size_t>(place)]));
    }
}

void describeGroup(PropertyTableData& table, int kernelID, int groupID)
{
    MeshManager* meshes = MeshManager::instance();
    addRow(table, Texts::tr("group"), meshes->getGroupName(kernelID, groupID));
    addRow(table, Texts::tr("number"), QString::number(groupID));
    addRow(table, Texts::tr("mesh"), meshes->getKernelName(kernelID));
    addRow(table, Texts::tr("elements"), QString::number(meshes->getGroupSize(kernelID, groupID)));
}

void describeSystem(PropertyTableData& table, int id)
{
    DataManager::RelativeCoordinateSystem* system =
        DataManager::RelativeCoordinateSystemDate::getInstance()->getCoordinateSystemByID(id);
    if (system != nullptr) {
        table = *system->getProperty();
    }
}

void describeItem(PropertyTableData& table, const DataModel::SelectedDataBase& item)
{
    switch (item.getSelectModel()) {
    case BaseModule::GeometryComponent:
        return describeVolume(table, item.getFirstID());
    case BaseModule::GeometryFace:
        return describeFace(table, item.getFirstID(), item.getSecondID());
    case BaseModule::MeshNode:
        return describeNode(table, item.getFirstID(), item.getSecondID());
    case BaseModule::MeshElement:
        return describeElement(table, item.getFirstID(), item.getSecondID());
    case BaseModule::MeshGroup:
        return describeGroup(table, item.getFirstID(), item.getSecondID());
    case BaseModule::CoordinateAxes:
        return describeSystem(table, item.getFirstID());
    default:
        return;
    }
}

void describeProject(PropertyTableData& table)
{
    MeshManager* meshes = MeshManager::instance();
    addRow(table, Texts::tr("project"), Project::instance()->name());
    addRow(table, Texts::tr("file"), QDir::toNativeSeparators(Project::instance()->path()));
    addRow(table, Texts::tr("geometry"), Project::instance()->geometryName());
    for (int kernelID : meshes->findKernels(QString())) {
        addRow(table, Texts::tr("mesh"), meshes->getKernelName(kernelID));
        addRow(table, Texts::tr("nodes"), QString::number(meshes->getNodeCount(kernelID)));
        addRow(table, Texts::tr("elements"), QString::number(meshes->getElementCount(kernelID)));
        addBox(table, meshes->getBoundingBox({kernelID}));
    }
}

} // namespace

PropertyTableData describeSelection()
{
    PropertyTableData table;
    const QList<DataModel::SelectedDataBase*> items = SelectedDataManager::getInstance()->getSelectedDataList();
    if (items.isEmpty()) {
        describeProject(table);
    } else if (items.size() == 1) {
        describeItem(table, *items.first());
    } else {
        addRow(table, Texts::tr("selected items"), QString::number(items.size()));
    }
    return table;
}

} // namespace Workbench
