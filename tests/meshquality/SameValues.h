// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>
#include <QVector>

#include <cstring>

/// Comparison to the last bit; any NaN equals any other.
namespace SameValues {

inline bool same(double a, double b)
{
    return (a != a && b != b) || std::memcmp(&a, &b, sizeof a) == 0;
}
inline bool same(float a, float b)
{
    return (a != a && b != b) || std::memcmp(&a, &b, sizeof a) == 0;
}
inline bool same(int a, int b)
{
    return a == b;
}

template <class List>
auto same(const List& a, const List& b) -> decltype(a.size() == b.size())
{
    if (a.size() != b.size()) {
        return false;
    }
    for (auto i = a.size() - a.size(); i < a.size(); ++i) {
        if (!same(a[i], b[i])) {
            return false;
        }
    }
    return true;
}

} // namespace SameValues
