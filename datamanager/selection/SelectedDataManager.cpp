// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/selection/SelectedDataManager.h>

#include <datamanager/frame/Singleton.h>
#include <datamanager/selection/private/Matching.h>
#include <datamanager/selection/private/RecordPool.h>
#include <datamanager/selection/private/Removal.h>
#include <datamanager/selection/private/UnfinishedClear.h>

#include <datamodel/SelectedDataBase.h>

#include <iostream>

namespace DataManager {

using BaseModule::SelectModel;

namespace {

constexpr int initialRecordCount = 20;

void reportClosedPool()
{
    std::cout << "对象池已经关闭" << std::endl;
}

} // namespace

SelectedDataManager* SelectedDataManager::m_instance = nullptr;

SelectedDataManager* SelectedDataManager::getInstance()
{
    return singleton(m_instance, [] { return new SelectedDataManager; });
}

SelectedDataManager::~SelectedDataManager()
{
    m_isPoolClosed = true;
    // Whoever watches a record's end may still remove items, which refills the pool.
    while (!m_dataPool.empty() || !m_selectedDataList.isEmpty()) {
        if (m_dataPool.empty()) {
            delete m_selectedDataList.takeFirst();
        } else {
            const DataModel::SelectedDataBase* const record = m_dataPool.front();
            m_dataPool.pop_front();
            delete record;
        }
    }
}

void SelectedDataManager::init()
{
    if (m_isPoolClosed) {
        reportClosedPool();
    } else {
        for (int count = 0; count < initialRecordCount; ++count) {
            m_dataPool.push_back(new DataModel::SelectedDataBase);
        }
    }
    m_isHighLightCheckEnable = false;
    m_isCanSwitchSelectModel = true;
}

void SelectedDataManager::addSelectData(SelectModel model, int firstID, int secondID)
{
    if (m_isPoolClosed) {
        reportClosedPool();
        return;
    }
    UnfinishedClear::settle(m_selectedDataList);
    DataModel::SelectedDataBase* const record = takeRecord(m_dataPool);
    record->setSelectModel(model);
    record->setFirstID(firstID);
    record->setSecondID(secondID);
    m_selectedDataList.append(record);
}

void SelectedDataManager::removeSelectData(SelectModel model, int firstID, int secondID)
{
    UnfinishedClear::settle(m_selectedDataList);
    removeMatches(m_selectedDataList, m_dataPool, model, firstID, secondID);
}

bool SelectedDataManager::hasSameSelectedData(SelectModel model, int firstID, int secondID) const
{
    return firstMatch(m_selectedDataList, model, firstID, secondID) >= 0;
}

void SelectedDataManager::deleteSelectedData(SelectModel model)
{
    removeSelectData(model, -1, -1);
}

void SelectedDataManager::deleteSelectedData(SelectModel model, int firstID)
{
    removeSelectData(model, firstID, -1);
}

QList<QPair<int, int>> SelectedDataManager::getSelectedDataBySelectedModel(SelectModel model) const
{
    QList<QPair<int, int>> pairs;
    for (const DataModel::SelectedDataBase* const item : m_selectedDataList) {
        if (item->getSelectModel() == model) {
            pairs.append(identifiers(*item));
        }
    }
    return pairs;
}

QList<DataModel::SelectedDataBase*> SelectedDataManager::getSelectedDataList() const
{
    return m_selectedDataList;
}

int SelectedDataManager::getDataCount() const
{
    return m_selectedDataList.size();
}

} // namespace DataManager
