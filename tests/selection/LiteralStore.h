// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/IBaseSignal.h>
#include <datamodel/SelectedDataBase.h>

#include <QMap>

#include <algorithm>
#include <array>
#include <deque>
#include <vector>

/// The selection store by scans alone, one pair after the other: slow, and plain enough to be seen right. It emits on
/// the hub as the real one does. What it adds to the plain procedure is the answer to a listener that calls back during
/// a clearing: such a call first drops what is cleared already, what it adds is not cleared, and if it clears, then it
/// does so at once.
class LiteralStore
{
public:
    using Record = DataModel::SelectedDataBase;
    using Model = BaseModule::SelectModel;
    using Pairs = QList<QPair<int, int>>;

    LiteralStore() { init(); }
    ~LiteralStore()
    {
        for (const Item& item : m_items) {
            delete item.record;
        }
        for (const Record* const record : m_pool) {
            delete record;
        }
    }
    Q_DISABLE_COPY_MOVE(LiteralStore)

    void init()
    {
        for (int i = 0; i < 20; ++i) {
            m_pool.push_back(new Record);
        }
        m_isChecking = false;
        m_canSwitch = true;
    }

    void addSelectedTargetList(Model model, const Pairs& pairs)
    {
        dropCleared();
        Pairs added;
        for (const auto& pair : pairs) {
            if (find(model, pair.first, pair.second) < 0) {
                added.append(pair);
                add(model, pair.first, pair.second);
            }
        }
        announce(model, added, true);
    }

    void removeSelectedTargetList(Model model, const Pairs& pairs)
    {
        dropCleared();
        Pairs removed;
        for (const auto& pair : pairs) {
            const int position = find(model, pair.first, pair.second);
            if (position >= 0) {
                removeAt(position);
                removed.append(pair);
            }
        }
        announce(model, removed, false);
    }

    void addSelectedTargetListByProjectTree(Model model, const Pairs& pairs)
    {
        if (isTreeAllowed()) {
            addSelectedTargetList(model, pairs);
        }
    }

    void removeSelectedTargetListByProjectTree(Model model, const Pairs& pairs)
    {
        if (isTreeAllowed()) {
            removeSelectedTargetList(model, pairs);
        }
    }

    void removeSelectedTargets(Model model, const QList<int>& ids)
    {
        dropCleared();
        Pairs collected;
        for (const int id : ids) {
            for (const Item& item : m_items) {
                if (item.record->getSelectModel() == model && item.record->getFirstID() == id) {
                    collected.append({item.record->getFirstID(), item.record->getSecondID()});
                }
            }
        }
        for (const auto& pair : qAsConst(collected)) {
            removeAll(model, pair.first, pair.second);
        }
        Q_EMIT hub()->signal_setViewObjectListState(model, collected, false);
    }

    void deleteSelectedData(Model model) { removeAll(model, -1, -1); }
    void deleteSelectedData(Model model, int firstID) { removeAll(model, firstID, -1); }

    void clearAllSelectedTarget()
    {
        dropCleared();
        if (m_isClearing) {
            clearAtOnce();
        } else {
            m_isClearing = true;
            clearOneByOne();
            m_isClearing = false;
        }
        Q_EMIT hub()->signal_updateGeomrtryActorTransparency(getSelectedDataList());
        Q_EMIT hub()->signal_clearAllHighLight();
        Q_EMIT hub()->signal_refreshActionOnSelectDataChanged();
    }

    Pairs getSelectedDataBySelectedModel(Model model) const
    {
        Pairs pairs;
        for (const Item& item : m_items) {
            if (item.record->getSelectModel() == model) {
                pairs.append({item.record->getFirstID(), item.record->getSecondID()});
            }
        }
        return pairs;
    }

    QList<Record*> getSelectedDataList() const
    {
        QList<Record*> list;
        list.reserve(getDataCount());
        for (const Item& item : m_items) {
            list.append(item.record);
        }
        return list;
    }

    int getDataCount() const { return int(m_items.size()); }
    const std::deque<Record*>& pool() const { return m_pool; }
    Model getSelectModel() const { return m_model; }
    bool canSwitchSelectModel() const { return m_canSwitch; }
    void setHighLightCheckEnable(bool isEnable) { m_isChecking = isEnable; }

    void setSelectModelInDialog(Model model)
    {
        m_mainWindowModel = m_model;
        m_canSwitch = true;
        switchTo(model);
        m_canSwitch = false;
        Q_EMIT hub()->signal_updateIsCanSwitchSelectModel();
        Q_EMIT hub()->signal_updateMenuActionState();
    }

    void setSelectModelInMainWindow(Model model)
    {
        if (m_canSwitch) {
            m_mainWindowModel = model;
            switchTo(model);
            Q_EMIT hub()->signal_updateMenuActionState();
        }
    }

    void setSwitchSelectModelEnable(bool isEnable)
    {
        m_canSwitch = isEnable;
        if (isEnable) {
            switchTo(m_mainWindowModel);
        }
        Q_EMIT hub()->signal_updateMenuActionState();
        Q_EMIT hub()->signal_updateIsCanSwitchSelectModel();
    }

