// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/MaterialLibraryManager.h>

#include <datamanager/frame/Singleton.h>
#include <datamanager/material/private/MaterialDescription.h>
#include <datamanager/material/private/MaterialLibrary.h>
#include <datamanager/material/private/MaterialLibraryFile.h>
#include <datamanager/material/private/MaterialPropertyText.h>
#include <datamanager/material/private/UserMessage.h>

#include <basemodule/GlobalHelper.h>
#include <datamodel/MaterialData.h>

#include <QCoreApplication>

namespace DataManager {

using BaseModule::MaterialLibType;
using DataModel::MaterialData;
using DataModel::MaterialPropertyData;

namespace {

/// Afresh for every use: the directory changes when another project is opened.
QString projectLibraryPath()
{
    return BaseModule::GlobalHelper::getProjectTempIODir() + QStringLiteral("/MaterialLibrary.json");
}

bool isNameRefused(const MaterialMap& softwareMaterials, const MaterialMap& projectMaterials, MaterialLibType type,
                   const QString& name, const int* exceptID)
{
    if (isReservedMaterialName(name)) {
        return true;
    }
    switch (type) {
    case BaseModule::SoftwareLib:
        return isMaterialNameTaken(softwareMaterials, name, exceptID);
    case BaseModule::ProjectLib:
        return isMaterialNameTaken(projectMaterials, name, exceptID);
    }
    return true;
}

} // namespace

MaterialLibraryManager* MaterialLibraryManager::m_instance = nullptr;

MaterialLibraryManager* MaterialLibraryManager::getInstance()
{
    return singleton(m_instance, [] { return new MaterialLibraryManager; });
}

MaterialLibraryManager::MaterialLibraryManager()
    : m_softwareLibPath(QCoreApplication::applicationDirPath() + QStringLiteral("/ConfigFiles/MaterialLibrary.json"))
{
    initSoftwareMaterial();
}

void MaterialLibraryManager::initSoftwareMaterial()
{
    loadMaterialLibrary({m_softwareMatMap, m_softwareNextMatID, softwareLibraryKind}, m_softwareLibPath);
}

void MaterialLibraryManager::initProjectMaterial()
{
    loadMaterialLibrary({m_projectMatMap, m_projectNextMatID, projectLibraryKind}, projectLibraryPath());
}

void MaterialLibraryManager::saveSoftwareMaterial()
{
    saveMaterialLibrary(m_softwareMatMap, softwareLibraryKind, m_softwareLibPath);
}

void MaterialLibraryManager::writeProjectMatConfig()
{
    saveMaterialLibrary(m_projectMatMap, projectLibraryKind, projectLibraryPath());
}

void MaterialLibraryManager::clearProjectMaterial()
{
    m_projectMatMap.clear();
    removeMaterialLibrary(projectLibraryKind, projectLibraryPath());
    m_projectNextMatID = 1;
}

void MaterialLibraryManager::createProjectMat(QString chineseName, QString englishName,
                                              QSharedPointer<MaterialPropertyData> p1,
                                              QSharedPointer<MaterialPropertyData> p2,
                                              QSharedPointer<MaterialPropertyData> p3,
                                              QSharedPointer<MaterialPropertyData> p4,
                                              QSharedPointer<MaterialPropertyData> p5)
{
    MaterialLibrary library{m_projectMatMap, m_projectNextMatID, projectLibraryKind};
    library.append({0, chineseName, englishName, p1, p2, p3, p4, p5});
    writeProjectMatConfig();
}

void MaterialLibraryManager::createSoftwareMat(QString chineseName, QString englishName,
                                               QSharedPointer<MaterialPropertyData> p1,
                                               QSharedPointer<MaterialPropertyData> p2,
                                               QSharedPointer<MaterialPropertyData> p3,
                                               QSharedPointer<MaterialPropertyData> p4,
                                               QSharedPointer<MaterialPropertyData> p5)
{
    MaterialLibrary library{m_softwareMatMap, m_softwareNextMatID, softwareLibraryKind};
    library.append({0, chineseName, englishName, p1, p2, p3, p4, p5});
    saveSoftwareMaterial();
}

void MaterialLibraryManager::updateProjectMat(int id, QString chineseName, QString englishName,
                                              QSharedPointer<MaterialPropertyData> p1,
                                              QSharedPointer<MaterialPropertyData> p2,
                                              QSharedPointer<MaterialPropertyData> p3,
                                              QSharedPointer<MaterialPropertyData> p4,
                                              QSharedPointer<MaterialPropertyData> p5)
{
    if (const auto material = findLiveMaterial(m_projectMatMap, id)) {
        material->update(id, chineseName, englishName, p1, p2, p3, p4, p5);
        writeProjectMatConfig();
    }
}

void MaterialLibraryManager::updateSoftwareMat(int id, QString chineseName, QString englishName,
                                               QSharedPointer<MaterialPropertyData> p1,
                                               QSharedPointer<MaterialPropertyData> p2,
                                               QSharedPointer<MaterialPropertyData> p3,
                                               QSharedPointer<MaterialPropertyData> p4,
                                               QSharedPointer<MaterialPropertyData> p5)
{
    if (const auto material = findLiveMaterial(m_softwareMatMap, id)) {
        material->update(id, chineseName, englishName, p1, p2, p3, p4, p5);
        saveSoftwareMaterial();
    }
}

void MaterialLibraryManager::deleteProjectMat(int id)
{
    MaterialLibrary library{m_projectMatMap, m_projectNextMatID, projectLibraryKind};
    if (library.remove(id)) {
        writeProjectMatConfig();
    }
}

void MaterialLibraryManager::deleteSoftwareMat(int id)
{
    MaterialLibrary library{m_softwareMatMap, m_softwareNextMatID, softwareLibraryKind};
    if (library.remove(id)) {
        saveSoftwareMaterial();
    }
}

QSharedPointer<MaterialData> MaterialLibraryManager::getProjectMatByID(int id)
{
    return findMaterial(m_projectMatMap, id);
}

QSharedPointer<MaterialData> MaterialLibraryManager::getSoftwareMatByID(int id)
{
    return findMaterial(m_softwareMatMap, id);
}

QSharedPointer<MaterialData> MaterialLibraryManager::getProjectMatByName(QString name)
{
    return findMaterialByName(m_projectMatMap, name);
}

QSharedPointer<MaterialData> MaterialLibraryManager::getSoftwareMatByName(QString name)
{
    return findMaterialByName(m_softwareMatMap, name);
}

bool MaterialLibraryManager::hasProjectMatID(int id)
{
    return !findLiveMaterial(m_projectMatMap, id).isNull();
}

bool MaterialLibraryManager::hasSoftwareMatID(int id)
{
    return !findLiveMaterial(m_softwareMatMap, id).isNull();
}

bool MaterialLibraryManager::hasSameName(QString name, int id, MaterialLibType type)
{
    return isNameRefused(m_softwareMatMap, m_projectMatMap, type, name, &id);
}

bool MaterialLibraryManager::hasSameName(QString name, MaterialLibType type)
{
    return isNameRefused(m_softwareMatMap, m_projectMatMap, type, name, nullptr);
}

int MaterialLibraryManager::getNextMatIDByType(MaterialLibType type)
{
    switch (type) {
    case BaseModule::SoftwareLib:
        return getSoftwareLibNextMatID();
    case BaseModule::ProjectLib:
        return getProjectLibNextMatID();
    }
    return -1;
}

QMap<int, QSharedPointer<MaterialData>> MaterialLibraryManager::getMatLibDataByType(MaterialLibType type)
{
    switch (type) {
    case BaseModule::SoftwareLib:
        return getSoftwareMatData();
    case BaseModule::ProjectLib:
        return getProjectMatData();
    }
    return {};
}

QMap<int, QSharedPointer<MaterialData>> MaterialLibraryManager::getSoftwareMatData()
{
    return m_softwareMatMap;
}

QMap<int, QSharedPointer<MaterialData>> MaterialLibraryManager::getProjectMatData()
{
    return m_projectMatMap;
}

int MaterialLibraryManager::getSoftwareLibNextMatID()
{
    return m_softwareNextMatID;
}

int MaterialLibraryManager::getProjectLibNextMatID()
{
    return m_projectNextMatID;
}

bool MaterialLibraryManager::importMaterial(MaterialLibType fromType, QList<int> ids)
{
    const MaterialLibrary software{m_softwareMatMap, m_softwareNextMatID, softwareLibraryKind};
    const MaterialLibrary project{m_projectMatMap, m_projectNextMatID, projectLibraryKind};
    if (fromType != BaseModule::SoftwareLib && fromType != BaseModule::ProjectLib) {
        showError(QT_TRANSLATE_NOOP("QObject", "Import material fail! materail library type : %1 is not exist!"),
                  fromType);
        return false;
    }
    const bool isIntoProject = fromType == BaseModule::SoftwareLib;
    if (!importMaterials(isIntoProject ? software : project, isIntoProject ? project : software, ids)) {
        return false;
    }
    if (isIntoProject) {
        writeProjectMatConfig();
    } else {
        saveSoftwareMaterial();
    }
    return true;
}

bool MaterialLibraryManager::importAllMaterial(MaterialLibType fromType)
{
    switch (fromType) {
    case BaseModule::SoftwareLib:
        return importMaterial(fromType, liveMaterialIDs(m_softwareMatMap));
    case BaseModule::ProjectLib:
        return importMaterial(fromType, liveMaterialIDs(m_projectMatMap));
    }
    return importMaterial(fromType, {});
}

QString MaterialLibraryManager::getMatDesByID(int id)
{
    return describeMaterial(findMaterial(m_projectMatMap, id).data());
}

QString MaterialLibraryManager::convertMaterialPropertToQString(QSharedPointer<MaterialPropertyData>& data)
{
    return data.isNull() ? QString() : MaterialPropertyText::write(*data);
}

QSharedPointer<MaterialPropertyData> MaterialLibraryManager::convertQStringToMaterialPropertyData(QString text)
{
    return MaterialPropertyText::read(text);
}

} // namespace DataManager
