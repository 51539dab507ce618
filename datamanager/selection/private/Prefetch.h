// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QtGlobal>

namespace DataManager {

/// Bulk calls ask for memory this many steps before they need it: a million items outgrow the cache, and waiting for
/// memory would be most of the time.
constexpr int lookahead = 12;

/// Asks for a place of memory, before it is needed and without waiting for it. Any address will do.
inline void prefetchMemory(const void* place)
{
#if defined(__GNUC__)
    __builtin_prefetch(place);
#else
    Q_UNUSED(place)
#endif
}

} // namespace DataManager
