// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/HighlightState.h>

#include <basemodule/IBaseSignal.h>
#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <algorithm>

using BaseModule::IBaseSignal;

namespace Workbench {

HighlightState::HighlightState(QObject* parent) : QObject(parent)
{
    const IBaseSignal* hub = IBaseSignal::getInstance();
    connect(hub, &IBaseSignal::signal_setViewObjectListState, this, &HighlightState::setList);
    connect(hub, &IBaseSignal::signal_updateViewObjectState, this,
            [this](int selectModel, int firstID, int secondID, bool isShow) {
                setOne(selectModel, {firstID, secondID}, isShow);
            });
    connect(hub, &IBaseSignal::signal_clearAllHighLight, this, &HighlightState::clear);
}

const ItemSet& HighlightState::items(int selectModel) const
{
    static const ItemSet none;
    const auto found = m_items.find(selectModel);
    return found == m_items.end() ? none : found->second;
}

bool HighlightState::isEmpty() const
{
    return std::all_of(m_items.begin(), m_items.end(), [](const auto& entry) { return entry.second.isEmpty(); });
}

// The store tells of a list at once, and then of each item of it again.
void HighlightState::setList(int selectModel, const QList<Item>& objectList, bool isShow)
{
    bool isChanged = false;
    for (const Item& item : objectList) {
        isChanged = set(selectModel, item, isShow) || isChanged;
    }
    if (isChanged) {
        Q_EMIT signal_changed();
    }
}

void HighlightState::setOne(int selectModel, const Item& item, bool isShow)
{
    if (set(selectModel, item, isShow)) {
        Q_EMIT signal_changed();
    }
}

bool HighlightState::set(int selectModel, const Item& item, bool isShow)
{
    ItemSet& items = m_items[selectModel];
    if (isShow) {
        return items.insert(item);
    }
    if (items.remove(item)) {
        return true;
    }
    const bool isWildcard = item.first < 0 || item.second < 0; // does not say which item went
    if (isWildcard) {
        readAgain(selectModel);
    }
    return isWildcard;
}

void HighlightState::clear()
{
    m_items.clear();
    Q_EMIT signal_changed();
}

void HighlightState::readAgain(int selectModel)
{
    const QList<Item> selected = DataManager::SelectedDataManager::getInstance()->getSelectedDataBySelectedModel(
        static_cast<BaseModule::SelectModel>(selectModel));
    ItemSet& items = m_items[selectModel];
    items = {};
    for (const Item& item : selected) {
        items.insert(item);
    }
}

} // namespace Workbench
