// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/AtomicFile.h>

#include <QByteArray>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QString>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <QSaveFile>
#endif

namespace BaseModule {

#ifdef Q_OS_UNIX

namespace {

/// The file that a write to `path` changes: symbolic links are followed, also to a target that does not exist yet.
/// Empty when there is none.
QByteArray writtenFile(const QString& path)
{
    if (path.contains(QChar::Null)) {
        return {};
    }
    // As many links as the kernel itself follows.
    constexpr int maximumLinks = 40;
    QString target = path;
    for (int i = 0; QFileInfo(target).isSymLink(); ++i) {
        if (i == maximumLinks) {
            return {};
        }
        target = QFileInfo(target).symLinkTarget();
    }
    return QFile::encodeName(target);
}

QByteArray directoryOf(const QByteArray& file)
{
    const auto separator = file.lastIndexOf('/');
    return separator < 0 ? QByteArray("./") : file.left(separator + 1);
}

/// Short whatever the length of the target's own name, and hidden.
QByteArray temporaryFor(const QByteArray& target)
{
    const QByteArray directory = directoryOf(target);
    const QByteArray name = target.mid(target.lastIndexOf('/') + 1);
    const QByteArray digest = QCryptographicHash::hash(name, QCryptographicHash::Sha1).toHex().left(16);
    return directory + '.' + digest + ".saving";
}

bool isSameFile(int descriptor, const QByteArray& path)
{
    struct stat opened = {};
    struct stat named = {};
    return ::fstat(descriptor, &opened) == 0 && ::lstat(path.constData(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

bool lock(int descriptor, int operation)
{
    int result = 0;
    do {
        result = ::flock(descriptor, operation);
    } while (result != 0 && errno == EINTR);
    return result == 0;
}

/// Opens and locks the temporary; -1 on failure. Whoever held the lock before has renamed or removed the file that we
/// opened, so the name is opened again until both agree.
int openLocked(const QByteArray& temporary)
{
    for (;;) {
        const int descriptor = ::open(temporary.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0666);
        if (descriptor < 0) {
            return -1;
        }
        if (!lock(descriptor, LOCK_EX)) {
            ::close(descriptor);
            return -1;
        }
        if (isSameFile(descriptor, temporary)) {
            return descriptor;
        }
        ::close(descriptor);
    }
}

bool writeAll(int descriptor, const QByteArray& content)
{
    const char* position = content.constData();
    auto left = static_cast<size_t>(content.size());
    while (left > 0) {
        const ssize_t written = ::write(descriptor, position, left);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        position += written;
        left -= static_cast<size_t>(written);
    }
    return true;
}

/// A replaced file keeps the permissions of the old one; its owner too, where the process may give files away.
bool copyOwnership(int descriptor, const struct stat& old)
{
    struct stat now = {};
    if (::fstat(descriptor, &now) != 0) {
        return false;
    }
    if ((now.st_uid != old.st_uid || now.st_gid != old.st_gid) && ::fchown(descriptor, old.st_uid, old.st_gid) != 0) {
        return ::fchmod(descriptor, old.st_mode & 0666) == 0;
    }
    return ::fchmod(descriptor, old.st_mode & 07777) == 0;
}

/// Makes the rename itself survive a loss of power. The new content is in place already, so failing here is no failure
/// of the save.
void syncDirectory(const QByteArray& directory)
{
    const int descriptor = ::open(directory.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        ::fsync(descriptor);
        ::close(descriptor);
    }
}

bool fillAndRename(int descriptor, const QByteArray& temporary, const QByteArray& target, const QByteArray& content)
{
    struct stat old = {};
    const bool exists = ::stat(target.constData(), &old) == 0;
    if (exists && (!S_ISREG(old.st_mode) || ::access(target.constData(), W_OK) != 0)) {
        return false;
    }
    return ::ftruncate(descriptor, 0) == 0 && writeAll(descriptor, content) &&
           (!exists || copyOwnership(descriptor, old)) && ::fsync(descriptor) == 0 &&
           ::rename(temporary.constData(), target.constData()) == 0;
}

} // namespace

bool AtomicFile::replace(const QString& path, const QByteArray& content)
{
    const QByteArray target = writtenFile(path);
    if (target.isEmpty()) {
        return false;
    }
    const QByteArray temporary = temporaryFor(target);
    const int descriptor = openLocked(temporary);
    if (descriptor < 0) {
        return false;
    }
    const bool isReplaced = fillAndRename(descriptor, temporary, target, content);
    if (isReplaced) {
        syncDirectory(directoryOf(target));
    } else {
        ::unlink(temporary.constData());
    }
    ::close(descriptor);
    return isReplaced;
}

void AtomicFile::removeAbandonedTemporary(const QString& path)
{
    const QByteArray target = writtenFile(path);
    if (target.isEmpty()) {
        return;
    }
    const QByteArray temporary = temporaryFor(target);
    const int descriptor = ::open(temporary.constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
    if (descriptor < 0) {
        return;
    }
    if (lock(descriptor, LOCK_EX | LOCK_NB) && isSameFile(descriptor, temporary)) {
        ::unlink(temporary.constData());
    }
    ::close(descriptor);
}

#else

bool AtomicFile::replace(const QString& path, const QByteArray& content)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    // commit() alone does not notice a disk that fills while the last bytes are flushed.
    if (file.write(content) != content.size() || !file.flush() || file.error() != QFileDevice::NoError) {
        file.cancelWriting();
    }
    return file.commit();
}

void AtomicFile::removeAbandonedTemporary(const QString&) {}

#endif

} // namespace BaseModule
