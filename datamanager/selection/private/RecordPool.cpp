// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/selection/private/RecordPool.h>

#include <datamanager/selection/private/Prefetch.h>

#include <datamodel/SelectedDataBase.h>

#include <algorithm>

namespace DataManager {

namespace {

using Place = DataModel::SelectedDataBase* const*;

/// Places before the front of the pool used last that are still allocated: pop_front frees a block of a std::deque only
/// when it leaves it. A wrong count would cost an allocation and nothing else.
struct VacatedPlaces
{
    Place front = nullptr;
    int count = 0;
};

VacatedPlaces vacated;

/// Moving the pointers of so many records takes less time than asking whether anything else may be selected.
constexpr std::size_t largestMovedPool = 1U << 16;

/// So many records a call go back in place, however many it returns.
constexpr int mostInPlace = 8;

/// The storage of a pool that gave away its last record: taking that record out of it might free the block that it
/// stands in, and no one can tell. Its content means nothing while it waits here. Never destroyed, since static objects
/// may use a store until the process ends.
RecordPool& emptiedStorage()
{
    static RecordPool& storage = *new RecordPool;
    return storage;
}

/// Empties a pool of one record.
void setStorageAside(RecordPool& pool)
{
    emptiedStorage().clear();
    pool.swap(emptiedStorage());
}

void clearIdentifiers(DataModel::SelectedDataBase* record)
{
    record->setFirstID(-1);
    record->setSecondID(-1);
}

} // namespace

DataModel::SelectedDataBase* takeRecord(RecordPool& pool)
{
    if (pool.empty()) {
        return new DataModel::SelectedDataBase;
    }
    if (pool.size() > lookahead) {
        prefetchMemory(pool[lookahead]);
    }
    DataModel::SelectedDataBase* const record = pool.front();
    if (pool.size() == 1) {
        setStorageAside(pool);
        return record;
    }
    const bool staysInBlock = &pool[1] == &pool[0] + 1;
    const int earlierCount = &pool.front() == vacated.front ? vacated.count : 0;
    pool.pop_front();
    vacated = staysInBlock ? VacatedPlaces{&pool.front(), earlierCount + 1} : VacatedPlaces{};
    return record;
}

void returnRecord(RecordPool& pool, DataModel::SelectedDataBase* record)
{
    clearIdentifiers(record);
    pool.push_back(record);
}

void returnRecordInPlace(RecordPool& pool, DataModel::SelectedDataBase* record)
{
    if (pool.empty() && emptiedStorage().size() == 1) {
        clearIdentifiers(record);
        pool.swap(emptiedStorage());
        pool.front() = record;
        return;
    }
    const bool isPlaceVacated = vacated.count > 0 && !pool.empty() && &pool.front() == vacated.front;
    if (!isPlaceVacated || pool.size() > largestMovedPool) {
        returnRecord(pool, record);
        return;
    }
    clearIdentifiers(record);
    pool.push_front(nullptr);
    std::move(pool.begin() + 1, pool.end(), pool.begin());
    pool.back() = record;
    vacated = {&pool.front(), vacated.count - 1};
}

void RecordReturn::add(DataModel::SelectedDataBase* record)
{
    if (m_inPlaceCount < mostInPlace) {
        ++m_inPlaceCount;
        returnRecordInPlace(m_pool, record);
    } else {
        returnRecord(m_pool, record);
    }
}

} // namespace DataManager
