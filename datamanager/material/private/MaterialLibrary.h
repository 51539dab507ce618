// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/material/private/MaterialLibraryKind.h>

#include <QList>
#include <QMap>
#include <QSharedPointer>
#include <QString>

namespace DataModel {
class MaterialData;
}

namespace DataManager {

using MaterialPointer = QSharedPointer<DataModel::MaterialData>;
using MaterialMap = QMap<int, MaterialPointer>;

/// One material library while an operation changes it: the manager's own map and counter, and what sets this library
/// apart from the other. The rules of numbering, lookup and import are the same for both.
struct MaterialLibrary
{
    MaterialMap& materials;
    int& nextID;
    const MaterialLibraryKind& kind;

    /// Stores a new live material with the names and property records of `content` under the next identifier, in place
    /// of any that is there already.
    void append(const DataModel::MaterialData& content);

    /// Makes a tombstone of a material, or removes the last one with the tombstones below it. False, after a message to
    /// the user, when there is no live material under `id`.
    bool remove(int id);
};

/// The material under an identifier, also when it is a tombstone; null if none.
MaterialPointer findMaterial(const MaterialMap& materials, int id);

/// The first material in ascending order of identifiers with this name, tombstones included; null if none.
MaterialPointer findMaterialByName(const MaterialMap& materials, const QString& name);

/// The material under an identifier unless it is a tombstone; null if none.
MaterialPointer findLiveMaterial(const MaterialMap& materials, int id);

/// In ascending order.
QList<int> liveMaterialIDs(const MaterialMap& materials);

/// Whether a live material has this name, leaving out the one whose record says `exceptID` when that is not null.
bool isMaterialNameTaken(const MaterialMap& materials, const QString& name, const int* exceptID);

/// The names of the default material, which no library may use.
bool isReservedMaterialName(const QString& name);

/// Copies live materials; false, with nothing copied, after a message to the user, when one of them is missing.
bool importMaterials(const MaterialLibrary& source, MaterialLibrary target, const QList<int>& ids);

} // namespace DataManager
