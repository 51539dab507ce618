// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/MaterialLibraries.h>

#include <workbench/material/MaterialFavourites.h>
#include <workbench/material/ProjectMaterials.h>
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
    const Materials::Material old = MaterialLibraries::material(type, id);
    const QString oldName = old.isNull() ? content.englishName : old->englishName;
    (manager().*update)(id, content.chineseName, content.englishName, content.property1, content.property2,
                        content.property3, content.property4, content.property5);
    MaterialFavourites::rename(type, oldName, content.englishName);
}

QSet<int> projectIDs()
{
    QSet<int> ids;
    for (const Materials::Material& material : MaterialLibraries::materials(BaseModule::ProjectLib)) {
        ids.insert(material->id);
    }
    return ids;
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
    // A deletion, by somebody else too. Those of our own are told when they are complete.
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_delMatUpdateGeometryData, this, [this](int id) {
        m_origins.forget(id);
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
    const QSet<int> before = projectIDs();
    save(type, [&] {
        (manager().*create)(content.chineseName, content.englishName, content.property1, content.property2,
                            content.property3, content.property4, content.property5);
        noteOrigins(before, {});
    });
}

void MaterialLibraries::update(Type type, int id, const DataModel::MaterialData& content)
{
    save(type, [&] {
        updateInLibrary(type, id, content);
        if (type == BaseModule::ProjectLib) {
            m_origins.markEdited(id);
            m_origins.write();
        }
    });
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
        if (type == BaseModule::ProjectLib) {
            m_origins.write();
        }
    });
}

// What is new in the project is one of the sources, whose names are unique, or was made here.
void MaterialLibraries::noteOrigins(const QSet<int>& before, const QList<Materials::Material>& sources)
{
    using Origin = MaterialOrigins::Origin;
    const QSet<int> added = projectIDs() - before;
    for (const int id : added) {
        const QString name = material(BaseModule::ProjectLib, id)->englishName;
        const auto source = std::find_if(sources.begin(), sources.end(),
                                         [&name](const auto& other) { return other->englishName == name; });
        m_origins.set(id, source == sources.end() ? Origin{Origin::Created, 0, {}, false}
                                                  : Origin{Origin::Software, (*source)->id, name, false});
    }
    if (!added.isEmpty()) {
        m_origins.write();
    }
}

void MaterialLibraries::import(Type from, const QList<int>& newIDs, const QList<QPair<int, int>>& updates)
{
    const QSet<int> before = projectIDs();
    save(otherLibrary(from), [&] {
        if (!newIDs.isEmpty()) {
            manager().importMaterial(from, newIDs);
            noteOrigins(before, materials(BaseModule::SoftwareLib));
        }
        for (const QPair<int, int>& ids : updates) {
            if (const Materials::Material source = material(from, ids.first)) {
                updateInLibrary(otherLibrary(from), ids.second, *source);
                noteReplaced(from, ids.second, *source);
            }
        }
    });
}

void MaterialLibraries::noteReplaced(Type from, int id, const DataModel::MaterialData& source)
{
    if (from == BaseModule::SoftwareLib) {
        m_origins.set(id, {MaterialOrigins::Origin::Software, source.id, source.englishName, false});
        m_origins.write();
    }
}

void MaterialLibraries::loadProject()
{
    manager().initProjectMaterial();
    m_origins.read();
    Q_EMIT changed(BaseModule::ProjectLib);
}

bool MaterialLibraries::saveProject()
{
    if (!isProjectInFile(manager().getMatLibDataByType(BaseModule::ProjectLib))) {
        const SaveWatch watch;
        manager().writeProjectMatConfig();
        if (!watch.lines().isEmpty()) {
            return false;
        }
    }
    return m_origins.write();
}

void MaterialLibraries::clearProject()
{
    manager().clearProjectMaterial();
    m_origins.clear();
    Q_EMIT changed(BaseModule::ProjectLib);
}

} // namespace Workbench
