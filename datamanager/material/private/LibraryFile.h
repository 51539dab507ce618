// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

class QObject;
struct QMetaObject;

namespace DataManager {

/// A JSON file of records, replaced and removed so that nothing is lost: what the file holds and memory never did is
/// copied to "<path>.unreadable" (then "<path>.unreadable.1" and so on) first. It may be damaged, foreign, enciphered
/// with another key, or just out of reach when it was to be read. What is known of a file is kept by its path.
struct LibraryFile
{
    QString path;
    QVector<const QMetaObject*> classes;       ///< of the record at the root, of the records in its properties, ...
    QByteArray (*decipher)(const QByteArray&); ///< makes JSON of the file's bytes; null when they are JSON already

    /// Reads the file; false, with `bytes` unchanged, on failure. Until `markHeld` the file counts as not loaded.
    bool read(QByteArray& bytes) const;

    /// Remembers that memory holds all that was last read.
    void markHeld() const;

    /// Whether files can be compared with their records at all: an application's own base library may write another
    /// form. `record` is one of the class at the root.
    bool isComparable(const QObject& record) const;

    /// Replaces the file as a whole; false, with the old file in place, on any failure.
    bool write(const QByteArray& bytes) const;

    /// Removes the file if there is one; false, with the file in place, on any failure.
    bool remove() const;
};

} // namespace DataManager
