// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QFileDevice>
#include <QIODevice>
#include <QString>

#include <memory>

namespace Workbench {

/// New content for a file, of any size, that takes the file's place only when all of it is on the disk: a crash, a full
/// disk or a power cut leaves the old content or the new one, whole. The library replaces its files by the same code.
class ReplacementFile
{
public:
    /// Links are followed: the file that `path` leads to is the target.
    explicit ReplacementFile(const QString& path);
    /// Removes what was not put in place.
    ~ReplacementFile();
    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;

    /// False, with a problem(), when the target is no regular file or may not be written, or another program is
    /// replacing it just now.
    bool open();
    /// In place of the target's own, or of those that a new file gets; false when they cannot be set.
    bool setPermissions(QFileDevice::Permissions permissions);
    /// Where the content goes.
    QIODevice& device();
    /// Puts the content in place of the target. False, with a problem() and the target as it was, when that fails.
    bool commit();
    /// The same without waiting for the disk: a power cut may leave a part of the content in the target's place.
    bool commitUnsynced();
    /// What went wrong first, as the system says it; also of what was written to the device. Empty when nothing did.
    QString problem() const;

    /// Removes what a killed process left beside the target of `path`.
    static void removeAbandoned(const QString& path);

private:
    class Content;

    std::unique_ptr<Content> m_content;
};

} // namespace Workbench