    void clickViewObject(int a, int b)
    {
        bool isAllowed = true;
        if (m_isChecking) {
            Q_EMIT hub()->signal_checkHighLight(isAllowed, m_model, a, b);
        }
        if (!isAllowed) {
            Q_EMIT hub()->signal_updateGeomrtryActorTransparency(getSelectedDataList());
            return;
        }
        dropCleared();
        const int position = find(m_model, a, b);
        if (position >= 0) {
            removeAt(position);
            Q_EMIT hub()->signal_setViewObjectListState(m_model, {{a, b}}, false);
            Q_EMIT hub()->signal_updateViewObjectState(m_model, a, b, false);
            Q_EMIT hub()->signal_updateGeomrtryActorTransparency(getSelectedDataList());
            Q_EMIT hub()->signal_refreshActionOnSelectDataChanged();
        } else {
            add(m_model, a, b);
            Q_EMIT hub()->signal_setViewObjectListState(m_model, {{a, b}}, true);
            Q_EMIT hub()->signal_updateViewObjectState(m_model, a, b, true);
            Q_EMIT hub()->signal_refreshActionOnSelectDataChanged();
            Q_EMIT hub()->signal_updateGeomrtryActorTransparency(getSelectedDataList());
        }
    }

    bool getGeometryIsHighLight(int id) const { return isAny(id, {0, 1, 2, 3, 4, 5}); }
    bool getMeshIsHighLight(int id) const { return isAny(id, {7, 9, 10}); }
    bool getMeshGroupIsHighLight(int id) const { return isAny(id, {10}); }

private:
    struct Item
    {
        Record* record;
        quint64 stamp;
        bool isCleared;
    };

    static BaseModule::IBaseSignal* hub() { return BaseModule::IBaseSignal::getInstance(); }

    static bool isMatch(const Record& record, Model model, int a, int b)
    {
        return record.getSelectModel() == model && (a < 0 || a == record.getFirstID()) &&
               (b < 0 || b == record.getSecondID());
    }

    int find(Model model, int a, int b) const
    {
        const auto item = std::find_if(m_items.begin(), m_items.end(),
                                       [=](const Item& each) { return isMatch(*each.record, model, a, b); });
        return item == m_items.end() ? -1 : int(item - m_items.begin());
    }

    int firstToClear(quint64 end) const
    {
        const auto item = std::find_if(m_items.begin(), m_items.end(),
                                       [end](const Item& each) { return !each.isCleared && each.stamp < end; });
        return item == m_items.end() ? -1 : int(item - m_items.begin());
    }

    void clearOneByOne()
    {
        const quint64 end = m_nextStamp;
        for (int i = firstToClear(end); i >= 0; i = firstToClear(end)) {
            Item& item = m_items[std::size_t(i)];
            const Model model = item.record->getSelectModel();
            const int first = item.record->getFirstID();
            const int second = item.record->getSecondID();
            item.isCleared = true;
            giveBack(item.record);
            Q_EMIT hub()->signal_updateViewObjectState(model, first, second, false);
        }
        dropCleared();
    }

    void clearAtOnce()
    {
        std::vector<std::array<int, 3>> old;
        for (const Item& item : m_items) {
            old.push_back({item.record->getSelectModel(), item.record->getFirstID(), item.record->getSecondID()});
            giveBack(item.record);
        }
        m_items.clear();
        for (const auto& item : old) {
            Q_EMIT hub()->signal_updateViewObjectState(item[0], item[1], item[2], false);
        }
    }

    bool isAny(int id, const QList<int>& models) const
    {
        return std::any_of(m_items.begin(), m_items.end(), [&](const Item& item) {
            return item.record->getFirstID() == id && models.contains(item.record->getSelectModel());
        });
    }

    bool isTreeAllowed() const { return m_canSwitch || QList<int>{0, 1, 7, 10}.contains(m_model); }

    void add(Model model, int a, int b)
    {
        Record* record = nullptr;
        if (m_pool.empty()) {
            record = new Record;
        } else {
            record = m_pool.front();
            m_pool.pop_front();
        }
        record->setSelectModel(model);
        record->setFirstID(a);
        record->setSecondID(b);
        m_items.push_back({record, m_nextStamp++, false});
    }

    void giveBack(Record* record)
    {
        record->setFirstID(-1);
        record->setSecondID(-1);
        m_pool.push_back(record);
    }

    void removeAt(int position)
    {
        giveBack(m_items[std::size_t(position)].record);
        m_items.erase(m_items.begin() + position);
    }

    void removeAll(Model model, int a, int b)
    {
        dropCleared();
        for (int i = getDataCount() - 1; i >= 0; --i) {
            if (isMatch(*m_items[std::size_t(i)].record, model, a, b)) {
                removeAt(i);
            }
        }
    }

    void dropCleared()
    {
        m_items.erase(std::remove_if(m_items.begin(), m_items.end(), [](const Item& item) { return item.isCleared; }),
                      m_items.end());
    }

    void switchTo(Model model)
    {
        m_model = model;
        dropCleared();
        QMap<int, Pairs> others;
        for (const Item& item : m_items) {
            if (item.record->getSelectModel() != model) {
                others[item.record->getSelectModel()].append({item.record->getFirstID(), item.record->getSecondID()});
            }
        }
        for (auto other = others.cbegin(); other != others.cend(); ++other) {
            removeSelectedTargetList(Model(other.key()), other.value());
        }
        Q_EMIT hub()->signal_updateInteraction();
    }

    void announce(Model model, const Pairs& pairs, bool isShow)
    {
        if (!pairs.isEmpty()) {
            Q_EMIT hub()->signal_setViewObjectListState(model, pairs, isShow);
            Q_EMIT hub()->signal_updateGeomrtryActorTransparency(getSelectedDataList());
        }
        for (const auto& pair : pairs) {
            Q_EMIT hub()->signal_updateViewObjectState(model, pair.first, pair.second, isShow);
        }
        Q_EMIT hub()->signal_refreshActionOnSelectDataChanged();
    }

    std::vector<Item> m_items;
    std::deque<Record*> m_pool;
    quint64 m_nextStamp = 0;
    Model m_model = Model(0);
    Model m_mainWindowModel = Model(0);
    bool m_isChecking = false;
    bool m_canSwitch = true;
    bool m_isClearing = false;
};
