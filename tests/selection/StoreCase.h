// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/selection/SelectedDataManager.h>
#include <datamodel/SelectedDataBase.h>
#include <support/SignalLog.h>

#include <QtTest>

#include <functional>
#include <initializer_list>

using BaseModule::IBaseSignal;
using BaseModule::SelectModel;
using DataManager::SelectedDataManager;

using Pairs = QList<QPair<int, int>>;
/// Calls on a store.
using Script = std::function<void(SelectedDataManager&)>;
Q_DECLARE_METATYPE(Script)

/// Log entries; with a state, each as the log writes it behind the signal.
inline QStringList lines(std::initializer_list<const char*> entries, const char* state = nullptr)
{
    QStringList texts;
    for (const char* const entry : entries) {
        texts.append(QString::fromLatin1(entry));
        if (state != nullptr) {
            texts.last() += QStringLiteral(" | ") + QString::fromLatin1(state);
        }
    }
    return texts;
}

/// The store's items in order, as "model:first,second".
inline QString itemsOf(const SelectedDataManager& store)
{
    QStringList texts;
    for (const DataModel::SelectedDataBase* const item : store.getSelectedDataList()) {
        texts.append(QStringLiteral("%1:%2,%3")
                         .arg(int(item->getSelectModel()))
                         .arg(item->getFirstID())
                         .arg(item->getSecondID()));
    }
    return texts.join(QLatin1Char(' '));
}

/// A store of its own, not the process-wide one. Its end frees every record.
class OwnStore
{
public:
    OwnStore() : m_store(new SelectedDataManager) { m_store->init(); }
    ~OwnStore() { delete m_store; }
    Q_DISABLE_COPY_MOVE(OwnStore)

    SelectedDataManager* operator->() const { return m_store; }
    SelectedDataManager& operator*() const { return *m_store; }

private:
    SelectedDataManager* const m_store;
};

/// Columns of a table of calls: what happens before, the call, the signals with the store's items at each, the items
/// after it.
inline void addStoreColumns()
{
    QTest::addColumn<Script>("before");
    QTest::addColumn<Script>("call");
    QTest::addColumn<QStringList>("signals_");
    QTest::addColumn<QString>("items");
}

inline Script nothing()
{
    return [](SelectedDataManager&) {};
}

/// Items by model and pairs, added without a signal.
inline Script holding(const QList<QPair<int, QPair<int, int>>>& items)
{
    return [items](SelectedDataManager& store) {
        for (const auto& item : items) {
            store.addSelectData(SelectModel(item.first), item.second.first, item.second.second);
        }
    };
}

/// Runs the current row of such a table.
inline void runStoreCase()
{
    QFETCH(Script, before);
    QFETCH(Script, call);
    QFETCH(QStringList, signals_);
    QFETCH(QString, items);
    const OwnStore store;
    before(*store);
    SignalLog log([&store] { return itemsOf(*store); });
    QObject receiver;
    QObject::connect(IBaseSignal::getInstance(), &IBaseSignal::signal_updateGeomrtryActorTransparency, &receiver,
                     [&](const QList<DataModel::SelectedDataBase*>& list) {
                         if (list != store->getSelectedDataList()) {
                             log.append(QStringLiteral("a list that is not the store's"));
                         }
                     });
    call(*store);
    QCOMPARE(log.take(), signals_);
    QCOMPARE(itemsOf(*store), items);
    QCOMPARE(store->getDataCount(), store->getSelectedDataList().size());
}
