// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

namespace Workbench {

/// What is selected, under a name: volumes or faces become a set of the GeometryManager, elements a group of their
/// mesh.
namespace NamedSelections {

/// Whether something is selected that can have a name.
bool canName();
/// A name that is not taken yet.
QString proposedName();
/// False, with a message, when the name is empty or taken, or nothing is selected that can have a name.
bool create(const QString& name);

/// Selects the members of a set that may be picked, in place of what is selected; one step of undo.
void selectSet(int setID);

/// False, with a message, when the name is empty or taken.
bool renameSet(int setID, const QString& name);
bool renameGroup(int kernelID, int groupID, const QString& name);
bool renameVolume(int componentID, const QString& name);

} // namespace NamedSelections

} // namespace Workbench
