// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/selection/SelectedDataManager.h>

#include <datamanager/selection/private/Matching.h>
#include <datamanager/selection/private/Removal.h>
#include <datamanager/selection/private/UnfinishedClear.h>

#include <basemodule/IBaseSignal.h>
#include <datamodel/SelectedDataBase.h>

#include <QMap>

#include <algorithm>

namespace DataManager {

using BaseModule::IBaseSignal;
using BaseModule::SelectModel;

namespace {

/// A list of one pair whose memory is used again as soon as no listener holds it any more. It is never destroyed, like
/// the store, which static objects may call until the process ends.
PairList singlePair(int firstID, int secondID)
{
    static PairList& pairs = *new PairList{{0, 0}};
    pairs[0] = {firstID, secondID};
    return pairs;
}

bool isGeometryModel(SelectModel model)
{
    return model >= SelectModel(0) && model <= SelectModel(5);
}

bool isMeshGroupModel(SelectModel model)
{
    return model == SelectModel(10);
}

bool isMeshModel(SelectModel model)
{
    return model == SelectModel(7) || model == SelectModel(9) || isMeshGroupModel(model);
}

bool isHighLight(const RecordList& items, int id, bool (*isModel)(SelectModel))
{
    return std::any_of(items.begin(), items.end(), [id, isModel](const DataModel::SelectedDataBase* item) {
        return item->getFirstID() == id && isModel(item->getSelectModel());
    });
}

bool isHighLightAllowed(SelectModel model, int firstID, int secondID)
{
    bool isAllowed = true;
    Q_EMIT IBaseSignal::getInstance()->signal_checkHighLight(isAllowed, model, firstID, secondID);
    return isAllowed;
}

/// `model` and `items` are the store's own: each signal carries what they are by then. Selecting and deselecting end
/// with the same two signals in opposite order.
void announceClick(const SelectModel& model, const QPair<int, int>& pair, bool isSelect, const RecordList& items)
{
    IBaseSignal* const hub = IBaseSignal::getInstance();
    Q_EMIT hub->signal_setViewObjectListState(model, singlePair(pair.first, pair.second), isSelect);
    Q_EMIT hub->signal_updateViewObjectState(model, pair.first, pair.second, isSelect);
    if (isSelect) {
        Q_EMIT hub->signal_refreshActionOnSelectDataChanged();
        Q_EMIT hub->signal_updateGeomrtryActorTransparency(items);
    } else {
        Q_EMIT hub->signal_updateGeomrtryActorTransparency(items);
        Q_EMIT hub->signal_refreshActionOnSelectDataChanged();
    }
}

} // namespace

SelectModel SelectedDataManager::getSelectModel() const
{
    return m_selectModel;
}

void SelectedDataManager::getSelectModel(SelectModel& model) const
{
    model = m_selectModel;
}

void SelectedDataManager::setSelectModel(SelectModel model)
{
    m_selectModel = model;
    UnfinishedClear::settle(m_selectedDataList);
    QMap<int, PairList> pairsOfOtherModels;
    for (const DataModel::SelectedDataBase* const item : qAsConst(m_selectedDataList)) {
        if (item->getSelectModel() != model) {
            pairsOfOtherModels[item->getSelectModel()].append(identifiers(*item));
        }
    }
    for (auto group = pairsOfOtherModels.cbegin(); group != pairsOfOtherModels.cend(); ++group) {
        removeSelectedTargetList(SelectModel(group.key()), group.value());
    }
    Q_EMIT IBaseSignal::getInstance()->signal_updateInteraction();
}

void SelectedDataManager::setSelectModelInDialog(SelectModel model)
{
    m_mainWindowSelectModel = m_selectModel;
    m_isCanSwitchSelectModel = true;
    setSelectModel(model);
    m_isCanSwitchSelectModel = false;
    IBaseSignal* const hub = IBaseSignal::getInstance();
    Q_EMIT hub->signal_updateIsCanSwitchSelectModel();
    Q_EMIT hub->signal_updateMenuActionState();
}

void SelectedDataManager::setSelectModelInMainWindow(SelectModel model)
{
    if (!m_isCanSwitchSelectModel) {
        return;
    }
    m_mainWindowSelectModel = model;
    setSelectModel(model);
    Q_EMIT IBaseSignal::getInstance()->signal_updateMenuActionState();
}

void SelectedDataManager::setSwitchSelectModelEnable(bool isEnable)
{
    m_isCanSwitchSelectModel = isEnable;
    if (isEnable) {
        setSelectModel(m_mainWindowSelectModel);
    }
    IBaseSignal* const hub = IBaseSignal::getInstance();
    Q_EMIT hub->signal_updateMenuActionState();
    Q_EMIT hub->signal_updateIsCanSwitchSelectModel();
}

bool SelectedDataManager::canSwitchSelectModel() const
{
    return m_isCanSwitchSelectModel;
}

void SelectedDataManager::setHighLightCheckEnable(bool isEnable)
{
    m_isHighLightCheckEnable = isEnable;
}

void SelectedDataManager::clickViewObject(int firstID, int secondID)
{
    if (m_isHighLightCheckEnable && !isHighLightAllowed(m_selectModel, firstID, secondID)) {
        Q_EMIT IBaseSignal::getInstance()->signal_updateGeomrtryActorTransparency(m_selectedDataList);
        return;
    }
    UnfinishedClear::settle(m_selectedDataList);
    const int position = firstMatch(m_selectedDataList, m_selectModel, firstID, secondID);
    if (position < 0) {
        addSelectData(m_selectModel, firstID, secondID);
    } else {
        removeItem(m_selectedDataList, m_dataPool, position);
    }
    announceClick(m_selectModel, {firstID, secondID}, position < 0, m_selectedDataList);
}

bool SelectedDataManager::getGeometryIsHighLight(int id) const
{
    return isHighLight(m_selectedDataList, id, isGeometryModel);
}

bool SelectedDataManager::getMeshIsHighLight(int id) const
{
    return isHighLight(m_selectedDataList, id, isMeshModel);
}

bool SelectedDataManager::getMeshGroupIsHighLight(int id) const
{
    return isHighLight(m_selectedDataList, id, isMeshGroupModel);
}

} // namespace DataManager
