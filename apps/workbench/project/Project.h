// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/project/ProjectFiles.h>
#include <workbench/task/BackgroundTask.h>

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>

#include <memory>

namespace Workbench {

class WorkingDirectory;

/// The open project; there always is one, at first a new, empty one.
///
/// Its working files lie in a directory of its own, which `GlobalHelper::getProjectTempIODir` names. Saving packs them
/// into one archive file. What fails is told by `signal_showMessageType`.
///
/// Archives are written and read in a thread. What was told to begin is done in turn: a project is saved when the mesh
/// that is being read is there, and a second saving follows the first. Where a call returns an outcome it waits for
/// all of this, and holds the window up meanwhile.
class Project : public QObject
{
    Q_OBJECT

public:
    /// The project of the process, created by the first call, which also makes the global coordinate system.
    static Project* instance();

    /// Begins a new, empty project in place of the open one, whose unsaved changes are lost. False when no working
    /// directory can be made; the open project then stays.
    bool create();

    /// Opens a project file likewise. When it cannot be read, or cancelTransfer() comes first, the open project stays
    /// as it is. The mesh is then read in the background (MeshManager::signal_loadFinished).
    void startOpening(const QString& path);
    bool open(const QString& path);
    bool isOpening() const { return m_isOpening; }

    /// Saves as it is now, under this path from now on; what changes meanwhile is unsaved. When that fails the file
    /// holds what it held before.
    void startSaving(const QString& path);
    bool saveAs(const QString& path);
    /// Under path(), which is not empty.
    bool save();
    /// Whether saving is under way, or waits.
    bool isSaving() const { return m_isSaving || !m_wantedPath.isEmpty(); }

    /// Gives up opening and saving; files and the open project stay as they are.
    void cancelTransfer();
    /// Ends with the project: removes its working directory. Call it before the process ends.
    void close();

    /// Where the project was saved or opened; empty for a new one.
    QString path() const { return m_path; }
    /// The file's name without suffix, or "Untitled" in the interface language.
    QString name() const;
    /// Whether there is something to save.
    bool isModified() const;

    /// Takes a copy of a geometry file into the project, for the mesher. False, with a message, when it cannot be read.
    bool takeGeometry(const QString& path);
    /// The copy; empty without geometry.
    QString geometryPath() const;
    /// The name of the file that was copied, and where it came from.
    QString geometryName() const { return m_geometry.name; }
    QString geometryOrigin() const { return m_geometry.origin; }

    static QString fileSuffix() { return QStringLiteral("wbproj"); }

Q_SIGNALS:
    /// Path, geometry or isModified() changed.
    void signal_changed();
    /// Another project is open: everything may have changed.
    void signal_opened();
    /// An archive is being written or read; or, as soon as the mesh is there, it will be written.
    void signal_transferStarted(QString path, bool isSaving);
    void signal_transferProgress(int percent);
    /// The outcome of the latest; what failed was told, what was cancelled is not.
    void signal_transferFinished(bool isDone);

private:
    /// What came out of an archive.
    struct Arrival
    {
        std::unique_ptr<WorkingDirectory> directory;
        ProjectFiles::Description description;
        QString problem;
    };

    Project();
    ~Project() override;

    void watchManagers();
    void adopt(std::unique_ptr<WorkingDirectory> directory);
    void unload();
    void load(const CoordinateDisplay& coordinates);

    void saveWanted();
    bool prepareFiles();
    void beginSaving(const QString& path);
    void finishSaving(const QString& path, const QString& problem, bool isCancelled);
    void finishOpening(const QString& path, Arrival& arrival, bool isCancelled);
    void endTransfer(bool isDone);
    void waitForTransfer();

    void setModified(bool isModified);
    void noteChange();
    void noteFileChange();
    QDateTime materialsSaved() const;
    bool fail(const QString& text, const QString& path, const QString& problem);

    std::unique_ptr<WorkingDirectory> m_directory;
    QString m_path;
    ProjectFiles::GeometrySource m_geometry;
    bool m_isModified = false;
    bool m_isLoading = false;
    QDateTime m_materialsSaved;

    BackgroundTask m_transfer;
    bool m_isOpening = false;
    bool m_isSaving = false;
    /// Where to save next; empty when nothing waits.
    QString m_wantedPath;
    bool m_isTransferDone = false;
    /// What became of the project since the snapshot that is being saved.
    bool m_isChangedSince = false;
    QDateTime m_materialsInSnapshot;
    QFileSystemWatcher m_watcher;
};

} // namespace Workbench
