// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <selection/LiteralStore.h>
#include <selection/Operation.h>
#include <selection/StoreCase.h>

#include <cstdio>
#include <random>
#include <unordered_map>

using Record = DataModel::SelectedDataBase;

namespace {

#ifdef DATAMANAGER_EXHAUSTIVE_TESTS
constexpr int operationCount = 2000000;
#else
constexpr int operationCount = 500000;
#endif

/// Listens to every signal of the hub: notes it with what the store shows at that moment and, when allowed to, calls
/// back into the store. All it does follows from one seed, so that it does the same to both stores.
template <class Store>
class Listener : public QObject
{
public:
    Listener(Store& store, const Scale& scale, bool isCallingBack)
        : m_store(store), m_scale(scale), m_isCallingBack(isCallingBack)
    {
        using Hub = IBaseSignal;
        listen(&Hub::signal_updateInteraction, 1);
        listen(&Hub::signal_updateMenuActionState, 2);
        listen(&Hub::signal_refreshActionOnSelectDataChanged, 3);
        listen(&Hub::signal_updateIsCanSwitchSelectModel, 4);
        listen(&Hub::signal_clearAllHighLight, 5);
        connect(hub(), &Hub::signal_updateGeomrtryActorTransparency, this, [this](const QList<Record*>& list) {
            hear([&] { note(list == m_store.getSelectedDataList() ? 6 : -6); });
        });
        connect(hub(), &Hub::signal_updateViewObjectState, this, [this](int model, int a, int b, bool isShow) {
            hear([&] { noteAll({7, model, a, b, isShow}); });
        });
        connect(hub(), &Hub::signal_setViewObjectListState, this, [this](int model, const Pairs& pairs, bool isShow) {
            hear([&] {
                noteAll({8, model, pairs.size(), isShow});
                for (const auto& pair : pairs) {
                    noteAll({pair.first, pair.second});
                }
            });
        });
        connect(hub(), &Hub::signal_checkHighLight, this, [this](bool& isAllowed, int model, int a, int b) {
            hear([&] {
                noteAll({9, model, a, b});
                isAllowed = m_dice.roll(0, 3) != 0;
            });
        });
    }

    void run(const Operation& operation, quint64 seed)
    {
        log.clear();
        m_dice = Dice(seed);
        m_callsLeft = 6;
        m_isRunning = true;
        operation.applyTo(m_store);
        m_isRunning = false;
        m_kept.clear();
        noteState();
    }

    std::vector<int> log;

private:
    static IBaseSignal* hub() { return IBaseSignal::getInstance(); }

    void listen(void (IBaseSignal::*signal)(), int name)
    {
        connect(hub(), signal, this, [this, name] { hear([this, name] { note(name); }); });
    }

    /// Signals of the other store are not for this listener.
    template <class Noting>
    void hear(Noting noting)
    {
        if (m_isRunning) {
            noting();
            react();
        }
    }

    void note(int value) { log.push_back(value); }

    void noteAll(std::initializer_list<int> values) { log.insert(log.end(), values); }

    void react()
    {
        noteState();
        if (!m_isCallingBack || m_callsLeft == 0 || m_depth == 3 || m_dice.roll(0, 5) != 0) {
            return;
        }
        --m_callsLeft;
        ++m_depth;
        // Now and then a listener holds on to the list while the store changes.
        if (m_dice.roll(0, 7) == 0) {
            m_kept.append(m_store.getSelectedDataList());
        }
        Operation::draw(m_dice, m_scale).applyTo(m_store);
        noteState();
        --m_depth;
    }

    /// What a listener can read, the items folded into two numbers.
    void noteState()
    {
        quint64 sum = 0;
        const QList<Record*> items = m_store.getSelectedDataList();
        for (const Record* const record : items) {
            for (const int value : {int(record->getSelectModel()), record->getFirstID(), record->getSecondID()}) {
                sum = (sum ^ quint32(value)) * 0x100000001b3U;
            }
        }
        noteAll({m_store.getDataCount(), m_store.getSelectModel(), int(sum >> 32), int(sum & 0xffffffffU)});
        if (log.size() % 8 == 0) {
            noteQueries();
        }
    }

    void noteQueries()
    {
        for (const auto& pair : m_store.getSelectedDataBySelectedModel(SelectModel(m_dice.roll(7, 8)))) {
            noteAll({pair.first, pair.second});
        }
        noteAll({m_store.canSwitchSelectModel(), m_store.getGeometryIsHighLight(1), m_store.getMeshIsHighLight(1),
                 m_store.getMeshGroupIsHighLight(1)});
    }

