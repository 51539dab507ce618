// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/private/MaterialLibrary.h>

#include <datamanager/material/private/UserMessage.h>

#include <basemodule/IBaseSignal.h>
#include <datamodel/MaterialData.h>

#include <algorithm>

namespace DataManager {

namespace {

bool hasName(const DataModel::MaterialData& material, const QString& name)
{
    return material.chineseName == name || material.englishName == name;
}

bool isTombstone(const MaterialMap& materials, int id)
{
    const auto found = materials.constFind(id);
    return found != materials.constEnd() && found.value()->isDeleted;
}

void signalDeletion(const MaterialLibraryKind& kind, int id)
{
    if (kind.signalsDeletions) {
        Q_EMIT BaseModule::IBaseSignal::getInstance()->signal_delMatUpdateGeometryData(id);
    }
}

/// A listener created materials above the one being removed, so that this one is not the last any more: it stays as a
/// tombstone. Without it a later load would count one identifier too few.
void keepNumbering(MaterialLibrary& library, int id, const MaterialPointer& removed)
{
    if (library.nextID > id + 1 && !library.materials.contains(id)) {
        removed->isDeleted = true;
        library.materials.insert(id, removed);
    }
}

/// Listeners may change the library while they are told: then the rest is as they left it.
void removeLast(MaterialLibrary& library, int id)
{
    for (;;) {
        const MaterialPointer removed = library.materials.take(id);
        signalDeletion(library.kind, id);
        if (library.nextID != id + 1 || library.materials.contains(id)) {
            keepNumbering(library, id, removed);
            return;
        }
        --library.nextID;
        --id;
        if (!isTombstone(library.materials, id)) {
            return;
        }
    }
}

} // namespace

void MaterialLibrary::append(const DataModel::MaterialData& content)
{
    materials.insert(nextID, MaterialPointer::create(nextID, content.chineseName, content.englishName,
                                                     content.property1, content.property2, content.property3,
                                                     content.property4, content.property5));
    ++nextID;
}

bool MaterialLibrary::remove(int id)
{
    const MaterialPointer material = findLiveMaterial(materials, id);
    if (material.isNull()) {
        showError(kind.deleteFailure, id);
        return false;
    }
    // A loaded library may hold any identifier, also the largest int.
    if (qint64(id) + 1 == nextID) {
        removeLast(*this, id);
    } else {
        material->isDeleted = true;
        signalDeletion(kind, id);
    }
    return true;
}

MaterialPointer findMaterial(const MaterialMap& materials, int id)
{
    const auto found = materials.constFind(id);
    return found == materials.constEnd() ? MaterialPointer() : found.value();
}

MaterialPointer findMaterialByName(const MaterialMap& materials, const QString& name)
{
    const auto found = std::find_if(materials.begin(), materials.end(),
                                    [&name](const MaterialPointer& material) { return hasName(*material, name); });
    return found == materials.end() ? MaterialPointer() : *found;
}

MaterialPointer findLiveMaterial(const MaterialMap& materials, int id)
{
    const auto found = materials.constFind(id);
    return found == materials.constEnd() || found.value()->isDeleted ? MaterialPointer() : found.value();
}

QList<int> liveMaterialIDs(const MaterialMap& materials)
{
    QList<int> ids;
    for (auto entry = materials.constBegin(); entry != materials.constEnd(); ++entry) {
        if (!entry.value()->isDeleted) {
            ids.append(entry.key());
        }
    }
    return ids;
}

bool isMaterialNameTaken(const MaterialMap& materials, const QString& name, const int* exceptID)
{
    return std::any_of(materials.begin(), materials.end(), [&name, exceptID](const MaterialPointer& material) {
        const bool isLeftOut = exceptID != nullptr && material->id == *exceptID;
        return !material->isDeleted && !isLeftOut && hasName(*material, name);
    });
}

bool isReservedMaterialName(const QString& name)
{
    return name == QLatin1String("Free Space") || name == QStringLiteral("自由空间");
}

bool importMaterials(const MaterialLibrary& source, MaterialLibrary target, const QList<int>& ids)
{
    for (const int id : ids) {
        if (findLiveMaterial(source.materials, id).isNull()) {
            showError(source.kind.importFailure, id);
            return false;
        }
    }
    for (const int id : ids) {
        target.append(*findMaterial(source.materials, id));
    }
    return true;
}

} // namespace DataManager
