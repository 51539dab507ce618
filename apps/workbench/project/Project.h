// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

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
class Project : public QObject
{
    Q_OBJECT

public:
    /// The project of the process, created by the first call, which also makes the global coordinate system.
    static Project* instance();

    /// Begins a new, empty project in place of the open one, whose unsaved changes are lost. False when no working
    /// directory can be made; the open project then stays.
    bool create();
    /// Opens a project file likewise. False when it cannot be read; the open project then stays as it is. The mesh is
    /// read in the background (MeshManager::signal_loadFinished).
    bool open(const QString& path);
    /// Saves under path(), which is not empty, or under another path from now on. False when that fails; the file then
    /// holds what it held before.
    bool save();
    bool saveAs(const QString& path);
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
    /// The name of the file that was copied.
    QString geometryName() const { return m_geometryName; }

    static QString fileSuffix() { return QStringLiteral("wbproj"); }

Q_SIGNALS:
    /// Path, geometry or isModified() changed.
    void signal_changed();
    /// Another project is open: everything may have changed.
    void signal_opened();

private:
    Project();
    ~Project() override;

    void watchManagers();
    void adopt(std::unique_ptr<WorkingDirectory> directory);
    void unload();
    void load();
    void setModified(bool isModified);
    void noteChange();
    void noteFileChange();
    QDateTime materialsSaved() const;
    bool fail(const QString& text, const QString& path, const QString& problem);

    std::unique_ptr<WorkingDirectory> m_directory;
    QString m_path;
    QString m_geometryName;
    bool m_isModified = false;
    bool m_isLoading = false;
    QDateTime m_materialsSaved;
    QFileSystemWatcher m_watcher;
};

} // namespace Workbench
