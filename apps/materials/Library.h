// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <materials/LibraryName.h>
#include <materials/Material.h>

#include <QList>
#include <QString>

namespace Materials {

/// Opens a library through the material manager. A text says why that is impossible, with the place; empty on success.
/// `mayBeMissing` opens an empty library where there is no file.
QString openLibrary(const LibraryName& name, bool isPlain, bool mayBeMissing);

/// The materials of an opened library in ascending order of identifiers, tombstones included.
QList<Material> materialsOf(const LibraryName& name);

/// The live material with this identifier or name; null when there is none.
Material findMaterial(const QList<Material>& materials, const QString& identifierOrName);

/// Adds a material to the opened library, or changes the one under `id`. Saves it.
void createMaterial(const LibraryName& name, const DataModel::MaterialData& material);
void updateMaterial(const LibraryName& name, int id, const DataModel::MaterialData& material);

} // namespace Materials
