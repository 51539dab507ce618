// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/coordinates/CoordinateDefinition.h>

namespace DataManager {
class RelativeCoordinateSystem;
}

namespace Workbench {

/// A new record, not registered yet, whose chains are those of its basic system and one level of its own. It belongs to
/// the caller.
DataManager::RelativeCoordinateSystem* newCoordinateRecord(int id, int basicID, const CoordinateDefinition& definition);

/// The record's own level, which is the last one of each chain. What is missing there has its default.
CoordinateDefinition coordinateDefinition(const DataManager::RelativeCoordinateSystem& record);

/// Builds the record's chains anew: those of its basic system and one level of its own. Its identifier is above 0.
void rebaseCoordinateRecord(DataManager::RelativeCoordinateSystem& record, const CoordinateDefinition& definition);

/// Gives the levels of this owner in the record's chains new values. Other levels stay.
void changeCoordinateLevel(DataManager::RelativeCoordinateSystem& record, int ownerID,
                           const CoordinateDefinition& definition);

} // namespace Workbench
