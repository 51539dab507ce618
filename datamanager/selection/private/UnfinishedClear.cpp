// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/selection/private/UnfinishedClear.h>

#include <algorithm>

namespace DataManager {

UnfinishedClear* UnfinishedClear::m_innermost = nullptr;

UnfinishedClear::UnfinishedClear(RecordList& items) : m_items(items), m_end(0), m_outer(m_innermost)
{
    settle(items);
    m_end = items.size();
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

void UnfinishedClear::settle(RecordList& items)
{
    int clearedCount = 0;
    for (const UnfinishedClear* clear = m_innermost; clear != nullptr; clear = clear->m_outer) {
        clearedCount += &clear->m_items == &items ? clear->m_clearedCount : 0;
    }
    if (clearedCount == 0) {
        return;
    }
    items.erase(items.begin(), items.begin() + clearedCount);
    for (UnfinishedClear* clear = m_innermost; clear != nullptr; clear = clear->m_outer) {
        if (&clear->m_items == &items) {
            clear->m_clearedCount = 0;
            clear->m_end = std::max(0, clear->m_end - clearedCount);
        }
    }
}

void UnfinishedClear::dropRemoved(RecordList& items, int position)
{
    for (UnfinishedClear* clear = m_innermost; clear != nullptr; clear = clear->m_outer) {
        if (&clear->m_items == &items && position < clear->m_end) {
            clear->m_end -=
                static_cast<int>(std::count(items.cbegin() + position, items.cbegin() + clear->m_end, nullptr));
        }
    }
    items.erase(std::remove(items.begin() + position, items.end(), nullptr), items.end());
}

} // namespace DataManager
