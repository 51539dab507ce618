// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause
//
// What does a selection of n items cost? One table of: adding n pairs to an empty store and removing them in the same
// order, in a fresh store that makes its records itself; the same again with pooled records and a shuffled removal,
// beside a store that does it with one scan a pair; a click; clearing. Nothing listens to the signals meanwhile. All
// work is done by one thread, so its processor time is what an idle machine's clock would show; each figure is the best
// of several, since other programs on the machine only add to it.

#include <datamanager/selection/SelectedDataManager.h>
#include <selection/AllocationCount.h>
#include <selection/LiteralStore.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <initializer_list>
#include <limits>
#include <malloc.h>
#include <random>
#include <vector>

using BaseModule::IBaseSignal;
using DataManager::SelectedDataManager;
using Pairs = QList<QPair<int, int>>;

namespace {

const BaseModule::SelectModel model = BaseModule::SelectModel(9);
const double scanLimit = 10.0;

/// Elements of a few meshes, in the order of a box, and the same shuffled.
struct Workload
{
    explicit Workload(int count)
    {
        for (int i = 0; i < count; ++i) {
            added.append({1 + i % 3, i / 3});
        }
        removed = added;
        std::shuffle(removed.begin(), removed.end(), std::mt19937(20));
    }

    Pairs added;
    Pairs removed;
};

double processorSeconds()
{
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + 1e-9 * double(time.tv_nsec);
}

template <class Work>
double secondsOf(Work work)
{
    const double start = processorSeconds();
    work();
    return processorSeconds() - start;
}

struct Round
{
    double total() const { return add + remove; }

    double add = 1e9;
    double remove = 1e9;
};

template <class Store>
void addAndRemove(Store& store, const Pairs& added, const Pairs& removed, Round& best)
{
    best.add = std::min(best.add, secondsOf([&] { store.addSelectedTargetList(model, added); }));
    best.remove = std::min(best.remove, secondsOf([&] { store.removeSelectedTargetList(model, removed); }));
}

/// In a fresh store each time, which makes its records.
Round freshRound(const Workload& work, int count)
{
    Round best;
    for (int i = 0; i < count; ++i) {
        auto* const store = new SelectedDataManager;
        addAndRemove(*store, work.added, work.added, best);
        delete store;
    }
    return best;
}

/// In one store, whose pool holds all records from the first time on.
template <class Store>
Round pooledRound(const Workload& work, int count)
{
    auto* const store = new Store;
    Round warmUp;
    addAndRemove(*store, work.added, work.removed, warmUp);
    Round best;
    for (int i = 0; i < count; ++i) {
        addAndRemove(*store, work.added, work.removed, best);
    }
    delete store;
    return best;
}

/// Everything that the hub says during a round, as numbers.
template <class Store>
std::vector<int> logOf(const Workload& work)
{
    std::vector<int> log;
    QObject listener;
    IBaseSignal* const hub = IBaseSignal::getInstance();
    const auto note = [&log](std::initializer_list<int> values) { log.insert(log.end(), values); };
    QObject::connect(hub, &IBaseSignal::signal_setViewObjectListState, &listener,
                     [&](int selectModel, const Pairs& pairs, bool isShow) {
                         note({1, selectModel, isShow});
                         for (const auto& pair : pairs) {
                             note({pair.first, pair.second});
                         }
                     });
    QObject::connect(hub, &IBaseSignal::signal_updateGeomrtryActorTransparency, &listener,
                     [&](const QList<DataModel::SelectedDataBase*>& items) {
                         note({2, items.size()});
                         for (const auto* const item : items) {
                             note({item->getSelectModel(), item->getFirstID(), item->getSecondID()});
                         }
                     });
    QObject::connect(hub, &IBaseSignal::signal_updateViewObjectState, &listener,
                     [&](int selectModel, int a, int b, bool isShow) {
                         note({3, selectModel, a, b, isShow});
                     });
    QObject::connect(hub, &IBaseSignal::signal_refreshActionOnSelectDataChanged, &listener, [&] { note({4}); });
    pooledRound<Store>(work, 1);
    return log;
}

struct Click
{
    double seconds = 0;
    double allocations = 0;
};

/// A click that selects a pooled object in a selection of n, and the click that deselects it again.
Click clickIn(SelectedDataManager& store)
{
    const int toggles = 50;
    store.clickViewObject(4, 0);
    store.clickViewObject(4, 0);
    const long before = allocationCount();
    Click click;
    click.seconds = secondsOf([&] {
                        for (int i = 0; i < 2 * toggles; ++i) {
                            store.clickViewObject(4, 0);
                        }
                    }) /
                    (2 * toggles);
    click.allocations = double(allocationCount() - before) / (2 * toggles);
    return click;
}

void printRow(int count, int rounds, double& scanEstimate)
{
    const Workload work(count);
    const double half = freshRound(Workload(count / 2), rounds).total();
    const Round fresh = freshRound(work, rounds);
    const double pooled = pooledRound<SelectedDataManager>(work, rounds).total();
    std::printf("%8d %8.3f %8.3f %8.3f %5.2f %8.3f ", count, 1e3 * fresh.add, 1e3 * fresh.remove, 1e3 * fresh.total(),
                fresh.total() / half, 1e3 * pooled);
    if (scanEstimate <= scanLimit) {
        const double scan = pooledRound<LiteralStore>(work, scanEstimate < 1 ? 3 : 1).total();
        std::printf("%9.1f %8.1f ", 1e3 * scan, scan / pooled);
        scanEstimate = 6 * scan;
    } else {
        std::printf("%9s %8s ", "-", "-");
    }
    auto* const store = new SelectedDataManager;
    store->setSelectModelInMainWindow(model);
    store->addSelectedTargetList(model, work.added);
    store->addSelectedTargetList(model, {{5, 0}, {5, 1}, {5, 2}});
    store->removeSelectedTargetList(model, {{5, 0}, {5, 1}, {5, 2}});
    const Click click = clickIn(*store);
    const double clear = secondsOf([store] { store->clearAllSelectedTarget(); });
    std::printf("%8.4f %5.2f %8.3f\n", 1e3 * click.seconds, click.allocations, 1e3 * clear);
    std::fflush(stdout);
    delete store;
}

} // namespace

int main()
{
    // Memory once obtained stays with the process. Else the allocator would hand it back to the system after each round
    // from some size on, and the table would show a step there that is not the store's.
    ::mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    ::mallopt(M_MMAP_THRESHOLD, std::numeric_limits<int>::max());
    const Workload compared(20000);
    const bool isSame = logOf<SelectedDataManager>(compared) == logOf<LiteralStore>(compared);
    std::printf("signals of 20000 pairs added and removed, against one scan a pair: %s\n\n"
                "Milliseconds. 'x 2': 'both' against half as many pairs. 'pooled': added and removed again, shuffled.\n"
                "'scan': the same with one scan a pair, up to about %.0f s. 'heap': allocations a click.\n\n",
                isSame ? "identical" : "DIFFERENT", scanLimit);
    std::printf("%8s %8s %8s %8s %5s %8s %9s %8s %8s %5s %8s\n", "pairs", "add", "remove", "both", "x 2", "pooled",
                "scan", "faster", "click", "heap", "clear");
    double scanEstimate = 0;
    for (const int count : {1000, 2000, 5000, 10000, 20000, 50000, 100000, 200000, 500000, 1000000}) {
        printRow(count, count <= 20000 ? 21 : 9, scanEstimate);
    }
    return isSame ? 0 : 1;
}
