// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/project/Project.h>

#include <workbench/file/FileCopy.h>
#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/project/WorkingDirectory.h>

#include <basemodule/IBaseSignal.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

using BaseModule::IBaseSignal;

namespace Workbench {
QString Project::name() const
{
    return m_path.isEmpty() ? tr("Untitled") : QFileInfo(m_path).completeBaseName();
}

// The library saves materials by itself and tells nobody: their file shows it.
QDateTime Project::materialsSaved() const
{
    const QString path = m_directory ? ProjectFiles::materials(m_directory->path()) : QString();
    return QFileInfo(path).lastModified();
}

bool Project::isModified() const
{
    return m_isModified || materialsSaved() != m_materialsSaved;
}

void Project::setModified(bool isModified)
{
    m_isModified = isModified;
    if (!isModified) {
        m_materialsSaved = materialsSaved();
    }
    Q_EMIT signal_changed();
}

void Project::noteChange()
{
    if (!m_isLoading && !MeshManager::instance()->isRestoring()) {
        m_isChangedSince = true;
        setModified(true);
    }
}

void Project::noteFileChange()
{
    if (!m_isLoading && isModified()) {
        setModified(true);
    }
}

void Project::watchManagers()
{
    const GeometryManager* geometry = GeometryManager::instance();
    connect(geometry, &GeometryManager::signal_componentListDataChanged, this, &Project::noteChange);
    connect(geometry, &GeometryManager::signal_componentListRemoved, this, &Project::noteChange);
    connect(geometry, &GeometryManager::signal_geoSetListDataChanged, this, &Project::noteChange);
    connect(geometry, &GeometryManager::signal_geoSetListRemoved, this, &Project::noteChange);
    const MeshManager* mesh = MeshManager::instance();
    connect(mesh, &MeshManager::signal_kernalDataListChanged, this, &Project::noteChange);
    connect(mesh, &MeshManager::signal_kernalDataListDeleted, this, &Project::noteChange);
    connect(mesh, &MeshManager::signal_groupDataListChanged, this, &Project::noteChange);
    connect(mesh, &MeshManager::signal_groupDataListDeleted, this, &Project::noteChange);
    connect(mesh, &MeshManager::signal_visibilityChanged, this, &Project::noteChange);
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_updateWindowTitle, this, &Project::noteChange);
    connect(mesh, &MeshManager::signal_loadFinished, this, &Project::saveWanted);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &Project::noteFileChange);
    connect(&m_transfer, &BackgroundTask::signal_progress, this, &Project::signal_transferProgress);
}

bool Project::fail(const QString& text, const QString& path, const QString& problem)
{
    const QString message = text.arg(QDir::toNativeSeparators(path), problem);
    Q_EMIT IBaseSignal::getInstance()->signal_showMessageType(2, message);
    return false;
}

bool Project::takeGeometry(const QString& path)
{
    if (!m_directory) {
        return fail(tr("The geometry %1 cannot be opened: %2"), path, tr("no working directory can be made"));
    }
    const QString copy = ProjectFiles::geometrySource(m_directory->path(), path);
    QFile source(path);
    if (!QFileInfo(path).isFile() || !source.open(QIODevice::ReadOnly)) {
        return fail(tr("The geometry %1 cannot be opened: %2"), path, tr("it cannot be read"));
    }
    if (QFileInfo(path) == QFileInfo(copy)) {
        return true;
    }
    const FileCopy outcome = replaceByCopy(source, copy, [](double) { return true; });
    if (!outcome.isDone) {
        return fail(tr("The geometry %1 cannot be opened: %2"), path, outcome.problem);
    }
    if (!geometryName().isEmpty() && geometryPath() != copy) {
        QFile::remove(geometryPath());
    }
    m_geometry = {QFileInfo(path).fileName(), QFileInfo(path).absoluteFilePath()};
    noteChange();
    return true;
}

QString Project::geometryPath() const
{
    return geometryName().isEmpty() || !m_directory ? QString()
                                                    : ProjectFiles::geometrySource(m_directory->path(), geometryName());
}

} // namespace Workbench
