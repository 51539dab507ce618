// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause
//
// How long does the window keep its user waiting? For each mesh one table of what is done with it in the whole window,
// from the call to the finished picture: seconds by the clock, seconds of processor time in all threads, which other
// work on the machine changes less, and the latter as a multiple of reading that mesh in this run without a window.
//   scripts/with-display.sh bench_workbench MESH...

#include <workbench/mesh/MeshDisplay.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/project/Project.h>
#include <workbench/quality/ElementSelection.h>
#include <workbench/quality/MeshFigures.h>
#include <workbench/quality/QualityFigures.h>
#include <workbench/selection/SelectionUndo.h>
#include <workbench/view/ViewCommands.h>
#include <workbench/window/Graphics.h>
#include <workbench/window/MainWindow.h>

#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QApplication>
#include <QEventLoop>
#include <QStandardPaths>
#include <QUndoStack>
#include <QVTKOpenGLNativeWidget.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <numeric>

using DataManager::SelectedDataManager;
using namespace Workbench;

namespace {

using Metric = DataManager::MeshQualityReport::Metric;
using Work = std::function<void()>;

/// Everything that waits is done, and what was drawn can be read back.
void finish(MainWindow& window)
{
    for (int turn = 0; turn < 3; ++turn) {
        QApplication::processEvents();
    }
    window.findChild<QVTKOpenGLNativeWidget*>()->grabFramebuffer();
}

struct Seconds
{
    double clock;
    double processor;
};

double secondsOn(clockid_t clock)
{
    timespec time{};
    ::clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

Seconds now()
{
    return {secondsOn(CLOCK_MONOTONIC), secondsOn(CLOCK_PROCESS_CPUTIME_ID)};
}

Seconds secondsOf(const Work& work)
{
    const Seconds start = now();
    work();
    const Seconds end = now();
    return {end.clock - start.clock, end.processor - start.processor};
}

void open(const QString& path)
{
    QEventLoop loop;
    QObject::connect(MeshManager::instance(), &MeshManager::signal_loadFinished, &loop, &QEventLoop::quit);
    MeshManager::instance()->openMesh(path);
    loop.exec();
}

void waitForFigures()
{
    while (!MeshFigures::instance()->figures().request.mesh) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    }
}

std::vector<int> allPlaces(int kernelID)
{
    std::vector<int> places(static_cast<std::size_t>(MeshManager::instance()->getElementCount(kernelID)));
    std::iota(places.begin(), places.end(), 0);
    return places;
}

std::vector<int> everyOther(const std::vector<int>& places)
{
    std::vector<int> half;
    std::copy_if(places.begin(), places.end(), std::back_inserter(half), [](int place) { return place % 2 == 0; });
    return half;
}

std::vector<int> highestBar()
{
    const QualityFigures& figures = MeshFigures::instance()->figures();
    const auto& counts = figures.histogram.counts;
    const int bar = static_cast<int>(std::max_element(counts.begin(), counts.end()) - counts.begin());
    return elementsInBins(figures, bar, bar);
}

class Table
{
public:
    Table(MainWindow& window, const Seconds& reading) : m_window(window), m_reading(reading) {}

    void row(const char* what, const Work& work) const
    {
        const Seconds seconds = secondsOf([&] {
            work();
            finish(m_window);
        });
        print(what, seconds);
    }

    void print(const char* what, const Seconds& seconds) const
    {
        std::printf("%-42s %9.3f %9.3f %9.2f\n", what, seconds.clock, seconds.processor,
                    seconds.processor / m_reading.processor);
        std::fflush(stdout);
    }

private:
    MainWindow& m_window;
    Seconds m_reading;
};

void select(const Table& table, int kernelID)
{
    const auto clear = [] { SelectedDataManager::getInstance()->clearAllSelectedTarget(); };
    const std::vector<int> bar = highestBar();
    const std::vector<int> all = allPlaces(kernelID);
    const std::vector<int> half = everyOther(all);
    std::printf("the highest bar holds %d elements\n", static_cast<int>(bar.size()));
    SelectedDataManager::getInstance()->setSelectModelInMainWindow(BaseModule::MeshElement);
    table.row("select one element", [&] { SelectedDataManager::getInstance()->clickViewObject(kernelID, 1); });
    table.row("select the highest bar", [&] { selectElements(kernelID, bar, false); });
    table.row("turn the camera while it is selected",
              [] { ViewCommands::instance()->lookFrom(ViewCommands::Direction::Front); });
    table.row("clear it", clear);
    table.row("select every other element", [&] { selectElements(kernelID, half, false); });
    table.row("turn the camera while they are selected",
              [] { ViewCommands::instance()->lookFrom(ViewCommands::Direction::Isometric); });
    table.row("clear them", clear);
    table.row("select all elements", [&] { selectElements(kernelID, all, false); });
    table.row("clear all", clear);
    table.row("undo that", [] { SelectionUndo::instance()->stack()->undo(); });
    table.row("switch to nodes, which deselects all",
              [] { SelectedDataManager::getInstance()->setSelectModelInMainWindow(BaseModule::MeshNode); });
    clear();
}

void measure(MainWindow& window, const QString& path)
{
    const Seconds reading = secondsOf([&path] { readKernelMesh(path, [](double) { return true; }); });
    const Table table(window, reading);
    std::printf("\n%s\n%-42s %9s %9s %9s\n", qPrintable(path), "", "clock", "processor", "readings");
    table.print("read without a window", reading);
    table.row("open", [&path] { open(path); });
    waitForFigures();
    const int kernelID = MeshManager::instance()->findKernels(QString()).value(0);
    std::printf("%d elements\n", MeshManager::instance()->getElementCount(kernelID));
    table.row("turn the camera", [] { ViewCommands::instance()->lookFrom(ViewCommands::Direction::Front); });
    table.row("colour by shape", [] { MeshDisplay::instance()->colourByMetric(Metric::Shape); });
    table.row("colour by face", [] { MeshDisplay::instance()->colourByFace(); });
    select(table, kernelID);
}

} // namespace

int main(int argc, char** argv)
{
    prepareGraphics();
    QStandardPaths::setTestModeEnabled(true);
    QApplication::setOrganizationName(QStringLiteral("DataManager"));
    QApplication::setApplicationName(QStringLiteral("workbench-benchmark"));
    QApplication application(argc, argv);
    const QStringList paths = QApplication::arguments().mid(1);
    {
        MainWindow window;
        window.resize(1500, 900);
        window.show();
        for (const QString& path : paths) {
            measure(window, path);
        }
    }
    Project::instance()->close();
    return paths.isEmpty() ? 2 : 0;
}
