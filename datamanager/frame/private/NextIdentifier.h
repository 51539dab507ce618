// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace DataManager {

/// The identifier after `last`. Wraps from the largest int to the smallest instead of overflowing.
inline int nextIdentifier(int last)
{
    return static_cast<int>(static_cast<unsigned int>(last) + 1U);
}

} // namespace DataManager
