// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/ElementNumbers.h>

#include <algorithm>
#include <numeric>
#include <utility>

namespace Workbench {

ElementNumbers::ElementNumbers(std::vector<int> tags) : m_tags(std::move(tags))
{
    const auto notRising = [](int a, int b) { return a >= b; };
    if (std::adjacent_find(m_tags.begin(), m_tags.end(), notRising) != m_tags.end()) {
        sortPlaces();
    } else {
        m_areTags = m_tags.empty() || m_tags.front() > 0;
    }
}

void ElementNumbers::sortPlaces()
{
    const auto tag = [this](int place) { return m_tags[static_cast<std::size_t>(place)]; };
    m_order.resize(m_tags.size());
    std::iota(m_order.begin(), m_order.end(), 0);
    std::sort(m_order.begin(), m_order.end(), [tag](int a, int b) { return tag(a) < tag(b); });
    const auto same = [tag](int a, int b) { return tag(a) == tag(b); };
    m_areTags = tag(m_order.front()) > 0 && std::adjacent_find(m_order.begin(), m_order.end(), same) == m_order.end();
}

int ElementNumbers::place(int number) const
{
    if (!m_areTags) {
        return number >= 1 && number <= count() ? number - 1 : -1;
    }
    if (m_order.empty()) {
        const auto found = std::lower_bound(m_tags.begin(), m_tags.end(), number);
        return found != m_tags.end() && *found == number ? static_cast<int>(found - m_tags.begin()) : -1;
    }
    const auto before = [this](int place, int wanted) { return m_tags[static_cast<std::size_t>(place)] < wanted; };
    const auto found = std::lower_bound(m_order.begin(), m_order.end(), number, before);
    return found != m_order.end() && m_tags[static_cast<std::size_t>(*found)] == number ? *found : -1;
}

} // namespace Workbench
