// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

#include <memory>

class QLockFile;

namespace Workbench {

/// A directory for the working files of one open project. It is removed with this object; one that a killed program
/// left behind is known by its free lock and removed when another is made.
class WorkingDirectory
{
public:
    /// Makes a new, empty one below the user's cache directory or, when that cannot be used, in that for temporary
    /// files; isValid() tells whether that succeeded.
    WorkingDirectory();
    ~WorkingDirectory();
    WorkingDirectory(const WorkingDirectory&) = delete;
    WorkingDirectory& operator=(const WorkingDirectory&) = delete;

    bool isValid() const { return m_isValid; }
    /// Whether it is in the directory for temporary files. There nothing removes it after the program was killed.
    bool isElsewhere() const { return m_isElsewhere; }
    /// Without a trailing separator.
    QString path() const { return m_path; }

    /// The directory that holds all of them.
    static QString parentPath();
    /// Removes those that no running program holds.
    static void removeAbandoned();

private:
    void makeElsewhere();

    QString m_path;
    std::unique_ptr<QLockFile> m_lock;
    bool m_isValid = false;
    bool m_isElsewhere = false;
};

} // namespace Workbench
