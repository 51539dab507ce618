// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/selection/private/Matching.h>

namespace DataManager {

/// A clearing of the whole selection that tells of its items one by one. Until it is done, an item that it has returned
/// to the pool keeps its place at the front of the list. A listener may change the list meanwhile: every such change
/// first calls settle(), so that no record is in the list and free for reuse at once.
class UnfinishedClear
{
public:
    /// Begins to clear the items that the list now holds. `items` must outlive this object, and no other clearing of it
    /// may be under way.
    explicit UnfinishedClear(RecordList& items);
    /// Drops the cleared items from the list.
    ~UnfinishedClear();
    Q_DISABLE_COPY_MOVE(UnfinishedClear)

    /// The next item to clear; null when none is left. From now on it counts as cleared.
    DataModel::SelectedDataBase* next();

    /// Whether a clearing of this list has begun and not ended.
    static bool isUnderWay(const RecordList& items);
    /// Drops the cleared items from the list in the midst of its clearing.
    static void settle(RecordList& items);
    /// Drops the null entries from the list, the first of which is at `position` or behind it.
    static void dropRemoved(RecordList& items, int position = 0);

private:
    static UnfinishedClear* of(const RecordList& items);

    RecordList& m_items;
    /// This many items at the front of the list are cleared.
    int m_clearedCount = 0;
    /// Items before this position were selected when the clearing began; those behind it came later, and stay.
    int m_end;
    /// The clearing of another list in whose midst this one began.
    UnfinishedClear* const m_outer;

    static UnfinishedClear* m_innermost;
};

} // namespace DataManager
