// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/mesh/KernelMesh.h>
#include <workbench/task/BackgroundTask.h>

#include <QList>
#include <QObject>
#include <QString>
#include <QVector>

#include <functional>

namespace Workbench {

/// Reads meshes in a thread of its own. Its signals arrive in the thread in which it lives.
class MeshLoader : public QObject
{
    Q_OBJECT

public:
    struct Job
    {
        QString source;
        /// Where to copy the file before it is read from there; empty to read it where it is.
        QString copy;
        /// Where to put another copy, if possible, once it is read; empty for nowhere. A copy takes the place of what
        /// is there when it is whole; reading that is given up before that leaves it as it is.
        QString otherCopy;
    };

    /// Told of the outcome of each job; the first that fails ends the work and is the last.
    using Finish = std::function<void(const QVector<KernelReading>& readings)>;

    explicit MeshLoader(QObject* parent = nullptr);

    /// Gives up what is under way, without telling, and begins.
    void start(const QList<Job>& jobs, const Finish& finish);
    /// Gives up what is under way; it is told as cancelled.
    void cancel() { m_task.cancel(); }
    /// Gives up what is under way, without telling.
    void abandon() { m_task.abandon(); }
    /// Returns when what is under way is done and told.
    void wait() { m_task.wait(); }
    bool isActive() const { return m_task.isActive(); }

    /// Does the same work in the calling thread.
    static QVector<KernelReading> read(const QList<Job>& jobs, const KernelProgress& progress);

Q_SIGNALS:
    void signal_progress(int percent);

private:
    BackgroundTask m_task;
};

} // namespace Workbench
