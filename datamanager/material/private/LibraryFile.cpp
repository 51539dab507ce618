// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/private/LibraryFile.h>

#include <datamanager/material/private/KeptCopy.h>
#include <datamanager/material/private/RecordCoverage.h>

#include <basemodule/GlobalHelper.h>
#include <basemodule/SerializerBase.h>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonDocument>

#include <new>

namespace DataManager {

namespace {

using BaseModule::GlobalHelper;

/// Tells whether a file is still the one that was looked at.
struct FileStamp
{
    qint64 size;
    QDateTime contentTime;
    QDateTime statusTime;
    bool operator==(const FileStamp& other) const
    {
        return size == other.size && contentTime == other.contentTime && statusTime == other.statusTime;
    }
};

FileStamp stampOf(const QString& path)
{
    const QFileInfo file(path);
    return {file.size(), file.lastModified(), file.metadataChangeTime()};
}

enum class Content : int
{
    NeverLoaded, ///< not by this process
    NotLoaded,   ///< the last attempt failed or lost something
    Held         ///< loaded or written
};

struct KnownFile
{
    Content content = Content::NeverLoaded;
    FileStamp stamp; ///< of the file that was loaded or written
};

QHash<QString, KnownFile>& knownFiles()
{
    static QHash<QString, KnownFile> files;
    return files;
}

bool isLibrary(const LibraryFile& file, const QByteArray& bytes)
{
    const QByteArray json = file.decipher == nullptr ? bytes : file.decipher(bytes);
    return QJsonDocument::fromJson(json).isObject() && recordCoverage(json, file.classes).isComplete;
}

/// False when the file holds something that is neither in the library nor kept beside it. `isTrusted` says that a file
/// which reads as a library may go although memory does not hold it.
bool isDispensable(const LibraryFile& file, bool isTrusted)
{
    try {
        QByteArray bytes;
        return GlobalHelper::readFile(file.path, bytes) &&
               (bytes.isEmpty() || (isTrusted && isLibrary(file, bytes)) || KeptCopy::keep(file.path, bytes));
    } catch (const std::bad_alloc&) {
        // What does not fit into the memory stays where it is.
        return false;
    }
}

} // namespace

bool LibraryFile::read(QByteArray& bytes) const
{
    KeptCopy::removeAbandoned(path);
    // Before reading, so that a change in between is noticed.
    knownFiles().insert(path, {Content::NotLoaded, stampOf(path)});
    return GlobalHelper::readFile(path, bytes);
}

void LibraryFile::markHeld() const
{
    knownFiles()[path].content = Content::Held;
}

bool LibraryFile::isComparable(const QObject& record) const
{
    const QByteArray written = QJsonHelper::SerializerBase::serialize(&record, *classes.first(), false);
    return recordCoverage(written, classes).isComplete;
}

bool LibraryFile::write(const QByteArray& bytes) const
{
    const KnownFile known = knownFiles().value(path);
    const bool isHeld = known.content == Content::Held;
    const bool isUnchanged = isHeld && known.stamp == stampOf(path);
    // What another process saved since is replaced like our own: the last one counts.
    if (!isUnchanged && QFileInfo(path).isFile() && !isDispensable(*this, isHeld)) {
        return false;
    }
    if (!GlobalHelper::writeFile(path, bytes, QIODevice::WriteOnly | QIODevice::Truncate)) {
        return false;
    }
    knownFiles().insert(path, {Content::Held, stampOf(path)});
    return true;
}

bool LibraryFile::remove() const
{
    const KnownFile known = knownFiles().value(path);
    const bool isUnchanged = known.content == Content::Held && known.stamp == stampOf(path);
    const bool isKept =
        isUnchanged || !QFileInfo(path).isFile() || isDispensable(*this, known.content != Content::NotLoaded);
    if (QFile::exists(path) && (!isKept || !QFile::remove(path))) {
        knownFiles().insert(path, {Content::NotLoaded, stampOf(path)});
        return false;
    }
    knownFiles().remove(path);
    return true;
}

} // namespace DataManager
