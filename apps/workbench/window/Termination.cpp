// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/Termination.h>

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace Workbench {
namespace {

std::array<int, 2> ends{-1, -1};

// Little is allowed in here; the rest is done by the event loop.
void noteSignal(int)
{
    const char byte = 0;
    if (::write(ends[0], &byte, 1) != 1) {
        ::_exit(1);
    }
}

} // namespace

void endOnSignals(QObject* context)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        return; // the system then ends the program as it always does
    }
    auto* notifier = new QSocketNotifier(ends[1], QSocketNotifier::Read, context);
    QObject::connect(notifier, &QSocketNotifier::activated, context, [notifier] {
        notifier->setEnabled(false);
        QCoreApplication::quit();
    });
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    for (int number : {SIGTERM, SIGINT, SIGHUP}) {
        ::sigaction(number, &action, nullptr);
    }
}

} // namespace Workbench
