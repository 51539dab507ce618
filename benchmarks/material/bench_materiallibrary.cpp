// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// How long a material library takes to load, save, search and import, and whether the time per material stays the same
// as libraries grow. Peers in the same run: Qt's own parsing and printing of the same JSON, and a copy of the map.

#include <datamanager/material/MaterialLibraryManager.h>

#include <basemodule/GlobalConfig.h>
#include <basemodule/GlobalHelper.h>
#include <basemodule/SerializerBase.h>
#include <datamodel/MaterialDataArray.h>

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <random>

using BaseModule::GlobalHelper;
using BaseModule::ProjectLib;
using BaseModule::SoftwareLib;
using DataManager::MaterialLibraryManager;

namespace {

QSharedPointer<DataModel::MaterialPropertyData> property(std::mt19937_64& random)
{
    const auto record = QSharedPointer<DataModel::MaterialPropertyData>::create();
    record->label = QStringLiteral("relative permittivity");
    record->kind = 1;
    record->remark = QStringLiteral("1; measured at 1 MHz and 293 K");
    std::lognormal_distribution<double> value(0, 3);
    for (int i = 0; i < 9; ++i) {
        record->components.append(i % 4 == 0 ? value(random) : 0);
    }
    return record;
}

/// A library file with `count` materials of five properties each.
QByteArray libraryJson(int count)
{
    std::mt19937_64 random(1);
    DataModel::MaterialDataArray library;
    for (int id = 1; id <= count; ++id) {
        library.materialList.append(QSharedPointer<DataModel::MaterialData>::create(
            id, QStringLiteral("材料 %1").arg(id), QStringLiteral("material %1").arg(id), property(random),
            property(random), property(random), property(random), property(random)));
    }
    return QJsonHelper::SerializerBase::serialize(&library, DataModel::MaterialDataArray::staticMetaObject, false);
}

const QByteArray& json(int count)
{
    static QHash<int, QByteArray> texts;
    QByteArray& text = texts[count];
    if (text.isEmpty()) {
        text = libraryJson(count);
    }
    return text;
}

MaterialLibraryManager& loadedManager(int count, bool isDevelop)
{
    auto& manager = *MaterialLibraryManager::getInstance();
    GlobalConfig::setIsDevelop(true);
    const QString path = GlobalHelper::getProjectTempIODir() + QStringLiteral("/MaterialLibrary.json");
    QFile::remove(path);
    if (!GlobalHelper::writeFile(path, json(count), QIODevice::WriteOnly | QIODevice::Truncate)) {
        qFatal("cannot write to the temporary directory");
    }
    manager.initProjectMaterial();
    QFile::remove(path);
    GlobalConfig::setIsDevelop(isDevelop);
    manager.writeProjectMatConfig();
    return manager;
}

void perMaterial(benchmark::State& state)
{
    state.counters["per_material"] = benchmark::Counter(
        double(state.range(0)), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void load(benchmark::State& state, bool isDevelop)
{
    MaterialLibraryManager& manager = loadedManager(int(state.range(0)), isDevelop);
    for (auto _ : state) {
        manager.initProjectMaterial();
    }
    perMaterial(state);
}

void save(benchmark::State& state, bool isDevelop)
{
    MaterialLibraryManager& manager = loadedManager(int(state.range(0)), isDevelop);
    for (auto _ : state) {
        manager.writeProjectMatConfig();
    }
    perMaterial(state);
}

/// The first save after a load, as after every start.
void loadAndSave(benchmark::State& state, bool isDevelop)
{
    MaterialLibraryManager& manager = loadedManager(int(state.range(0)), isDevelop);
    for (auto _ : state) {
        manager.initProjectMaterial();
        manager.writeProjectMatConfig();
    }
    perMaterial(state);
}

void findByName(benchmark::State& state)
{
    MaterialLibraryManager& manager = loadedManager(int(state.range(0)), true);
    const QString last = QStringLiteral("material %1").arg(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(manager.getProjectMatByName(last));
    }
    perMaterial(state);
}

void checkName(benchmark::State& state)
{
    MaterialLibraryManager& manager = loadedManager(int(state.range(0)), true);
    for (auto _ : state) {
        benchmark::DoNotOptimize(manager.hasSameName(QStringLiteral("no such material"), ProjectLib));
    }
    perMaterial(state);
}

void describe(benchmark::State& state)
{
    MaterialLibraryManager& manager = loadedManager(int(state.range(0)), true);
    for (auto _ : state) {
        benchmark::DoNotOptimize(manager.getMatDesByID(int(state.range(0))));
    }
}

/// From the software into an empty project library, the save included.
void import(benchmark::State& state)
{
    const int count = int(state.range(0));
    MaterialLibraryManager& manager = loadedManager(count, true);
    if (manager.getNextMatIDByType(SoftwareLib) <= count) {
        manager.importAllMaterial(ProjectLib);
    }
    QList<int> ids;
    for (int id = 1; id <= count; ++id) {
        ids.append(id);
    }
    for (auto _ : state) {
        state.PauseTiming();
        manager.clearProjectMaterial();
        state.ResumeTiming();
        manager.importMaterial(SoftwareLib, ids);
    }
    perMaterial(state);
}

void peerParse(benchmark::State& state)
{
    const QByteArray& text = json(int(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(QJsonDocument::fromJson(text));
    }
    perMaterial(state);
}

void peerPrint(benchmark::State& state)
{
    const QJsonDocument document = QJsonDocument::fromJson(json(int(state.range(0))));
    for (auto _ : state) {
        benchmark::DoNotOptimize(document.toJson(QJsonDocument::Compact));
    }
    perMaterial(state);
}

void peerMapCopy(benchmark::State& state)
{
    MaterialLibraryManager& manager = loadedManager(int(state.range(0)), true);
    for (auto _ : state) {
        auto copy = manager.getMatLibDataByType(ProjectLib);
        copy.detach();
        benchmark::DoNotOptimize(copy);
    }
    perMaterial(state);
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Unit(benchmark::kMillisecond);
    for (const int count : {100, 1000, 10000, 100000}) {
        benchmark->Arg(count);
    }
}

} // namespace

BENCHMARK_CAPTURE(load, plain, true)->Apply(sizes);
BENCHMARK_CAPTURE(load, enciphered, false)->Apply(sizes);
BENCHMARK_CAPTURE(save, plain, true)->Apply(sizes)->UseRealTime();
BENCHMARK_CAPTURE(save, enciphered, false)->Apply(sizes)->UseRealTime();
BENCHMARK_CAPTURE(loadAndSave, plain, true)->Apply(sizes)->UseRealTime();
BENCHMARK_CAPTURE(loadAndSave, enciphered, false)->Apply(sizes)->UseRealTime();
BENCHMARK(findByName)->Apply(sizes);
BENCHMARK(checkName)->Apply(sizes);
BENCHMARK(describe)->Apply(sizes);
BENCHMARK(import)->Apply(sizes)->UseRealTime();
BENCHMARK(peerParse)->Apply(sizes);
BENCHMARK(peerPrint)->Apply(sizes);
BENCHMARK(peerMapCopy)->Apply(sizes);

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QTemporaryDir directory;
    QFile::remove(QCoreApplication::applicationDirPath() + QStringLiteral("/ConfigFiles/MaterialLibrary.json"));
    GlobalHelper::setProjectTempIODir(directory.path());
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
