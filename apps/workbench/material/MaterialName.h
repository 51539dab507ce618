// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/MaterialLibType.h>

#include <QString>

namespace DataModel {
class MaterialData;
}

namespace Workbench {

/// The material's name in the interface language.
QString materialTitle(const DataModel::MaterialData& material);

/// What fills a volume that refers to this material of the project: its name, "free space" for 0, and what is missing
/// where the library has no such material.
QString fillingTitle(int projectID);

/// Why a material of this library must not get the name, for the user; empty when it may. `id` is the material to be
/// renamed, 0 for a new one.
QString materialNameRefusal(BaseModule::MaterialLibType type, const QString& name, int id);

/// "Software library" or "Project library", for the user.
QString libraryTitle(BaseModule::MaterialLibType type);

} // namespace Workbench
