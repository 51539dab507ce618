// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QDir>
#include <QFile>
#include <QString>

#include <csignal>
#include <fcntl.h>
#include <functional>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

/// A file that this process holds locked, as one does that saves.
class LockedFile
{
public:
    explicit LockedFile(const QString& path)
        : m_path(path), m_descriptor(::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666)),
          m_isLocked(::flock(m_descriptor, LOCK_EX | LOCK_NB) == 0)
    {
        ::fstat(m_descriptor, &m_status);
    }
    ~LockedFile() { unlock(); }
    LockedFile(const LockedFile&) = delete;
    LockedFile& operator=(const LockedFile&) = delete;

    bool isLocked() const { return m_isLocked; }
    QString path() const { return m_path; }

    /// Whether this is the file that has a name.
    bool isAt(const QString& path) const
    {
        struct stat status = {};
        return ::stat(QFile::encodeName(path).constData(), &status) == 0 && status.st_dev == m_status.st_dev &&
               status.st_ino == m_status.st_ino;
    }

    /// Ends a save, still locked.
    bool finish(const QByteArray& content, const QString& target) const
    {
        return ::ftruncate(m_descriptor, 0) == 0 && ::write(m_descriptor, content, content.size()) == content.size() &&
               ::rename(QFile::encodeName(m_path).constData(), QFile::encodeName(target).constData()) == 0;
    }

    void unlock()
    {
        if (m_descriptor >= 0) {
            // A process born meanwhile has the descriptor, too.
            ::flock(m_descriptor, LOCK_UN);
            ::close(m_descriptor);
        }
        m_descriptor = -1;
    }

private:
    QString m_path;
    int m_descriptor;
    bool m_isLocked;
    struct stat m_status = {};
};

/// A process that begins as a copy of this one, and what it answers at its end.
class OtherProcess
{
public:
    explicit OtherProcess(const std::function<int()>& deed) : m_id(::fork())
    {
        if (m_id == 0) {
            ::_exit(deed());
        }
    }
    ~OtherProcess()
    {
        if (m_id > 0) {
            ::kill(m_id, SIGKILL);
            ::waitpid(m_id, nullptr, 0);
        }
    }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    /// Whether it opened the file, beside the descriptors of it that it was born with.
    bool hasOpened(const LockedFile& file, int inherited) const
    {
        const QString directory = QStringLiteral("/proc/%1/fd/").arg(m_id);
        int count = 0;
        for (const QString& name : QDir(directory).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
            count += file.isAt(directory + name) ? 1 : 0;
        }
        return count > inherited;
    }

    /// Waits for its end; -1 when it was killed.
    int answer()
    {
        int status = 0;
        ::waitpid(m_id, &status, 0);
        m_id = -1;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    pid_t m_id;
};
