// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/selection/private/MatchIndex.h>

#include <optional>

namespace DataManager {

/// Which pairs of one list are selected already while that list is added: by a scan each when they are few, else with
/// an index.
class PairLookup
{
public:
    /// `items` and `pairs` must outlive this object.
    PairLookup(const RecordList& items, BaseModule::SelectModel model, const PairList& pairs)
        : m_items(items), m_model(model), m_pairs(pairs)
    {
        if (pairs.size() > mostScans) {
            m_index.emplace(items, model, MatchIndex::Order::LastToFirst, pairs.size());
        }
    }

    /// Whether an item matches the pair at `position`. Positions are asked for in ascending order.
    bool isSelected(int position)
    {
        const auto [firstID, secondID] = m_pairs.at(position);
        if (!m_index) {
            return firstMatch(m_items, m_model, firstID, secondID) >= 0;
        }
        m_index->expect(m_pairs, position);
        return m_index->find(firstID, secondID) >= 0;
    }

    /// The last item of the list is new.
    void append()
    {
        if (m_index) {
            m_index->append();
        }
    }

private:
    const RecordList& m_items;
    const BaseModule::SelectModel m_model;
    const PairList& m_pairs;
    std::optional<MatchIndex> m_index;
};

} // namespace DataManager
