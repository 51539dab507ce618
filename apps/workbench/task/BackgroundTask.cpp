// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/task/BackgroundTask.h>

#include <QThread>

namespace Workbench {

BackgroundTask::BackgroundTask(QObject* parent) : QObject(parent) {}

BackgroundTask::~BackgroundTask()
{
    abandon();
}

void BackgroundTask::start(const Work& work, const Finish& finish)
{
    abandon();
    auto state = std::make_shared<State>();
    m_state = state;
    m_finish = finish;
    m_thread = QThread::create([this, work, state] {
        int told = -1;
        work([this, state, &told](double done) { return tell(state, done, told); });
        QMetaObject::invokeMethod(
            this,
            [this, state] {
                if (m_state == state) {
                    end();
                }
            },
            Qt::QueuedConnection);
    });
    m_thread->start(QThread::LowPriority);
}

// Runs in the thread of the work.
bool BackgroundTask::tell(const std::shared_ptr<State>& state, double done, int& told)
{
    const int percent = static_cast<int>(100 * done);
    if (percent > told) {
        told = percent;
        QMetaObject::invokeMethod(
            this,
            [this, percent, state] {
                if (m_state == state && !state->isCancelled) {
                    Q_EMIT signal_progress(percent);
                }
            },
            Qt::QueuedConnection);
    }
    return !state->isCancelled;
}

void BackgroundTask::cancel()
{
    if (m_state) {
        m_state->isCancelled = true;
    }
}

void BackgroundTask::abandon()
{
    cancel();
    joinThread();
}

void BackgroundTask::wait()
{
    if (m_thread != nullptr) {
        m_thread->wait();
        end();
    }
}

void BackgroundTask::end()
{
    const bool isCancelled = m_state->isCancelled;
    const Finish finish = m_finish;
    joinThread();
    finish(isCancelled);
}

void BackgroundTask::joinThread()
{
    if (m_thread != nullptr) {
        m_thread->wait();
        delete m_thread;
        m_thread = nullptr;
        m_state.reset();
        m_finish = nullptr;
    }
}

} // namespace Workbench
