// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/MesherChild.h>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>
#endif

namespace Workbench {

MesherChild::~MesherChild()
{
    end();
}

void MesherChild::end()
{
    constexpr int patience = 2000; // milliseconds; the system may be slow to take back a large process
#ifdef Q_OS_LINUX
    if (processId() > 0) {
        ::kill(static_cast<pid_t>(-processId()), SIGKILL);
    }
#endif
    kill();
    waitForFinished(patience);
}

// Runs in the child before its program: a group of its own, so that end() reaches what it starts, and an end when this
// program crashes or is killed.
void MesherChild::setupChildProcess()
{
#ifdef Q_OS_LINUX
    ::setpgid(0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
}

} // namespace Workbench
