// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/SaveWatch.h>

#include <mutex>

namespace Workbench {

namespace {

// A message handler is a plain function, so what it works on has to be global. Any thread may log at any moment, also
// while the handler is being put in place, and in the handler still when it has been taken away.
std::mutex mutex;
QtMessageHandler next = nullptr;
int watchCount = 0;

thread_local int watchDepth = 0;
thread_local QStringList noted;

QtMessageHandler nextHandler()
{
    const std::lock_guard<std::mutex> lock(mutex);
    return next;
}

void note(QtMsgType type, const QMessageLogContext& context, const QString& line)
{
    if (watchDepth > 0) {
        noted.append(line);
    }
    nextHandler()(type, context, line);
}

// One watch within another, or beside one of another thread, passes its lines on once.
void install()
{
    const std::lock_guard<std::mutex> lock(mutex);
    if (++watchCount > 1) {
        return;
    }
    // Who had taken our handler for the one to go back to has put it in place again.
    const QtMessageHandler previous = qInstallMessageHandler(note);
    next = previous == note ? next : previous;
}

void uninstall()
{
    const std::lock_guard<std::mutex> lock(mutex);
    if (--watchCount == 0) {
        qInstallMessageHandler(next);
    }
}

} // namespace

SaveWatch::SaveWatch() : m_start(noted.size())
{
    ++watchDepth;
    install();
}

SaveWatch::~SaveWatch()
{
    uninstall();
    if (--watchDepth == 0) {
        noted.clear();
    }
}

QStringList SaveWatch::lines() const
{
    return noted.mid(m_start);
}

} // namespace Workbench
