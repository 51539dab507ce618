// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <vector>

namespace DataManager {

/// Asks the system for large pages below these bytes, where it has them. Their contents stay as they are.
void preferLargePages(void* bytes, std::size_t size);

/// Reserves room that takes no memory before it is filled, and then little time.
template <class Entry>
void reserveInLargePages(std::vector<Entry>& entries, std::size_t count)
{
    entries.reserve(count);
    preferLargePages(entries.data(), entries.capacity() * sizeof(Entry));
}

} // namespace DataManager
