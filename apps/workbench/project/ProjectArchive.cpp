// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/project/ProjectArchive.h>

#include <workbench/file/ReplacementFile.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <quazip.h>
#include <quazipfile.h>
#include <quazipfileinfo.h>

#include <algorithm>

namespace Workbench {
namespace {

constexpr qint64 blockSize = 1 << 20;
constexpr int fastestCompression = 1; // meshes are large, and the second halving costs three times the time

QString say(const char* text)
{
    return QCoreApplication::translate("Workbench::ProjectArchive", text);
}

/// How far the whole is, while single files are copied.
class Share
{
public:
    Share(qint64 all, const ProjectArchive::Progress& progress)
        : m_all(static_cast<double>(std::max(all, Q_INT64_C(1)))), m_progress(progress)
    {
    }

    bool add(qint64 bytes)
    {
        m_done += static_cast<double>(bytes);
        return m_progress(std::min(1.0, m_done / m_all));
    }

private:
    double m_all;
    double m_done = 0;
    const ProjectArchive::Progress& m_progress;
};

// All of `from`, but no more than `most` bytes.
bool copyContent(QIODevice& from, QIODevice& to, qint64 most, Share& share)
{
    qint64 copied = 0;
    for (QByteArray block = from.read(blockSize); !block.isEmpty(); block = from.read(blockSize)) {
        copied += block.size();
        if (copied > most || to.write(block) != block.size() || !share.add(block.size())) {
            return false;
        }
    }
    return from.atEnd();
}

bool packFile(QuaZip& zip, const QString& directory, const QString& fileName, Share& share)
{
    QFile file(directory + QLatin1Char('/') + fileName);
    QuaZipFile entry(&zip);
    const QuaZipNewInfo info(fileName, file.fileName());
    if (!file.open(QIODevice::ReadOnly) ||
        !entry.open(QIODevice::WriteOnly, info, nullptr, 0, Z_DEFLATED, fastestCompression) ||
        !copyContent(file, entry, file.size(), share)) {
        return false;
    }
    entry.close();
    return entry.getZipError() == UNZ_OK;
}

// The problem of packing into a device that has none itself.
QString packInto(QIODevice& device, const QString& directory, const QStringList& fileNames,
                 const ProjectArchive::Progress& progress)
{
    qint64 size = 0;
    for (const QString& fileName : fileNames) {
        size += QFileInfo(directory + QLatin1Char('/') + fileName).size();
    }
    Share share(size, progress);
    QuaZip zip(&device);
    zip.setUtf8Enabled(true);
    zip.setZip64Enabled(true);
    zip.setAutoClose(false);
    bool isPacked = zip.open(QuaZip::mdCreate);
    for (const QString& fileName : fileNames) {
        isPacked = isPacked && packFile(zip, directory, fileName, share);
    }
    zip.close();
    return isPacked && zip.getZipError() == UNZ_OK
               ? QString()
               : say(QT_TRANSLATE_NOOP("Workbench::ProjectArchive", "the working files could not be read"));
}

bool isPlainName(const QString& name)
{
    return !name.isEmpty() && QFileInfo(name).fileName() == name && name != QLatin1String(".") &&
           name != QLatin1String("..") && !name.contains(QLatin1Char('\\'));
}

QString damaged()
{
    return say(QT_TRANSLATE_NOOP("Workbench::ProjectArchive", "it is damaged"));
}

// What is wrong with the archive's current file, or with the place that it goes to.
QString unpackFile(QuaZip& zip, const QString& directory, Share& share)
{
    QuaZipFileInfo64 info;
    QuaZipFile entry(&zip);
    if (!zip.getCurrentFileInfo(&info) || !isPlainName(info.name) || !entry.open(QIODevice::ReadOnly)) {
        return damaged();
    }
    QFile file(directory + QLatin1Char('/') + info.name);
    if (file.exists()) {
        return damaged();
    }
    const qint64 size = static_cast<qint64>(info.uncompressedSize);
    const bool isCopied = file.open(QIODevice::WriteOnly) && copyContent(entry, file, size, share) && file.flush();
    if (file.error() != QFileDevice::NoError) {
        return say(QT_TRANSLATE_NOOP("Workbench::ProjectArchive", "its content could not be written: %1"))
            .arg(file.errorString());
    }
    entry.close(); // checks the sum
    return isCopied && entry.getZipError() == UNZ_OK && file.size() == size ? QString() : damaged();
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

QString ProjectArchive::pack(const QString& directory, const QStringList& fileNames, const QString& archivePath,
                             const Progress& progress)
{
    const QString failure = say(QT_TRANSLATE_NOOP("Workbench::ProjectArchive", "the file could not be written: %1"));
    ReplacementFile archive(archivePath);
    if (!archive.open()) {
        return failure.arg(archive.problem());
    }
    QString problem = packInto(archive.device(), directory, fileNames, progress);
    if (!archive.problem().isEmpty()) {
        return failure.arg(archive.problem());
    }
    if (!problem.isEmpty()) {
        return problem;
    }
    return archive.commit() ? QString() : failure.arg(archive.problem());
}

QString ProjectArchive::unpack(const QString& archivePath, const QString& directory, const Progress& progress)
{
    ReplacementFile::removeAbandoned(archivePath);
    if (!QFileInfo(archivePath).isFile()) {
        return say(QT_TRANSLATE_NOOP("Workbench::ProjectArchive", "there is no such file"));
    }
    if (!QFileInfo(archivePath).isReadable()) {
        return say(QT_TRANSLATE_NOOP("Workbench::ProjectArchive", "you may not read it"));
    }
    QuaZip zip(archivePath);
    zip.setUtf8Enabled(true);
    if (!zip.open(QuaZip::mdUnzip)) {
        return say(QT_TRANSLATE_NOOP("Workbench::ProjectArchive", "it is no project file, or it is damaged"));
    }
    if (contentSize(zip) < 0 || contentSize(zip) > QStorageInfo(directory).bytesAvailable() / 2) {
        return say(QT_TRANSLATE_NOOP("Workbench::ProjectArchive", "there is not enough space for its content"));
    }
    Share share(contentSize(zip), progress);
    for (bool isThere = zip.goToFirstFile(); isThere; isThere = zip.goToNextFile()) {
        QString problem = unpackFile(zip, directory, share);
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    return zip.getZipError() == UNZ_OK ? QString() : damaged();
}

} // namespace Workbench
