// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/MaterialLibraries.h>

#include <workbench/material/SaveWatch.h>

#include <datamanager/material/MaterialLibraryManager.h>

#include <basemodule/IBaseSignal.h>
#include <datamodel/MaterialData.h>

#include <algorithm>
#include <functional>

namespace Workbench {

using BaseModule::IBaseSignal;
using DataManager::MaterialLibraryManager;

namespace {

MaterialLibraryManager& manager()
{
    return *MaterialLibraryManager::getInstance();
}

void updateInLibrary(BaseModule::MaterialLibType type, int id, const DataModel::MaterialData& content)
{
    const auto update = type == BaseModule::ProjectLib ? &MaterialLibraryManager::updateProjectMat
                                                       : &MaterialLibraryManager::updateSoftwareMat;
    (manager().*update)(id, content.chineseName, content.englishName, content.property1, content.property2,
                        content.property3, content.property4, content.property5);
}

} // namespace

BaseModule::MaterialLibType otherLibrary(BaseModule::MaterialLibType type)
{
    return type == BaseModule::SoftwareLib ? BaseModule::ProjectLib : BaseModule::SoftwareLib;
}

MaterialLibraries* MaterialLibraries::instance()
{
    static MaterialLibraries* const libraries = new MaterialLibraries;
    return libraries;
}

MaterialLibraries::MaterialLibraries()
{
    // A deletion by somebody else. Those of our own are told when they are complete.
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_delMatUpdateGeometryData, this, [this] {
        if (!m_isEditing) {
            tell(BaseModule::ProjectLib);
        }
    });
}

QList<Materials::Material> MaterialLibraries::materials(Type type)
{
    QList<Materials::Material> live = manager().getMatLibDataByType(type).values();
    live.erase(std::remove_if(live.begin(), live.end(), [](const auto& material) { return material->isDeleted; }),
               live.end());
    return live;
}

Materials::Material MaterialLibraries::material(Type type, int id)
{
    const auto get = type == BaseModule::ProjectLib ? &MaterialLibraryManager::getProjectMatByID
                                                    : &MaterialLibraryManager::getSoftwareMatByID;
    const Materials::Material found = (manager().*get)(id);
    return found.isNull() || found->isDeleted ? Materials::Material() : found;
}

void MaterialLibraries::save(Type type, const std::function<void()>& edit)
{
    QStringList failures;
    {
        const SaveWatch watch;
        m_isEditing = true;
        edit();
        m_isEditing = false;
        failures = watch.lines();
    }
    tell(type);
    for (const QString& failure : qAsConst(failures)) {
        IBaseSignal::getInstance()->signal_showMessageType(
            2, tr("The change is not in the library's file yet. %1").arg(failure));
    }
}

void MaterialLibraries::tell(Type type)
{
    Q_EMIT changed(type);
    if (type == BaseModule::ProjectLib) {
        Q_EMIT IBaseSignal::getInstance()->signal_updateWindowTitle();
    }
}

void MaterialLibraries::create(Type type, const DataModel::MaterialData& content)
{
    const auto create = type == BaseModule::ProjectLib ? &MaterialLibraryManager::createProjectMat
                                                       : &MaterialLibraryManager::createSoftwareMat;
    save(type, [&] {
        (manager().*create)(content.chineseName, content.englishName, content.property1, content.property2,
                            content.property3, content.property4, content.property5);
    });
}

void MaterialLibraries::update(Type type, int id, const DataModel::MaterialData& content)
{
    save(type, [&] { updateInLibrary(type, id, content); });
}

void MaterialLibraries::remove(Type type, QList<int> ids)
{
    const auto remove = type == BaseModule::ProjectLib ? &MaterialLibraryManager::deleteProjectMat
                                                       : &MaterialLibraryManager::deleteSoftwareMat;
    std::sort(ids.begin(), ids.end(), std::greater<int>());
    save(type, [&] {
        for (const int id : qAsConst(ids)) {
            (manager().*remove)(id);
        }
    });
}

void MaterialLibraries::import(Type from, const QList<int>& newIDs, const QList<QPair<int, int>>& updates)
{
    save(otherLibrary(from), [&] {
        if (!newIDs.isEmpty()) {
            manager().importMaterial(from, newIDs);
        }
        for (const QPair<int, int>& ids : updates) {
            if (const Materials::Material source = material(from, ids.first)) {
                updateInLibrary(otherLibrary(from), ids.second, *source);
            }
        }
    });
}

void MaterialLibraries::loadProject()
{
    manager().initProjectMaterial();
    Q_EMIT changed(BaseModule::ProjectLib);
}

void MaterialLibraries::clearProject()
{
    manager().clearProjectMaterial();
    Q_EMIT changed(BaseModule::ProjectLib);
}

} // namespace Workbench
