// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/Library.h>

#include <materials/LibraryText.h>

#include <datamanager/material/MaterialLibraryManager.h>

#include <basemodule/GlobalConfig.h>
#include <basemodule/GlobalHelper.h>
#include <datamodel/MaterialData.h>

#include <QCoreApplication>
#include <QFileInfo>

namespace Materials {

namespace {

DataManager::MaterialLibraryManager& manager()
{
    return *DataManager::MaterialLibraryManager::getInstance();
}

bool isProject(const LibraryName& name)
{
    return name.type == BaseModule::ProjectLib;
}

} // namespace

QString openLibrary(const LibraryName& name, bool isPlain, bool mayBeMissing)
{
    GlobalConfig::setIsDevelop(isPlain);
    if (isProject(name) && !QFileInfo(name.directory).isDir()) {
        return QCoreApplication::translate("materials", "%1: no such directory").arg(name.directory);
    }
    const bool isMissing = !QFileInfo::exists(name.path());
    if (!isMissing || !mayBeMissing) {
        QString fault = readLibraryText(name.path(), isProject(name) && !isPlain).fault;
        if (!fault.isEmpty()) {
            return fault;
        }
    }
    if (isProject(name)) {
        BaseModule::GlobalHelper::setProjectTempIODir(name.directory);
        manager().initProjectMaterial();
    }
    return {};
}

QList<Material> materialsOf(const LibraryName& name)
{
    return manager().getMatLibDataByType(name.type).values();
}

Material findMaterial(const QList<Material>& materials, const QString& identifierOrName)
{
    bool isIdentifier = false;
    const int id = identifierOrName.toInt(&isIdentifier);
    for (const Material& material : materials) {
        const bool isNamed = material->englishName == identifierOrName || material->chineseName == identifierOrName;
        if (!material->isDeleted && (isNamed || (isIdentifier && material->id == id))) {
            return material;
        }
    }
    return {};
}

void createMaterial(const LibraryName& name, const DataModel::MaterialData& material)
{
    const auto create = isProject(name) ? &DataManager::MaterialLibraryManager::createProjectMat
                                        : &DataManager::MaterialLibraryManager::createSoftwareMat;
    (manager().*create)(material.chineseName, material.englishName, material.property1, material.property2,
                        material.property3, material.property4, material.property5);
}

void updateMaterial(const LibraryName& name, int id, const DataModel::MaterialData& material)
{
    const auto update = isProject(name) ? &DataManager::MaterialLibraryManager::updateProjectMat
                                        : &DataManager::MaterialLibraryManager::updateSoftwareMat;
    (manager().*update)(id, material.chineseName, material.englishName, material.property1, material.property2,
                        material.property3, material.property4, material.property5);
}

} // namespace Materials
