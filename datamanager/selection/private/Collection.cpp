// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/selection/private/Collection.h>

#include <datamanager/selection/private/MatchIndex.h>

#include <datamodel/SelectedDataBase.h>

namespace DataManager {

using BaseModule::SelectModel;

namespace {

void collectByScan(const RecordList& items, SelectModel model, int firstID, PairList& collected)
{
    for (const DataModel::SelectedDataBase* const item : items) {
        if (item->getSelectModel() == model && item->getFirstID() == firstID) {
            collected.append(identifiers(*item));
        }
    }
}

} // namespace

PairList collectPairs(const RecordList& items, SelectModel model, const QList<int>& firstIDList)
{
    PairList collected;
    if (firstIDList.size() > mostScans) {
        MatchIndex index(items, model, MatchIndex::Order::FirstToLast);
        for (const int firstID : firstIDList) {
            index.collectByFirstID(firstID, collected);
        }
        return collected;
    }
    for (const int firstID : firstIDList) {
        collectByScan(items, model, firstID, collected);
    }
    return collected;
}

} // namespace DataManager
