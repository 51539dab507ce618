// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/selection/private/Removal.h>

#include <datamanager/selection/private/AcceptedPairs.h>
#include <datamanager/selection/private/MatchIndex.h>
#include <datamanager/selection/private/UnfinishedClear.h>

namespace DataManager {

using BaseModule::SelectModel;

namespace {

PairList removeByScan(RecordList& items, RecordPool& pool, SelectModel model, const PairList& pairs)
{
    AcceptedPairs removed(pairs);
    for (int i = 0; i < pairs.size(); ++i) {
        const int position = firstMatch(items, model, pairs.at(i).first, pairs.at(i).second);
        if (position < 0) {
            removed.reject(i);
            continue;
        }
        removed.accept(i);
        removeItem(items, pool, position);
    }
    return removed.pairs();
}

/// The same with an index; the list closes its gaps once, at the end.
PairList removeByIndex(RecordList& items, RecordPool& pool, SelectModel model, const PairList& pairs)
{
    AcceptedPairs removed(pairs);
    MatchIndex index(items, model, MatchIndex::Order::FirstToLast);
    for (int i = 0; i < pairs.size(); ++i) {
        index.expect(pairs, i);
        const int position = index.find(pairs.at(i).first, pairs.at(i).second);
        if (position < 0) {
            removed.reject(i);
            continue;
        }
        removed.accept(i);
        returnRecord(pool, items.at(position));
        items[position] = nullptr;
    }
    UnfinishedClear::dropRemoved(items);
    return removed.pairs();
}

void removeAllByIndex(RecordList& items, RecordPool& pool, SelectModel model, const PairList& pairs)
{
    MatchIndex index(items, model, MatchIndex::Order::LastToFirst);
    for (const QPair<int, int>& pair : pairs) {
        for (int position = index.find(pair.first, pair.second); position >= 0;
             position = index.find(pair.first, pair.second)) {
            returnRecord(pool, items.at(position));
            items[position] = nullptr;
        }
    }
    UnfinishedClear::dropRemoved(items);
}

} // namespace

void removeItem(RecordList& items, RecordPool& pool, int position)
{
    returnRecordInPlace(pool, items.at(position));
    items[position] = nullptr;
    UnfinishedClear::dropRemoved(items, position);
}

void removeMatches(RecordList& items, RecordPool& pool, SelectModel model, int firstID, int secondID)
{
    RecordReturn records(pool);
    int lowestRemoved = -1;
    for (int position = items.size() - 1; position >= 0; --position) {
        DataModel::SelectedDataBase* const record = items.at(position);
        if (matches(*record, model, firstID, secondID)) {
            records.add(record);
            items[position] = nullptr;
            lowestRemoved = position;
        }
    }
    if (lowestRemoved >= 0) {
        UnfinishedClear::dropRemoved(items, lowestRemoved);
    }
}

void removeAllMatches(RecordList& items, RecordPool& pool, SelectModel model, const PairList& pairs)
{
    if (pairs.size() > mostScans) {
        removeAllByIndex(items, pool, model, pairs);
        return;
    }
    for (const QPair<int, int>& pair : pairs) {
        removeMatches(items, pool, model, pair.first, pair.second);
    }
}

PairList removeFirstMatches(RecordList& items, RecordPool& pool, SelectModel model, const PairList& pairs)
{
    const auto remove = pairs.size() > mostScans ? removeByIndex : removeByScan;
    return remove(items, pool, model, pairs);
}

} // namespace DataManager
