// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/selection/private/Matching.h>

namespace DataManager {

/// The pairs of the model's items with these first identifiers, which have no wildcards, identifier by identifier. An
/// identifier that occurs twice collects its items twice.
PairList collectPairs(const RecordList& items, BaseModule::SelectModel model, const QList<int>& firstIDList);

} // namespace DataManager