    Store& m_store;
    const Scale m_scale;
    const bool m_isCallingBack;
    bool m_isRunning = false;
    Dice m_dice{0};
    int m_callsLeft = 0;
    int m_depth = 0;
    QList<QList<Record*>> m_kept;
};

/// Pairs the records of the two stores: at the same places there must always be the same pairs.
class RecordPairing
{
public:
    /// Empty, or what is wrong.
    QString check(const SelectedDataManager& store, const LiteralStore& literal)
    {
        ++m_round;
        m_seenCount = 0;
        const QList<Record*> items = store.getSelectedDataList();
        const QList<Record*> expectedItems = literal.getSelectedDataList();
        if (items.size() != expectedItems.size() || store.m_dataPool.size() != literal.pool().size()) {
            return QStringLiteral("another number of records");
        }
        for (int i = 0; i < items.size(); ++i) {
            if (!pair(items.at(i), expectedItems.at(i))) {
                return QStringLiteral("item %1 has another record, or one that is owned twice").arg(i);
            }
        }
        for (std::size_t i = 0; i < store.m_dataPool.size(); ++i) {
            const Record* const record = store.m_dataPool[i];
            if (!pair(record, literal.pool()[i])) {
                return QStringLiteral("pool place %1 has another record, or one that is owned twice").arg(i);
            }
            if (record->getFirstID() != -1 || record->getSecondID() != -1) {
                return QStringLiteral("pool place %1 has identifiers").arg(i);
            }
        }
        return m_seenCount == m_partners.size() ? QString() : QStringLiteral("a record is lost");
    }

private:
    struct Partner
    {
        const Record* literal;
        quint64 round;
    };

    bool pair(const Record* record, const Record* literal)
    {
        Partner& partner = m_partners.emplace(record, Partner{literal, 0}).first->second;
        const bool isFirstInRound = partner.round != m_round;
        partner.round = m_round;
        ++m_seenCount;
        return isFirstInRound && partner.literal == literal;
    }

    std::unordered_map<const Record*, Partner> m_partners;
    std::size_t m_seenCount = 0;
    quint64 m_round = 0;
};

quint64 chosenSeed()
{
    bool isGiven = false;
    const quint64 given = qEnvironmentVariable("DATAMANAGER_TEST_SEED").toULongLong(&isGiven);
    return isGiven ? given : (quint64(std::random_device{}()) << 32 | std::random_device{}());
}

/// Callers hold the records and may change them between calls.
void alter(const QList<Record*>& items, int index, const Operation& source)
{
    items.at(index)->setFirstID(source.pair.first);
    items.at(index)->setSecondID(source.pair.second);
    items.at(index)->setSelectModel(source.model);
}

} // namespace

class tst_SelectionAgainstLiteral : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agrees_data();
    void agrees();
};

void tst_SelectionAgainstLiteral::agrees_data()
{
    QTest::addColumn<bool>("isCallingBack");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("shortList");
    QTest::addColumn<int>("longList");
    QTest::addColumn<int>("identifiers");
    QTest::addColumn<int>("wildcardPerMille");
    QTest::newRow("listeners that only look") << false << operationCount << 2 << 12 << 4 << 150;
    QTest::newRow("listeners that call back") << true << operationCount << 2 << 12 << 4 << 150;
    QTest::newRow("long lists") << false << 300 << 100 << 2500 << 1500 << 1;
    QTest::newRow("long lists, listeners that call back") << true << 60 << 20 << 600 << 400 << 2;
}

void tst_SelectionAgainstLiteral::agrees()
{
    QFETCH(bool, isCallingBack);
    QFETCH(int, count);
    QFETCH(int, shortList);
    QFETCH(int, longList);
    QFETCH(int, identifiers);
    QFETCH(int, wildcardPerMille);
    const Scale scale{shortList, longList, identifiers, wildcardPerMille};
    const quint64 seed = chosenSeed();
    std::printf("seed %llu, %d operations (DATAMANAGER_TEST_SEED repeats a run)\n", seed, count);
    std::fflush(stdout);
    const OwnStore store;
    LiteralStore literal;
    Listener<SelectedDataManager> listener(*store, scale, isCallingBack);
    Listener<LiteralStore> literalListener(literal, scale, isCallingBack);
    RecordPairing pairing;
    Dice dice(seed);
    for (int i = 0; i < count; ++i) {
        const Operation operation = Operation::draw(dice, scale);
        const quint64 listenerSeed = dice.next();
        listener.run(operation, listenerSeed);
        literalListener.run(operation, listenerSeed);
        const auto place = [&](const QString& mistake) {
            return QStringLiteral("operation %1, kind %2, seed %3: %4")
                .arg(i)
                .arg(operation.kind)
                .arg(seed)
                .arg(mistake)
                .toUtf8();
        };
        QVERIFY2(listener.log == literalListener.log, place(QStringLiteral("another log")).constData());
        if (i % 8 == 0) {
            const QString mistake = pairing.check(*store, literal);
            QVERIFY2(mistake.isEmpty(), place(mistake).constData());
        }
        if (dice.roll(0, 9) == 0 && store->getDataCount() > 0) {
            const int index = dice.roll(0, store->getDataCount() - 1);
            const Operation source = Operation::draw(dice, scale);
            alter(store->getSelectedDataList(), index, source);
            alter(literal.getSelectedDataList(), index, source);
        }
    }
}

QTEST_GUILESS_MAIN(tst_SelectionAgainstLiteral)
#include "tst_selectionagainstliteral.moc"
