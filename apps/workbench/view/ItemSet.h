// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QPair>
#include <QtGlobal>

#include <array>
#include <cstddef>
#include <map>
#include <utility>
#include <vector>

namespace Workbench {

/// A set of pairs of identifiers. Millions of pairs with near second identifiers, as the elements of a mesh have, take
/// a bit each, and coming and going in ascending order they take no search.
class ItemSet
{
public:
    using Item = QPair<int, int>;

    ItemSet() = default;
    ItemSet(const ItemSet& other) : m_pages(other.m_pages), m_count(other.m_count) {}
    ItemSet& operator=(const ItemSet& other);

    /// False when it is there already.
    bool insert(const Item& item);
    /// False when it is not there.
    bool remove(const Item& item);
    bool contains(const Item& item) const;
    bool isEmpty() const { return m_count == 0; }
    std::size_t count() const { return m_count; }
    /// The second identifiers that stand beside that first one; those that are not negative rise.
    std::vector<int> secondsOf(int first) const;

private:
    static constexpr unsigned pageBits = 10;

    struct Page
    {
        std::array<quint64, (1U << pageBits) / 64> bits{};
        int count = 0;
    };

    using Key = std::pair<int, quint32>;
    using Pages = std::map<Key, Page>;

    Pages::iterator page(const Key& key);
    bool remove(Pages::iterator page, unsigned place);

    Pages m_pages;
    /// The page that was changed last, or the end.
    Pages::iterator m_last = m_pages.end();
    std::size_t m_count = 0;
};

} // namespace Workbench
