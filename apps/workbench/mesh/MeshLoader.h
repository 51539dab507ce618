// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/mesh/KernelMesh.h>

#include <QList>
#include <QObject>
#include <QString>
#include <QVector>

#include <atomic>
#include <functional>
#include <memory>

class QThread;

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
        /// Where to put another copy, if possible, once it is read; empty for nowhere.
        QString otherCopy;
    };

    /// Told of the outcome of each job; the first that fails ends the work and is the last.
    using Finish = std::function<void(const QVector<KernelReading>& readings)>;

    explicit MeshLoader(QObject* parent = nullptr);
    ~MeshLoader() override;

    /// Gives up what is under way, without telling, and begins.
    void start(const QList<Job>& jobs, const Finish& finish);
    /// Gives up what is under way; it is told as cancelled.
    void cancel();
    /// Gives up what is under way, without telling.
    void abandon() { stopThread(); }
    bool isActive() const { return m_thread != nullptr; }

    /// Does the same work in the calling thread.
    static QVector<KernelReading> read(const QList<Job>& jobs, const KernelProgress& progress);

Q_SIGNALS:
    void signal_progress(int percent);

private:
    void end(const Finish& finish, const QVector<KernelReading>& readings);
    void stopThread();

    QThread* m_thread = nullptr;
    std::shared_ptr<std::atomic<bool>> m_isCancelled;
};

} // namespace Workbench
