// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/selection/SelectedDataManager.h>

#include <datamanager/selection/private/AcceptedPairs.h>
#include <datamanager/selection/private/MatchIndex.h>
#include <datamanager/selection/private/RecordPool.h>
#include <datamanager/selection/private/UnfinishedClear.h>

#include <basemodule/IBaseSignal.h>
#include <datamodel/SelectedDataBase.h>

#include <optional>

namespace DataManager {

using BaseModule::IBaseSignal;
using BaseModule::SelectModel;

namespace {

/// Up to so many scans of the list cost less than an index, and they allocate nothing.
constexpr int mostScans = 8;

/// Tells the listeners of the pairs that a bulk call has added or removed. `items` is the store's list itself: it shows
/// what earlier listeners have done to it.
void announceChange(SelectModel model, const PairList& pairs, bool isShow, const RecordList& items)
{
    IBaseSignal* const hub = IBaseSignal::getInstance();
    if (!pairs.isEmpty()) {
        Q_EMIT hub->signal_setViewObjectListState(model, pairs, isShow);
        Q_EMIT hub->signal_updateGeomrtryActorTransparency(items);
    }
    for (const QPair<int, int>& pair : pairs) {
        Q_EMIT hub->signal_updateViewObjectState(model, pair.first, pair.second, isShow);
    }
    Q_EMIT hub->signal_refreshActionOnSelectDataChanged();
}

/// Removes the first match of each pair by one scan a pair.
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
        returnRecordInPlace(pool, items.at(position));
        items[position] = nullptr;
        UnfinishedClear::dropRemoved(items, position);
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

/// The pairs of the model's items with these first identifiers, identifier by identifier.
PairList collectPairs(const RecordList& items, SelectModel model, const QList<int>& firstIDList)
{
    PairList collected;
    std::optional<MatchIndex> index;
    if (firstIDList.size() > mostScans) {
        index.emplace(items, model, MatchIndex::Order::FirstToLast);
    }
    for (const int firstID : firstIDList) {
        if (index) {
            index->collectByFirstID(firstID, collected);
            continue;
        }
        for (const DataModel::SelectedDataBase* const item : items) {
            if (item->getSelectModel() == model && item->getFirstID() == firstID) {
                collected.append(identifiers(*item));
            }
        }
    }
    return collected;
}

/// Removes all matches of each pair, those of one pair from the last to the first.
void removeAllMatches(RecordList& items, RecordPool& pool, SelectModel model, const PairList& pairs)
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

/// The project tree may change the selection of a dialog under these select models only.
bool isProjectTreeModel(SelectModel model)
{
    return model == SelectModel(0) || model == SelectModel(1) || model == SelectModel(7) || model == SelectModel(10);
}

} // namespace

void SelectedDataManager::addSelectedTargetList(SelectModel model, QList<QPair<int, int>> targetList)
{
    UnfinishedClear::settle(m_selectedDataList);
    AcceptedPairs added(targetList);
    std::optional<MatchIndex> index;
    if (targetList.size() > mostScans) {
        index.emplace(m_selectedDataList, model, MatchIndex::Order::LastToFirst, targetList.size());
    }
    for (int i = 0; i < targetList.size(); ++i) {
        if (index) {
            index->expect(targetList, i);
        }
        const auto [firstID, secondID] = targetList.at(i);
        if (index ? index->find(firstID, secondID) >= 0 : hasSameSelectedData(model, firstID, secondID)) {
            added.reject(i);
            continue;
        }
        added.accept(i);
        addSelectData(model, firstID, secondID);
        // A closed pool has appended nothing.
        if (index && !m_isPoolClosed) {
            index->append();
        }
    }
    announceChange(model, added.pairs(), true, m_selectedDataList);
}

void SelectedDataManager::removeSelectedTargetList(SelectModel model, QList<QPair<int, int>> targetList)
{
    UnfinishedClear::settle(m_selectedDataList);
    const auto removeMatches = targetList.size() > mostScans ? removeByIndex : removeByScan;
    const PairList removed = removeMatches(m_selectedDataList, m_dataPool, model, targetList);
    announceChange(model, removed, false, m_selectedDataList);
}

void SelectedDataManager::addSelectedTargetListByProjectTree(SelectModel model, QList<QPair<int, int>> targetList)
{
    if (m_isCanSwitchSelectModel || isProjectTreeModel(m_selectModel)) {
        addSelectedTargetList(model, targetList);
    }
}

void SelectedDataManager::removeSelectedTargetListByProjectTree(SelectModel model, QList<QPair<int, int>> targetList)
{
    if (m_isCanSwitchSelectModel || isProjectTreeModel(m_selectModel)) {
        removeSelectedTargetList(model, targetList);
    }
}

void SelectedDataManager::removeSelectedTargets(SelectModel model, QList<int> firstIDList)
{
    UnfinishedClear::settle(m_selectedDataList);
    const PairList collected = collectPairs(m_selectedDataList, model, firstIDList);
    if (collected.size() > mostScans) {
        removeAllMatches(m_selectedDataList, m_dataPool, model, collected);
    } else {
        for (const QPair<int, int>& pair : collected) {
            removeSelectData(model, pair.first, pair.second);
        }
    }
    Q_EMIT IBaseSignal::getInstance()->signal_setViewObjectListState(model, collected, false);
}

void SelectedDataManager::clearAllSelectedTarget()
{
    IBaseSignal* const hub = IBaseSignal::getInstance();
    {
        UnfinishedClear clear(m_selectedDataList);
        while (DataModel::SelectedDataBase* const item = clear.next()) {
            const SelectModel model = item->getSelectModel();
            const auto [firstID, secondID] = identifiers(*item);
            returnRecord(m_dataPool, item);
            Q_EMIT hub->signal_updateViewObjectState(model, firstID, secondID, false);
        }
    }
    Q_EMIT hub->signal_updateGeomrtryActorTransparency(m_selectedDataList);
    Q_EMIT hub->signal_clearAllHighLight();
    Q_EMIT hub->signal_refreshActionOnSelectDataChanged();
}

} // namespace DataManager
