// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/GlobalHelper.h>

#include <QDir>
#include <QString>
#include <QStringList>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// What every caller of a save passes, and what a process leaves behind that is killed in the middle of one.

const QIODevice::OpenMode replaceWhole = QIODevice::WriteOnly | QIODevice::Truncate;

inline QStringList entriesOf(const QString& directory)
{
    return QDir(directory).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

/// Kills a process in the middle of a save, by the file-size limit whose signal is not handled.
inline bool dieWhileWriting(const QString& file)
{
    const pid_t child = ::fork();
    if (child == 0) {
        const struct rlimit small = {4096, 4096};
        ::setrlimit(RLIMIT_FSIZE, &small);
        ::signal(SIGXFSZ, SIG_DFL);
        BaseModule::GlobalHelper::writeFile(file, QByteArray(100000, 'n'), replaceWhole);
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status);
}

/// The name that the temporary of a file has; learned from a save that is killed, whose temporary stays there.
inline QString temporaryOf(const QString& directory, const QString& file)
{
    const QStringList before = entriesOf(directory);
    if (!dieWhileWriting(directory + QLatin1Char('/') + file)) {
        return {};
    }
    QStringList after = entriesOf(directory);
    for (const QString& name : before) {
        after.removeAll(name);
    }
    return after.value(0);
}
