// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/project/Project.h>

#include <workbench/coordinates/CoordinateSystems.h>
#include <workbench/geometry/GeometryManager.h>
#include <workbench/material/MaterialLibraries.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/mesh/MesherProcess.h>
#include <workbench/project/ProjectArchive.h>
#include <workbench/project/ProjectFiles.h>
#include <workbench/project/RecentProjects.h>
#include <workbench/project/WorkingDirectory.h>

#include <basemodule/GlobalHelper.h>
#include <basemodule/IBaseSignal.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

#include <utility>

using BaseModule::GlobalHelper;
using BaseModule::IBaseSignal;
using DataManager::SelectedDataManager;

namespace Workbench {
namespace {

// Once, and when there is a window that shows it.
void tellPlace(const QString& directory)
{
    static bool isTold = false;
    if (!std::exchange(isTold, true)) {
        const QString text =
            Project::tr("No working directory can be made in %1. The project's working files lie in "
                        "%2, where other programs may remove them.")
                .arg(QDir::toNativeSeparators(WorkingDirectory::parentPath()), QDir::toNativeSeparators(directory));
        IBaseSignal* signal = IBaseSignal::getInstance();
        QTimer::singleShot(0, signal, [signal, text] { Q_EMIT signal->signal_showMessageType(2, text); });
    }
}

} // namespace

Project* Project::instance()
{
    static auto* const project = new Project;
    return project;
}

Project::Project()
{
    SelectedDataManager::getInstance()->init();
    SelectedDataManager::getInstance()->setHighLightCheckEnable(true);
    watchManagers();
    if (!create()) {
        // Again when there is a window that tells what is wrong.
        QTimer::singleShot(0, this, [this] {
            if (!m_directory) {
                create();
            }
        });
    }
    // The first access makes the global system, which must be there before any file is read.
    m_isLoading = true;
    connect(CoordinateSystems::instance(), &CoordinateSystems::signal_displayChanged, this, &Project::noteChange);
    m_isLoading = false;
}

Project::~Project() = default;

bool Project::create()
{
    waitForTransfer();
    auto directory = std::make_unique<WorkingDirectory>();
    if (!directory->isValid()) {
        return fail(tr("No working directory can be made in %1: %2"), WorkingDirectory::parentPath(),
                    tr("is there space, and permission?"));
    }
    adopt(std::move(directory));
    m_path.clear();
    m_geometry = {};
    setModified(false);
    Q_EMIT signal_opened();
    return true;
}

bool Project::open(const QString& path)
{
    startOpening(path);
    waitForTransfer();
    return m_isTransferDone;
}

void Project::startOpening(const QString& path)
{
    waitForTransfer();
    m_isOpening = true;
    Q_EMIT signal_transferStarted(path, false);
    const auto arrival = std::make_shared<Arrival>();
    arrival->directory = std::make_unique<WorkingDirectory>();
    m_transfer.start(
        [path, arrival](const BackgroundTask::Progress& progress) {
            const QString directory = arrival->directory->path();
            arrival->problem = arrival->directory->isValid() ? ProjectArchive::unpack(path, directory, progress)
                                                             : tr("no working directory can be made");
            if (arrival->problem.isEmpty()) {
                arrival->problem = ProjectFiles::check(directory, arrival->description);
            }
        },
        [this, path, arrival](bool isCancelled) { finishOpening(path, *arrival, isCancelled); });
}

void Project::finishOpening(const QString& path, Arrival& arrival, bool isCancelled)
{
    m_isOpening = false;
    const bool isDone = arrival.problem.isEmpty() && !isCancelled;
    if (isDone) {
        adopt(std::move(arrival.directory));
        m_path = QFileInfo(path).absoluteFilePath();
        const ProjectFiles::GeometrySource& geometry = arrival.description.geometry;
        const QString copy = ProjectFiles::geometrySource(m_directory->path(), geometry.name);
        m_geometry = QFile::exists(copy) ? geometry : ProjectFiles::GeometrySource();
        load(arrival.description.coordinates);
        RecentProjects::instance()->add(m_path);
        Q_EMIT signal_opened();
    } else if (!isCancelled) {
        fail(tr("The project %1 cannot be opened: %2"), path, arrival.problem);
    }
    endTransfer(isDone);
}

// Lets go of the open project's content while its files are still there, then makes the directory the current one.
void Project::adopt(std::unique_ptr<WorkingDirectory> directory)
{
    m_isLoading = true;
    if (m_directory) {
        unload();
        m_watcher.removePath(m_directory->path());
    }
    m_directory = std::move(directory);
    m_watcher.addPath(m_directory->path());
    GlobalHelper::setProjectTempIODir(m_directory->path());
    m_isLoading = false;
    if (m_directory->isElsewhere()) {
        tellPlace(m_directory->path());
    }
}

void Project::unload()
{
    MesherProcess::instance()->cancel();
    SelectedDataManager::getInstance()->clearAllSelectedTarget();
    MeshManager::instance()->clear();
    GeometryManager::instance()->clear();
    CoordinateSystems::instance()->clearProject();
    MaterialLibraries::instance()->clearProject();
}

void Project::load(const CoordinateDisplay& coordinates)
{
    m_isLoading = true;
    const QString directory = m_directory->path();
    if (ProjectFiles::areMaterialsUnreadable(directory)) {
        fail(tr("The materials of the project %1 cannot be read: %2"), m_path,
             tr("they were saved with another key, or are damaged. The file is kept in the project"));
    }
    MaterialLibraries::instance()->loadProject();
    if (!CoordinateSystems::instance()->loadProject()) {
        fail(tr("The coordinate systems of the project %1 cannot be read: %2"), m_path,
             tr("their file is damaged. It is kept in the project"));
    }
    CoordinateSystems::instance()->setDisplay(coordinates);
    GeometryManager::instance()->load(ProjectFiles::geometry(directory));
    MeshManager::instance()->restore(ProjectFiles::mesh(directory));
    m_isLoading = false;
    setModified(false);
}

void Project::close()
{
    waitForTransfer();
    m_isLoading = true;
    unload();
    GlobalHelper::setProjectTempIODir(QString());
    if (m_directory) {
        m_watcher.removePath(m_directory->path());
        m_directory.reset();
    }
    m_path.clear();
}

} // namespace Workbench
