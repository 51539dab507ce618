// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <materials/Material.h>

#include <QByteArray>
#include <QJsonObject>
#include <QList>

/// Materials as JSON, in the form of the library files.
namespace Materials {

QJsonObject materialJson(const DataModel::MaterialData& material);

/// A whole library file with these materials.
QByteArray libraryJson(const QList<Material>& materials);

/// The live materials of a library file. `fault` says, with its place, why there are none; empty on success.
QList<Material> readMaterialJson(const QString& path, const QByteArray& json, QString& fault);

} // namespace Materials
