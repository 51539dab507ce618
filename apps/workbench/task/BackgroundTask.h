// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>

class QThread;

namespace Workbench {

/// Does one piece of work at a time in a thread of its own. Its signal and the end of the work arrive in the thread in
/// which this object lives.
class BackgroundTask : public QObject
{
    Q_OBJECT

public:
    /// Told how much is done, from 0 to 1; false when the work is to be given up.
    using Progress = std::function<bool(double done)>;
    /// The work itself, which may use nothing that other threads change.
    using Work = std::function<void(const Progress& progress)>;
    /// Called once after the work; what was cancelled when all was done already counts as cancelled, too.
    using Finish = std::function<void(bool isCancelled)>;

    explicit BackgroundTask(QObject* parent = nullptr);
    ~BackgroundTask() override;

    /// Abandons what is under way, and begins.
    void start(const Work& work, const Finish& finish);
    /// Asks the work to give up; its end is told.
    void cancel();
    /// Has the work given up and waits for that; its end is not told.
    void abandon();
    /// Returns when the work is done and its end was told.
    void wait();
    /// From start() until just before the end is told.
    bool isActive() const { return m_thread != nullptr; }

Q_SIGNALS:
    void signal_progress(int percent);

private:
    struct State
    {
        std::atomic<bool> isCancelled{false};
    };

    bool tell(const std::shared_ptr<State>& state, double done, int& told);
    void end();
    void joinThread();

    QThread* m_thread = nullptr;
    std::shared_ptr<State> m_state;
    Finish m_finish;
};

} // namespace Workbench
