// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/private/LibraryFile.h>

#include <basemodule/GlobalHelper.h>

#include <QDateTime>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

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

struct KnownFile
{
    FileStamp stamp;
    bool isReadable;
};

/// What is known of files by path, so that a save need not read back what the save before it wrote.
QHash<QString, KnownFile>& knownFiles()
{
    static QHash<QString, KnownFile> files;
    return files;
}

bool isRecordList(const QJsonValue& list)
{
    const QJsonArray records = list.toArray();
    return list.isArray() && std::all_of(records.begin(), records.end(),
                                         [](const QJsonValue& record) { return record.isObject() || record.isNull(); });
}

bool isReadable(const LibraryFile& file, const QByteArray& bytes)
{
    const auto known = knownFiles().constFind(file.path);
    if (known != knownFiles().constEnd() && known->stamp == stampOf(file.path)) {
        return known->isReadable;
    }
    const QByteArray json = file.decipher == nullptr ? bytes : file.decipher(bytes);
    return isRecordList(QJsonDocument::fromJson(json).object().value(file.listName));
}

/// Under the first free name, unless one of the taken ones holds the same bytes already.
bool keepCopy(const QString& path, const QByteArray& bytes)
{
    for (int number = 0;; ++number) {
        const QString copy = path + QStringLiteral(".unreadable") +
                             (number == 0 ? QString() : QLatin1Char('.') + QString::number(number));
        const QFileInfo taken(copy);
        if (!taken.exists() && !taken.isSymLink()) {
            return GlobalHelper::writeFile(copy, bytes, QIODevice::WriteOnly | QIODevice::Truncate);
        }
        QByteArray kept;
        if (GlobalHelper::readFile(copy, kept) && kept == bytes) {
            return true;
        }
    }
}

bool isOwnWriting(const QString& path)
{
    const auto known = knownFiles().constFind(path);
    return known != knownFiles().constEnd() && known->isReadable && known->stamp == stampOf(path);
}

/// False when the file holds something that is neither in the library nor kept beside it.
bool isReplaceable(const LibraryFile& file)
{
    if (isOwnWriting(file.path) || !QFileInfo::exists(file.path)) {
        return true;
    }
    QByteArray bytes;
    if (!GlobalHelper::readFile(file.path, bytes)) {
        return false;
    }
    return bytes.isEmpty() || isReadable(file, bytes) || keepCopy(file.path, bytes);
}

} // namespace

bool LibraryFile::write(const QByteArray& bytes) const
{
    if (!isReplaceable(*this) || !GlobalHelper::writeFile(path, bytes, QIODevice::WriteOnly | QIODevice::Truncate)) {
        return false;
    }
    knownFiles().insert(path, {stampOf(path), true});
    return true;
}

void LibraryFile::markUnreadable() const
{
    knownFiles().insert(path, {stampOf(path), false});
}

} // namespace DataManager
