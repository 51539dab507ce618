// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/CoordinateSystemType.h>

#include <QString>

namespace DataManager {
class RelativeCoordinateSystem;
}

namespace Workbench {

/// "Spindle"; the global system's name in the interface language.
QString coordinateName(const DataManager::RelativeCoordinateSystem& system);

/// "Spindle (3)"
QString coordinateTitle(const DataManager::RelativeCoordinateSystem& system);

/// "Cylindrical"; the number for a type that is not known.
QString coordinateTypeTitle(BaseModule::CoordinateSystemType type);

/// Why a system must not get the name, for the user; empty when it may. `id` is the system to be renamed, 0 for a new
/// one.
QString coordinateNameRefusal(const QString& name, int id);

} // namespace Workbench
