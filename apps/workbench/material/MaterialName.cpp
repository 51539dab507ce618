// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/MaterialName.h>

#include <workbench/material/MaterialLibraries.h>

#include <datamanager/material/MaterialLibraryManager.h>

#include <configoption/ConfigManager.h>
#include <datamodel/MaterialData.h>

#include <QCoreApplication>

namespace Workbench {

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::MaterialName)
};

/// The live material with the name, other than `id`.
Materials::Material holderOf(BaseModule::MaterialLibType type, const QString& name, int id)
{
    for (const Materials::Material& material : MaterialLibraries::materials(type)) {
        if (material->id != id && (material->englishName == name || material->chineseName == name)) {
            return material;
        }
    }
    return {};
}

} // namespace

QString materialTitle(const DataModel::MaterialData& material)
{
    const bool isChinese = ConfigOption::ConfigManager::getInstance()->getLanguage() == QLatin1String("Chinese");
    return isChinese ? material.chineseName : material.englishName;
}

QString fillingTitle(int projectID)
{
    if (projectID == 0) {
        return Texts::tr("free space");
    }
    const Materials::Material material = MaterialLibraries::material(BaseModule::ProjectLib, projectID);
    return material.isNull() ? Texts::tr("material %1, which is missing").arg(projectID) : materialTitle(*material);
}

QString materialNameRefusal(BaseModule::MaterialLibType type, const QString& name, int id)
{
    if (name.trimmed().isEmpty()) {
        return Texts::tr("A material needs an English and a Chinese name.");
    }
    if (!DataManager::MaterialLibraryManager::getInstance()->hasSameName(name, id, type)) {
        return {};
    }
    if (const Materials::Material holder = holderOf(type, name, id)) {
        return Texts::tr("Material %1 of the same library is already called '%2'.").arg(holder->id).arg(name);
    }
    return Texts::tr("'%1' is reserved: it names the default material, which fills every volume without a material.")
        .arg(name);
}

QString libraryTitle(BaseModule::MaterialLibType type)
{
    return type == BaseModule::ProjectLib ? Texts::tr("Project library") : Texts::tr("Software library");
}

} // namespace Workbench
