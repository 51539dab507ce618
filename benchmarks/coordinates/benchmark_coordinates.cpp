// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "LiteralComposition.h"

#include <coordinates/RegistryFixture.h>

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <random>

using BaseModule::GlobalHelper;
using DataManager::RelativeCoordinateSystem;
using DataManager::RelativeCoordinateSystemDate;

namespace {

RelativeCoordinateSystemDate& registry()
{
    return *RelativeCoordinateSystemDate::getInstance();
}

void addSystem(int id, int basicID)
{
    RelativeCoordinateSystem* const system = RegistryFixture::add(id, basicID);
    double offset[3] = {id * 0.1, id / 3.0, -id / 7.0};
    // About one axis for all, so that no evaluation stops early.
    double angles[3] = {0, 0, 0.01 * id};
    system->setName(QStringLiteral("System %1").arg(id));
    system->setType(BaseModule::Cartesian, id, basicID, -1);
    system->setOffsetCoordinate(offset, id, basicID, -1);
    system->setRotateDirection(angles, id, basicID, -1);
    system->setActorRotateDirection({QStringLiteral("RotateZ"), angles[2]}, id, basicID, -1);
}

/// The global system and a chain of `depth` below it.
void addChain(int depth)
{
    addSystem(0, 0);
    for (int id = 1; id <= depth; ++id) {
        addSystem(id, id - 1);
    }
}

/// The same, but each system's copies of the levels above were modified, each in another way.
void addModifiedChain(int depth)
{
    addChain(depth);
    for (int id = 1; id <= depth; ++id) {
        for (int owner = 1; owner < id; ++owner) {
            double angles[3] = {0, 0, 0.01 * owner + 1e-6 * id};
            registry().getCoordinateSystemByIndex(id)->setRotateDirection(angles, 0, 0, owner);
        }
    }
}

/// The global system and `count` below it, each on any of those before it.
void addTree(int count)
{
    std::mt19937 generator(1);
    addSystem(0, 0);
    for (int id = 1; id <= count; ++id) {
        addSystem(id, static_cast<int>(generator() % static_cast<unsigned>(id)));
    }
}

template <void (*AddSystems)(int)>
void compose(benchmark::State& state)
{
    RegistryFixture fixture;
    const int depth = static_cast<int>(state.range(0));
    AddSystems(depth);
    for (auto unused : state) {
        double v[3] = {1, 2, 3};
        registry().getCSRotateDirection(v, depth);
        benchmark::DoNotOptimize(v);
    }
}

void composeLiterally(benchmark::State& state)
{
    RegistryFixture fixture;
    const int depth = static_cast<int>(state.range(0));
    addChain(depth);
    for (auto unused : state) {
        double v[3] = {1, 2, 3};
        LiteralComposition::turn(v, depth);
        benchmark::DoNotOptimize(v);
    }
}

void findByID(benchmark::State& state)
{
    RegistryFixture fixture;
    const int count = static_cast<int>(state.range(0));
    addTree(count);
    for (auto unused : state) {
        benchmark::DoNotOptimize(registry().getCoordinateSystemByID(count));
    }
}

void findIndexByPointer(benchmark::State& state)
{
    RegistryFixture fixture;
    addTree(static_cast<int>(state.range(0)));
    RelativeCoordinateSystem* const last = registry().getCoordinateSystemByIndex(static_cast<int>(state.range(0)));
    for (auto unused : state) {
        benchmark::DoNotOptimize(registry().getIndexByCoordinateSystem(last));
    }
}

/// A project directory on the disk of the working directory.
class DiskDirectory
{
public:
    DiskDirectory() { GlobalHelper::setProjectTempIODir(m_directory.path()); }

private:
    QTemporaryDir m_directory{QDir::currentPath() + QStringLiteral("/coordinates-XXXXXX")};
};

template <void (*AddSystems)(int)>
void write(benchmark::State& state)
{
    RegistryFixture fixture;
    const DiskDirectory directory;
    AddSystems(static_cast<int>(state.range(0)));
    for (auto unused : state) {
        registry().writeConfig();
    }
    QByteArray content;
    registry().dataToByteArray(&content);
    state.counters["bytes"] = content.size();
}

template <void (*AddSystems)(int)>
void rebuild(benchmark::State& state)
{
    RegistryFixture fixture;
    const DiskDirectory directory;
    AddSystems(static_cast<int>(state.range(0)));
    registry().writeConfig();
    for (auto unused : state) {
        registry().resetData();
        registry().readConfig();
    }
    if (registry().getRelativeCoordinateSystemDateCount() != state.range(0) + 1) {
        state.SkipWithError("not all systems came back");
    }
}

} // namespace

BENCHMARK_TEMPLATE(compose, addChain)
    ->RangeMultiplier(2)
    ->Range(1, 64)
    ->Arg(10)
    ->Arg(20)
    ->Arg(24)
    ->Arg(200)
    ->Arg(1000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(compose, addModifiedChain)
    ->RangeMultiplier(2)
    ->Range(1, 64)
    ->Arg(10)
    ->Arg(24)
    ->Arg(200)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(composeLiterally)->RangeMultiplier(2)->Range(1, 16)->Arg(10)->Arg(20)->Unit(benchmark::kMicrosecond);
BENCHMARK(composeLiterally)->Arg(24)->Iterations(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(findByID)->Arg(10)->Arg(100)->Arg(500);
BENCHMARK(findIndexByPointer)->Arg(10)->Arg(100)->Arg(500);
BENCHMARK_TEMPLATE(write, addTree)->Arg(10)->Arg(100)->Arg(500)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_TEMPLATE(write, addChain)->Arg(10)->Arg(100)->Arg(500)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_TEMPLATE(rebuild, addTree)->Arg(10)->Arg(100)->Arg(500)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_TEMPLATE(rebuild, addChain)->Arg(10)->Arg(100)->Arg(200)->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
