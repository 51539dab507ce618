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
                setList(selectModel, {{firstID, secondID}}, isShow);
            });
    connect(hub, &IBaseSignal::signal_clearAllHighLight, this, &HighlightState::clear);
}

bool HighlightState::isEmpty() const
{
    return std::all_of(m_items.begin(), m_items.end(), [](const QSet<Item>& items) { return items.isEmpty(); });
}

void HighlightState::setList(int selectModel, const QList<Item>& objectList, bool isShow)
{
    for (const Item& item : objectList) {
        set(selectModel, item, isShow);
    }
    if (!objectList.isEmpty()) {
        Q_EMIT signal_changed();
    }
}

void HighlightState::set(int selectModel, const Item& item, bool isShow)
{
    QSet<Item>& items = m_items[selectModel];
    if (isShow) {
        items.insert(item);
    } else if (!items.remove(item) && (item.first < 0 || item.second < 0)) {
        readAgain(selectModel); // a wildcard does not say which item went
    }
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
    m_items[selectModel] = QSet<Item>(selected.begin(), selected.end());
}

} // namespace Workbench
