// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/selection/private/Matching.h>
#include <datamanager/selection/private/RecordPool.h>

namespace DataManager {

// Each of these takes items out of the list and puts their records back into the pool, in the order in which it finds
// them. The list must be settled (UnfinishedClear::settle).

/// The item at `position`.
void removeItem(RecordList& items, RecordPool& pool, int position);

/// All items that match, from the last to the first.
void removeMatches(RecordList& items, RecordPool& pool, BaseModule::SelectModel model, int firstID, int secondID);

/// All items that match a pair, pair by pair, those of one pair from the last to the first.
void removeAllMatches(RecordList& items, RecordPool& pool, BaseModule::SelectModel model, const PairList& pairs);

/// The first item that matches, pair by pair. Returns the pairs that had one.
PairList removeFirstMatches(RecordList& items, RecordPool& pool, BaseModule::SelectModel model, const PairList& pairs);

} // namespace DataManager
