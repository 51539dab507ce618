// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <vector>

namespace Workbench {

/// The numbers by which elements are known, and their places in the mesh.
///
/// They are those of the mesh file where these are positive and all different; otherwise the places, counted from 1,
/// because a number has to name one element and a negative one would be taken for a wildcard.
class ElementNumbers
{
public:
    ElementNumbers() = default;
    explicit ElementNumbers(std::vector<int> tags);

    int count() const { return static_cast<int>(m_tags.size()); }
    bool areTags() const { return m_areTags; }
    /// The number of the element at `place`, which lies in the mesh.
    int number(int place) const { return m_areTags ? m_tags[static_cast<std::size_t>(place)] : place + 1; }
    /// The place of the element with that number; -1 when there is none.
    int place(int number) const;

private:
    void sortPlaces();

    std::vector<int> m_tags;
    /// Places by rising tag; empty while the tags rise by themselves.
    std::vector<int> m_order;
    bool m_areTags = true;
};

} // namespace Workbench
