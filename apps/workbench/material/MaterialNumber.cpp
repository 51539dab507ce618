// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/MaterialNumber.h>

#include <workbench/geometry/GeometryManager.h>
#include <workbench/material/MaterialLibraries.h>
#include <workbench/material/MaterialName.h>

#include <datamanager/material/MaterialLibraryManager.h>

#include <datamodel/MaterialData.h>

#include <QCoreApplication>

namespace Workbench {

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::MaterialNumber)
};

QString numberRefusal(BaseModule::MaterialLibType type, int id)
{
    if (const Materials::Material holder = MaterialLibraries::material(type, id)) {
        return Texts::tr("A new material would get number %1 and replace '%2': the numbers of this library have gaps. "
                         "To make room, copy '%2' to the other library and delete it here; afterwards copy it back "
                         "and assign it again.")
            .arg(id)
            .arg(materialTitle(*holder));
    }
    GeometryManager& geometry = *GeometryManager::instance();
    const QList<int> volumes = geometry.findComponentsOfMaterial(id);
    if (type != BaseModule::ProjectLib || volumes.isEmpty()) {
        return {};
    }
    return Texts::tr(
               "A new material would get number %1, which volume '%2' has from a material that is missing. Give the "
               "volumes with this number another material, or make them free space, first.")
        .arg(id)
        .arg(geometry.getComponentName(volumes.first()));
}

} // namespace

QString materialNumberRefusal(BaseModule::MaterialLibType type, int count)
{
    const int next = DataManager::MaterialLibraryManager::getInstance()->getNextMatIDByType(type);
    QString refusal;
    for (int i = 0; i < count && refusal.isEmpty(); ++i) {
        refusal = numberRefusal(type, next + i);
    }
    return refusal;
}

} // namespace Workbench
