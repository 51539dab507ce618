// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/selection/private/UnfinishedClear.h>

#include <algorithm>

namespace DataManager {

UnfinishedClear* UnfinishedClear::m_innermost = nullptr;

UnfinishedClear::UnfinishedClear(RecordList& items) : m_items(items), m_end(items.size()), m_outer(m_innermost)
{
    m_innermost = this;
}

UnfinishedClear::~UnfinishedClear()
{
    settle(m_items);
    m_innermost = m_outer;
}

DataModel::SelectedDataBase* UnfinishedClear::next()
{
    return m_clearedCount < m_end ? m_items.at(m_clearedCount++) : nullptr;
}

bool UnfinishedClear::isUnderWay(const RecordList& items)
{
    return of(items) != nullptr;
}

void UnfinishedClear::settle(RecordList& items)
{
    UnfinishedClear* const clear = of(items);
    if (clear == nullptr || clear->m_clearedCount == 0) {
        return;
    }
    items.erase(items.begin(), items.begin() + clear->m_clearedCount);
    clear->m_end -= clear->m_clearedCount;
    clear->m_clearedCount = 0;
}

void UnfinishedClear::dropRemoved(RecordList& items, int position)
{
    UnfinishedClear* const clear = of(items);
    if (clear != nullptr && position < clear->m_end) {
        clear->m_end -= static_cast<int>(std::count(items.cbegin() + position, items.cbegin() + clear->m_end, nullptr));
    }
    items.erase(std::remove(items.begin() + position, items.end(), nullptr), items.end());
}

UnfinishedClear* UnfinishedClear::of(const RecordList& items)
{
    UnfinishedClear* clear = m_innermost;
    while (clear != nullptr && &clear->m_items != &items) {
        clear = clear->m_outer;
    }
    return clear;
}

} // namespace DataManager
