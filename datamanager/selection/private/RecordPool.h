// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <deque>

namespace DataModel {
class SelectedDataBase;
}

namespace DataManager {

/// Free records, reused in the order in which they came back.
using RecordPool = std::deque<DataModel::SelectedDataBase*>;

/// The record that has been free for longest, or a new one when none is.
DataModel::SelectedDataBase* takeRecord(RecordPool& pool);

/// Sets both identifiers to -1 and puts the record at the back of the pool.
void returnRecord(RecordPool& pool, DataModel::SelectedDataBase* record);

/// The same result at up to the cost of moving a small pool's pointers, but without the heap allocation that
/// std::deque needs for every block of records that passes through it.
void returnRecordInPlace(RecordPool& pool, DataModel::SelectedDataBase* record);

/// Returns the records of one call: the first few in place, so that a call for few allocates nothing, and the others at
/// constant cost.
class RecordReturn
{
public:
    explicit RecordReturn(RecordPool& pool) : m_pool(pool) {}

    void add(DataModel::SelectedDataBase* record);

private:
    RecordPool& m_pool;
    int m_inPlaceCount = 0;
};

} // namespace DataManager
