// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/IBaseSignal.h>
#include <datamodel/SelectedDataBase.h>

#include <QList>
#include <QPair>

#include <deque>

/// The peer: the same lists, records and signals, but one scan of the list a pair and one removal from the list an
/// item.
class PairByPairStore
{
public:
    using Record = DataModel::SelectedDataBase;
    using Model = BaseModule::SelectModel;
    using Pairs = QList<QPair<int, int>>;

    PairByPairStore()
    {
        for (int i = 0; i < 20; ++i) {
            m_pool.push_back(new Record);
        }
    }
    ~PairByPairStore()
    {
        qDeleteAll(m_items);
        qDeleteAll(m_pool);
    }
    Q_DISABLE_COPY_MOVE(PairByPairStore)

    void addSelectedTargetList(Model model, const Pairs& pairs)
    {
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
        Pairs removed;
        for (const auto& pair : pairs) {
            const int position = find(model, pair.first, pair.second);
            if (position >= 0) {
                Record* const record = m_items.takeAt(position);
                record->setFirstID(-1);
                record->setSecondID(-1);
                m_pool.push_back(record);
                removed.append(pair);
            }
        }
        announce(model, removed, false);
    }

private:
    int find(Model model, int a, int b) const
    {
        for (int i = 0; i < m_items.size(); ++i) {
            const Record& item = *m_items.at(i);
            if (item.getSelectModel() == model && (a < 0 || a == item.getFirstID()) &&
                (b < 0 || b == item.getSecondID())) {
                return i;
            }
        }
        return -1;
    }

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
        m_items.append(record);
    }

    void announce(Model model, const Pairs& pairs, bool isShow)
    {
        BaseModule::IBaseSignal* const hub = BaseModule::IBaseSignal::getInstance();
        if (!pairs.isEmpty()) {
            Q_EMIT hub->signal_setViewObjectListState(model, pairs, isShow);
            Q_EMIT hub->signal_updateGeomrtryActorTransparency(m_items);
        }
        for (const auto& pair : pairs) {
            Q_EMIT hub->signal_updateViewObjectState(model, pair.first, pair.second, isShow);
        }
        Q_EMIT hub->signal_refreshActionOnSelectDataChanged();
    }

    QList<Record*> m_items;
    std::deque<Record*> m_pool;
};
