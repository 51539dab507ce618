// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/mesh/MeshManager.h>
#include <workbench/mesh/MesherChild.h>
#include <workbench/mesh/MesherProgress.h>

#include <QObject>
#include <QString>

namespace Workbench {

/// Runs the mesher `gmsh` as a child process on a geometry file. The mesh goes to "../temp/mesh.msh" beside the
/// program, where the predictor reads it, and is then opened by the MeshManager; what lay there stays until the new one
/// is complete. A mesh that is being read then is given up. One run at a time, which does not outlive the program.
///
/// The program is the one that the environment variable WORKBENCH_GMSH names, else the first `gmsh` of the search path.
class MesherProcess : public QObject
{
    Q_OBJECT

public:
    /// The mesher of the process, created by the first call and never destroyed.
    static MesherProcess* instance();

    /// Meshes a .geo, .step, .stp, .brep or .iges file with tetrahedra. `elementSize` is the largest edge in model
    /// units; 0 leaves it to the file. `source` is what the mesh is to be called, by default after the file. False,
    /// with a message, when a run is under way or there is no mesher. One that is there but cannot be started may be
    /// told later, by a message and signal_finished(false).
    bool start(const QString& geometryPath, double elementSize = 0, const MeshSource& source = {});
    /// False, with a message, while a run is under way.
    bool mayStart() const;
    bool isRunning() const { return m_isRunning; }
    /// Whether the mesh of a run that has ended is being read.
    bool isResultRead() const { return m_isResultRead; }
    /// Ends the run; nothing is opened and nothing is told but signal_finished(false).
    void cancel();

    /// Whether files of this name are geometry that the mesher reads.
    static bool isGeometry(const QString& path);
    /// Where the mesh goes.
    static QString outputPath();

Q_SIGNALS:
    void signal_started(QString geometryPath);
    void signal_progress(int percent);
    /// A piece of what the mesher prints.
    void signal_output(QString text);
    void signal_finished(bool isMeshed);

private:
    MesherProcess();
    ~MesherProcess() override = default;

    void read();
    void finish(int exitCode, QProcess::ExitStatus status);
    void failToStart(QProcess::ProcessError error);
    QString failureText(int exitCode, QProcess::ExitStatus status) const;
    QStringList arguments(double elementSize) const;
    static QString program();
    /// Where the mesher writes.
    static QString unfinishedPath();
    /// Gives up a reading under way, too.
    static bool putInPlace();
    static void showError(const QString& text);

    MesherChild m_process;
    MesherProgress m_progress;
    QString m_geometryPath;
    MeshSource m_source;
    bool m_isRunning = false;
    bool m_isResultRead = false;
    bool m_isCancelled = false;
};

} // namespace Workbench
