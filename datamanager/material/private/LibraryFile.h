// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QString>

namespace DataManager {

/// A JSON file whose root object holds a list of records. A file that is none is copied to "<path>.unreadable" (then
/// "<path>.unreadable.1" and so on) before it is replaced: it may be damaged, foreign, or enciphered with another key,
/// and what it holds is in no library.
struct LibraryFile
{
    QString path;
    QString listName;                          ///< the root's member that holds the records
    QByteArray (*decipher)(const QByteArray&); ///< makes JSON of the file's bytes; null when they are JSON already

    /// Replaces the file as a whole; false, with the old file in place, on any failure.
    bool write(const QByteArray& bytes) const;

    /// Remembers that the file, as it is now, could not be read as a library.
    void markUnreadable() const;
};

} // namespace DataManager
