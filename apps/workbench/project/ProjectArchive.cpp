// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/project/ProjectArchive.h>

#include <basemodule/GlobalHelper.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <quazip.h>
#include <quazipfile.h>
#include <quazipfileinfo.h>

using BaseModule::GlobalHelper;

namespace Workbench {
namespace {

constexpr qint64 blockSize = 1 << 20;
constexpr int fastestCompression = 1; // meshes are large, and the second halving costs three times the time

QString say(const char* text)
{
    return QCoreApplication::translate("Workbench::ProjectArchive", text);
}

// All of `from`, but no more than `most` bytes.
bool copyContent(QIODevice& from, QIODevice& to, qint64 most)
{
    qint64 copied = 0;
    for (QByteArray block = from.read(blockSize); !block.isEmpty(); block = from.read(blockSize)) {
        copied += block.size();
        if (copied > most || to.write(block) != block.size()) {
            return false;
        }
    }
    return from.atEnd();
}

bool packFile(QuaZip& zip, const QString& directory, const QString& fileName)
{
    QFile file(directory + QLatin1Char('/') + fileName);
    QuaZipFile entry(&zip);
    const QuaZipNewInfo info(fileName, file.fileName());
    if (!file.open(QIODevice::ReadOnly) ||
        !entry.open(QIODevice::WriteOnly, info, nullptr, 0, Z_DEFLATED, fastestCompression) ||
        !copyContent(file, entry, file.size())) {
        return false;
    }
    entry.close();
    return entry.getZipError() == UNZ_OK;
}

bool isPlainName(const QString& name)
{
    return !name.isEmpty() && QFileInfo(name).fileName() == name && name != QLatin1String(".") &&
           name != QLatin1String("..") && !name.contains(QLatin1Char('\\'));
}

bool unpackFile(QuaZip& zip, const QString& directory)
{
    QuaZipFileInfo64 info;
    QuaZipFile entry(&zip);
    if (!zip.getCurrentFileInfo(&info) || !isPlainName(info.name) || !entry.open(QIODevice::ReadOnly)) {
        return false;
    }
    QFile file(directory + QLatin1Char('/') + info.name);
    const qint64 size = static_cast<qint64>(info.uncompressedSize);
    if (file.exists() || !file.open(QIODevice::WriteOnly) || !copyContent(entry, file, size)) {
        return false;
    }
    entry.close(); // checks the sum
    return entry.getZipError() == UNZ_OK && file.size() == size && file.flush();
}

qint64 contentSize(const QuaZip& zip)
{
    quint64 size = 0;
    for (const QuaZipFileInfo64& info : zip.getFileInfoList64()) {
        size += info.uncompressedSize;
    }
    return static_cast<qint64>(size);
}

} // namespace

QString ProjectArchive::pack(const QString& directory, const QStringList& fileNames, const QString& archivePath)
{
    QByteArray content;
    QBuffer buffer(&content);
    QuaZip zip(&buffer);
    zip.setUtf8Enabled(true);
    bool isPacked = zip.open(QuaZip::mdCreate);
    for (const QString& fileName : fileNames) {
        isPacked = isPacked && packFile(zip, directory, fileName);
    }
    zip.close();
    if (!isPacked || zip.getZipError() != UNZ_OK) {
        return say(QT_TRANSLATE_NOOP("Workbench::ProjectArchive", "the working files could not be read"));
    }
    // Replaces the file as a whole.
    if (!GlobalHelper::writeFile(archivePath, content, QIODevice::WriteOnly | QIODevice::Truncate)) {
        return say(QT_TRANSLATE_NOOP("Workbench::ProjectArchive", "the file could not be written"));
    }
    return {};
}

QString ProjectArchive::unpack(const QString& archivePath, const QString& directory)
{
    if (!QFileInfo(archivePath).isFile()) {
        return say(QT_TRANSLATE_NOOP("Workbench::ProjectArchive", "there is no such file"));
    }
    QuaZip zip(archivePath);
    zip.setUtf8Enabled(true);
    if (!zip.open(QuaZip::mdUnzip)) {
        return say(QT_TRANSLATE_NOOP("Workbench::ProjectArchive", "it is no project file, or it is damaged"));
    }
    if (contentSize(zip) < 0 || contentSize(zip) > QStorageInfo(directory).bytesAvailable() / 2) {
        return say(QT_TRANSLATE_NOOP("Workbench::ProjectArchive", "there is not enough space for its content"));
    }
    for (bool isThere = zip.goToFirstFile(); isThere; isThere = zip.goToNextFile()) {
        if (!unpackFile(zip, directory)) {
            return say(QT_TRANSLATE_NOOP("Workbench::ProjectArchive", "it is damaged"));
        }
    }
    return zip.getZipError() == UNZ_OK ? QString()
                                       : say(QT_TRANSLATE_NOOP("Workbench::ProjectArchive", "it is damaged"));
}

} // namespace Workbench
