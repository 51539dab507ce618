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
    const bool staysInBlock = pool.size() > 1 && &pool[1] == &pool[0] + 1;
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

} // namespace DataManager
