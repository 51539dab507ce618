// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/selection/private/Matching.h>

namespace DataManager {

/// Those pairs of a list that a call acted on. Shares the list's memory for as long as none was passed over.
class AcceptedPairs
{
public:
    explicit AcceptedPairs(const PairList& candidates) : m_candidates(candidates), m_pairs(candidates) {}

    /// Every position of the list is accepted or rejected once, in ascending order.
    void accept(int position)
    {
        if (!m_isWhole) {
            m_pairs.append(m_candidates.at(position));
        }
    }

    void reject(int position)
    {
        if (m_isWhole) {
            m_isWhole = false;
            m_pairs = m_candidates.mid(0, position);
        }
    }

    const PairList& pairs() const { return m_pairs; }

private:
    const PairList m_candidates;
    PairList m_pairs;
    bool m_isWhole = true;
};

} // namespace DataManager
