// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/selection/SelectedDataManager.h>

#include <datamanager/selection/private/AcceptedPairs.h>
#include <datamanager/selection/private/Collection.h>
#include <datamanager/selection/private/PairLookup.h>
#include <datamanager/selection/private/RecordPool.h>
#include <datamanager/selection/private/Removal.h>
#include <datamanager/selection/private/UnfinishedClear.h>

#include <basemodule/IBaseSignal.h>
#include <datamodel/SelectedDataBase.h>

#include <vector>

namespace DataManager {

using BaseModule::IBaseSignal;
using BaseModule::SelectModel;

namespace {

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

/// What an item was before it was cleared.
struct ClearedItem
{
    SelectModel model;
    QPair<int, int> pair;
};

ClearedItem clearedItem(const DataModel::SelectedDataBase& item)
{
    return {item.getSelectModel(), identifiers(item)};
}

void announceCleared(const ClearedItem& item)
{
    Q_EMIT IBaseSignal::getInstance()->signal_updateViewObjectState(item.model, item.pair.first, item.pair.second,
                                                                    false);
}

/// Tells of each item as it is cleared, while all of them are still in the list.
void clearOneByOne(RecordList& items, RecordPool& pool)
{
    UnfinishedClear clear(items);
    RecordReturn records(pool);
    while (DataModel::SelectedDataBase* const record = clear.next()) {
        const ClearedItem item = clearedItem(*record);
        records.add(record);
        announceCleared(item);
    }
}

/// Clears everything before it tells of anything. Were a clearing within a clearing to go one by one, too, a listener
/// that clears whenever it hears of a cleared item would nest as deep as there are items.
void clearAtOnce(RecordList& items, RecordPool& pool)
{
    UnfinishedClear::settle(items);
    std::vector<ClearedItem> cleared;
    cleared.reserve(static_cast<std::size_t>(items.size()));
    RecordReturn records(pool);
    for (DataModel::SelectedDataBase*& record : items) {
        cleared.push_back(clearedItem(*record));
        records.add(record);
        record = nullptr;
    }
    UnfinishedClear::dropRemoved(items);
    for (const ClearedItem& item : cleared) {
        announceCleared(item);
    }
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
    PairLookup lookup(m_selectedDataList, model, targetList);
    for (int i = 0; i < targetList.size(); ++i) {
        if (lookup.isSelected(i)) {
            added.reject(i);
            continue;
        }
        added.accept(i);
        addSelectData(model, targetList.at(i).first, targetList.at(i).second);
        // A closed pool has appended nothing.
        if (!m_isPoolClosed) {
            lookup.append();
        }
    }
    announceChange(model, added.pairs(), true, m_selectedDataList);
}

void SelectedDataManager::removeSelectedTargetList(SelectModel model, QList<QPair<int, int>> targetList)
{
    UnfinishedClear::settle(m_selectedDataList);
    const PairList removed = removeFirstMatches(m_selectedDataList, m_dataPool, model, targetList);
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
    removeAllMatches(m_selectedDataList, m_dataPool, model, collected);
    Q_EMIT IBaseSignal::getInstance()->signal_setViewObjectListState(model, collected, false);
}

void SelectedDataManager::clearAllSelectedTarget()
{
    const auto clear = UnfinishedClear::isUnderWay(m_selectedDataList) ? clearAtOnce : clearOneByOne;
    clear(m_selectedDataList, m_dataPool);
    IBaseSignal* const hub = IBaseSignal::getInstance();
    Q_EMIT hub->signal_updateGeomrtryActorTransparency(m_selectedDataList);
    Q_EMIT hub->signal_clearAllHighLight();
    Q_EMIT hub->signal_refreshActionOnSelectDataChanged();
}

} // namespace DataManager
