// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QString>

#include <sys/types.h>

namespace BaseModule {

/// New content for a file, on Unix systems, that takes the file's place only when all of it is on the disk. Not
/// exported: `GlobalHelper` is the way in. The workbench compiles it too, for content that does not fit into memory.
///
/// The content goes to a temporary beside the target, whose name follows from the target's. It is locked while it is
/// written, so that processes replacing the same file take turns, and so that one left by a killed process is known as
/// abandoned: the lock dies with it.
class FileReplacement
{
public:
    /// Symbolic links are followed: what `path` leads to is the target.
    explicit FileReplacement(const QString& path) : m_path(path) {}
    /// Removes what was not put in place.
    ~FileReplacement() { discard(); }
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Opens the temporary, empty, with the target's permissions; drops one that was open. Waits so many hundredths of
    /// a second for another process that has it, not for ever: that one may hang.
    bool open(int patience);
    /// Of the temporary while it is open, else -1.
    int descriptor() const { return m_descriptor; }
    /// Writes all. False when that or an earlier call failed.
    bool write(const char* data, qint64 size);
    /// Puts the content in place of the target. False, with the target as it was, also when an earlier call failed.
    bool commit();
    /// The same without waiting for the disk: a loss of power may leave a part of the content in the target's place.
    bool commitUnsynced();
    /// The system's number of what went wrong first since the last open(), or 0. EBUSY: another process has the
    /// temporary.
    int error() const { return m_error; }

    /// Removes the temporary that a killed process may have left.
    void removeAbandoned();

private:
    bool fail(int error);
    bool findTarget();
    bool openLocked(mode_t mode, int patience);
    bool openUnique(const QByteArray& name, mode_t mode);
    void discard();

    QString m_path;
    QByteArray m_target;
    QByteArray m_temporary; ///< empty once it is in place
    int m_descriptor = -1;
    int m_error = 0;
};

} // namespace BaseModule
