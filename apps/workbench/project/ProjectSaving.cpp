// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/project/Project.h>

#include <workbench/coordinates/CoordinateSystems.h>
#include <workbench/geometry/GeometryManager.h>
#include <workbench/material/MaterialLibraries.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/project/ProjectArchive.h>
#include <workbench/project/RecentProjects.h>
#include <workbench/project/Snapshot.h>
#include <workbench/project/WorkingDirectory.h>

#include <QFileInfo>
#include <QScopedValueRollback>

namespace Workbench {

bool Project::save()
{
    waitForTransfer();
    return saveAs(m_path);
}

bool Project::saveAs(const QString& path)
{
    waitForTransfer();
    startSaving(path);
    waitForTransfer();
    return m_isTransferDone;
}

void Project::startSaving(const QString& path)
{
    if (m_isOpening) {
        fail(tr("The project %1 cannot be saved: %2"), path, tr("another one is being opened"));
        return;
    }
    const bool isTold = isSaving();
    m_wantedPath = QFileInfo(path).absoluteFilePath();
    if (!isTold) {
        Q_EMIT signal_transferStarted(m_wantedPath, true);
    }
    saveWanted();
}

void Project::saveWanted()
{
    if (m_wantedPath.isEmpty() || m_isSaving || MeshManager::instance()->isLoading()) {
        return;
    }
    const QString path = m_wantedPath;
    m_wantedPath.clear();
    m_isSaving = true;
    if (prepareFiles()) {
        beginSaving(path);
    } else {
        finishSaving(path, tr("its working files could not be written"), false);
    }
}

bool Project::prepareFiles()
{
    if (!m_directory) {
        return false;
    }
    const QString directory = m_directory->path();
    const ProjectFiles::Description description{m_geometry, CoordinateSystems::instance()->display()};
    // Telling of the files is no change of the project.
    const QScopedValueRollback<bool> quiet(m_isLoading, true);
    return MaterialLibraries::instance()->saveProject() && CoordinateSystems::instance()->saveProject() &&
           GeometryManager::instance()->save(ProjectFiles::geometry(directory)) &&
           MeshManager::instance()->save(ProjectFiles::mesh(directory)) &&
           ProjectFiles::writeDescription(directory, description);
}

void Project::beginSaving(const QString& path)
{
    const auto snapshot = std::make_shared<Snapshot>(m_directory->path());
    if (!snapshot->isComplete()) {
        finishSaving(path, tr("its working files could not be written"), false);
        return;
    }
    m_isChangedSince = false;
    m_materialsInSnapshot = materialsSaved();
    const auto problem = std::make_shared<QString>();
    m_transfer.start(
        [path, snapshot, problem](const BackgroundTask::Progress& progress) {
            *problem = ProjectArchive::pack(snapshot->path(), ProjectFiles::all(snapshot->path()), path, progress);
        },
        [this, path, problem](bool isCancelled) { finishSaving(path, *problem, isCancelled); });
}

// Saving that was cancelled when the file was in place already has saved.
void Project::finishSaving(const QString& path, const QString& problem, bool isCancelled)
{
    m_isSaving = false;
    if (problem.isEmpty()) {
        m_path = path;
        m_isModified = m_isChangedSince;
        m_materialsSaved = m_materialsInSnapshot;
        RecentProjects::instance()->add(m_path);
        Q_EMIT signal_changed();
    } else if (!isCancelled) {
        fail(tr("The project %1 cannot be saved: %2"), path, problem);
    }
    endTransfer(problem.isEmpty());
}

// What waits follows, and only the last outcome is told.
void Project::endTransfer(bool isDone)
{
    m_isTransferDone = isDone;
    saveWanted();
    if (!isSaving()) {
        Q_EMIT signal_transferFinished(m_isTransferDone);
    }
}

void Project::cancelTransfer()
{
    const bool wasWaiting = !m_wantedPath.isEmpty();
    m_wantedPath.clear();
    if (m_transfer.isActive()) {
        m_transfer.cancel();
    } else if (wasWaiting) {
        endTransfer(false);
    }
}

void Project::waitForTransfer()
{
    while (m_transfer.isActive() || !m_wantedPath.isEmpty()) {
        if (m_transfer.isActive()) {
            m_transfer.wait();
        } else {
            MeshManager::instance()->waitForLoad();
        }
    }
}

} // namespace Workbench
