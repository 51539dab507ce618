// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/selection/private/Prefetch.h>

#include <QtGlobal>

#include <cstddef>
#include <vector>

namespace DataManager {

/// List positions by key, in one block of memory that is at most half full. Holds no more keys than it was made
/// for.
class KeyTable
{
public:
    explicit KeyTable(std::size_t keyCount) : m_slots(slotCount(keyCount)) {}

    /// The position filed under the key; null when the key is new.
    int* find(quint64 key)
    {
        Slot& slot = slotOf(key);
        return slot.position == unused ? nullptr : &slot.position;
    }

    /// The position filed under the key, -1 when the key is new.
    int& operator[](quint64 key)
    {
        Slot& slot = slotOf(key);
        if (slot.position == unused) {
            slot = {static_cast<quint32>(key), static_cast<quint32>(key >> 32), -1};
        }
        return slot.position;
    }

    /// The key will be looked up soon: fetches its slot into the cache meanwhile. Changes nothing.
    void prefetch(quint64 key) const { prefetchMemory(&m_slots[scattered(key) & (m_slots.size() - 1)]); }

private:
    static constexpr int unused = -2;

    struct Slot
    {
        bool holds(quint64 key) const { return (quint64(high) << 32 | low) == key; }

        // In two halves, without which the slot would take a third more memory.
        quint32 low = 0;
        quint32 high = 0;
        int position = unused;
    };

    static std::size_t slotCount(std::size_t keyCount)
    {
        std::size_t count = 16;
        while (count < 2 * keyCount) {
            count *= 2;
        }
        return count;
    }

    /// The key's slot, or the free one where it belongs: half of the slots are free, so the search ends.
    Slot& slotOf(quint64 key)
    {
        const std::size_t mask = m_slots.size() - 1;
        std::size_t place = scattered(key) & mask;
        while (m_slots[place].position != unused && !m_slots[place].holds(key)) {
            place = (place + 1) & mask;
        }
        return m_slots[place];
    }

    /// Identifiers come in runs and in grids; multiply and fold, so that neither piles up in neighbouring slots.
    static std::size_t scattered(quint64 key)
    {
        key = (key ^ (key >> 32)) * 0xd6e8feb86659fd93U;
        key = (key ^ (key >> 32)) * 0xd6e8feb86659fd93U;
        return static_cast<std::size_t>(key ^ (key >> 32));
    }

    std::vector<Slot> m_slots;
};

} // namespace DataManager
