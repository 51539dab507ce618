// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// Lives long: mixed operations over all managers, then projects opened again and again, in one process. Prints the
// resident memory as it goes, and fails when it grows after the first tenth.
//   longlife [OPERATIONS] [PROJECTS]

#include "Deed.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace {

constexpr int tenth = 10;
// Fragments of a page here and there; a leak of one byte an operation would be 10 MB.
constexpr qint64 allowedGrowth = 2 * 1024;

/// In kB.
qint64 residentMemory()
{
    QFile file(QStringLiteral("/proc/self/status"));
    const QByteArray status = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const int place = status.indexOf("VmRSS:");
    return status.mid(place + 6, 20).simplified().split(' ').first().toLongLong();
}

/// Whether the memory stayed as it was after the first tenth.
bool live(const char* name, int count, Dice& dice, const std::function<void(Dice&)>& act)
{
    qint64 warm = 0;
    qint64 most = 0;
    for (int part = 1; part <= tenth; ++part) {
        for (int i = 0; i < count / tenth; ++i) {
            act(dice);
        }
        const qint64 memory = residentMemory();
        warm = part == 1 ? memory : warm;
        most = std::max(most, memory);
        std::printf("%s %d: %lld kB\n", name, count / tenth * part, static_cast<long long>(memory));
        std::fflush(stdout);
    }
    std::printf("%s: %lld kB more than after the first tenth\n", name, static_cast<long long>(most - warm));
    return most - warm <= allowedGrowth;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QStringList arguments = QCoreApplication::arguments();
    const int operations = arguments.value(1, QStringLiteral("10000000")).toInt();
    const int projects = arguments.value(2, QStringLiteral("100000")).toInt();
    // In memory where there is one: each save waits for its disk.
    const QString memory = QStringLiteral("/dev/shm");
    const QTemporaryDir directory((QFile::exists(memory) ? memory : QStringLiteral("/tmp")) +
                                  QStringLiteral("/longlife-XXXXXX"));
    setProjectsDirectory(directory.path());
    Dice dice(1);
    const bool isFlat = live("operations", operations, dice, doDeed);
    const auto reopen = [](Dice& d) {
        reopenProject(d);
        doDeed(d);
    };
    const bool isStillFlat = live("projects", projects, dice, reopen);
    return isFlat && isStillFlat ? 0 : 1;
}
