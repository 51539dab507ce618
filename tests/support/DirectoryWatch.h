// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QFile>
#include <QString>
#include <QStringList>

#include <sys/inotify.h>
#include <unistd.h>

/// What happens to the files of a directory, in order: "created NAME", "read NAME" for reads, "moved NAME" when a file
/// gets that name, which is how files are replaced as a whole. The kernel makes one event of equal ones in a row.
class DirectoryWatch
{
public:
    explicit DirectoryWatch(const QString& directory) : m_descriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        ::inotify_add_watch(m_descriptor, QFile::encodeName(directory).constData(),
                            IN_CREATE | IN_ACCESS | IN_MOVED_TO);
    }
    ~DirectoryWatch() { ::close(m_descriptor); }
    DirectoryWatch(const DirectoryWatch&) = delete;
    DirectoryWatch& operator=(const DirectoryWatch&) = delete;

    /// The events since the last call; those of directories are left out.
    QStringList take()
    {
        QStringList events;
        alignas(inotify_event) char buffer[65536];
        for (ssize_t size; (size = ::read(m_descriptor, buffer, sizeof buffer)) > 0;) {
            for (const char* place = buffer; place < buffer + size;) {
                const auto* const event = reinterpret_cast<const inotify_event*>(place);
                place += sizeof(inotify_event) + event->len;
                if ((event->mask & IN_ISDIR) == 0 && event->len > 0) {
                    events.append(nameOf(event->mask) + QLatin1Char(' ') + QFile::decodeName(event->name));
                }
            }
        }
        return events;
    }

private:
    static QString nameOf(uint32_t mask)
    {
        if ((mask & IN_CREATE) != 0) {
            return QStringLiteral("created");
        }
        return (mask & IN_ACCESS) != 0 ? QStringLiteral("read") : QStringLiteral("moved");
    }

    int m_descriptor;
};
