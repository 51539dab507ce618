// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/ItemSet.h>

namespace Workbench {
namespace {

constexpr unsigned wordBits = 64;

quint64 maskOf(unsigned place)
{
    return Q_UINT64_C(1) << (place % wordBits);
}

} // namespace

ItemSet& ItemSet::operator=(const ItemSet& other)
{
    if (this != &other) {
        m_pages = other.m_pages;
        m_last = m_pages.end();
        m_count = other.m_count;
    }
    return *this;
}

ItemSet::Pages::iterator ItemSet::page(const Key& key)
{
    if (m_last == m_pages.end() || m_last->first != key) {
        m_last = m_pages.find(key);
    }
    return m_last;
}

bool ItemSet::insert(const Item& item)
{
    const auto second = static_cast<quint32>(item.second);
    const Key key(item.first, second >> pageBits);
    if (page(key) == m_pages.end()) {
        m_last = m_pages.try_emplace(key).first;
    }
    const unsigned place = second % (1U << pageBits);
    quint64& word = m_last->second.bits[place / wordBits];
    const bool isNew = (word & maskOf(place)) == 0;
    word |= maskOf(place);
    m_last->second.count += isNew ? 1 : 0;
    m_count += isNew ? 1U : 0U;
    return isNew;
}

bool ItemSet::remove(const Item& item)
{
    const auto second = static_cast<quint32>(item.second);
    const Pages::iterator found = page({item.first, second >> pageBits});
    return found != m_pages.end() && remove(found, second % (1U << pageBits));
}

bool ItemSet::remove(Pages::iterator page, unsigned place)
{
    quint64& word = page->second.bits[place / wordBits];
    if ((word & maskOf(place)) == 0) {
        return false;
    }
    word &= ~maskOf(place);
    --m_count;
    if (--page->second.count == 0) {
        m_pages.erase(page);
        m_last = m_pages.end();
    }
    return true;
}

bool ItemSet::contains(const Item& item) const
{
    const auto second = static_cast<quint32>(item.second);
    const auto found = m_pages.find({item.first, second >> pageBits});
    const unsigned place = second % (1U << pageBits);
    return found != m_pages.end() && (found->second.bits[place / wordBits] & maskOf(place)) != 0;
}

std::vector<int> ItemSet::secondsOf(int first) const
{
    std::vector<int> seconds;
    for (auto page = m_pages.lower_bound({first, 0}); page != m_pages.end() && page->first.first == first; ++page) {
        for (unsigned place = 0; place < 1U << pageBits; ++place) {
            if ((page->second.bits[place / wordBits] & maskOf(place)) != 0) {
                seconds.push_back(static_cast<int>((page->first.second << pageBits) | place));
            }
        }
    }
    return seconds;
}

} // namespace Workbench
