// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <selection/Operation.h>

/// One of the things that a user does in a long session, drawn by the dice; over all managers. What is kept stays
/// small: some materials, some systems, some hundreds of selected items.
void doDeed(Dice& dice);

/// Opens one of a few projects: what another one left is cleared, then its materials and coordinate systems are loaded.
void reopenProject(Dice& dice);

/// Where the projects lie; they are made on first use.
void setProjectsDirectory(const QString& directory);
