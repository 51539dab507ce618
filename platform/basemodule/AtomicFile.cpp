// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/private/AtomicFile.h>

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

/// The new content on its way: an open, locked file of our own.
struct Temporary
{
    QByteArray name;
    int descriptor = -1;
};

enum class Lock : int
{
    Held,
    HeldElsewhere,
    Unsupported
};

Lock tryLock(int descriptor)
{
    while (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EINTR) {
            return errno == EWOULDBLOCK ? Lock::HeldElsewhere : Lock::Unsupported;
        }
    }
    return Lock::Held;
}

/// Waits for another process that saves the same file, but not for one that hangs: the caller is the user interface.
Lock waitForLock(int descriptor)
{
    constexpr int attempts = 200;
    constexpr useconds_t pause = 10000;
    Lock lock = tryLock(descriptor);
    for (int i = 0; i < attempts && lock == Lock::HeldElsewhere; ++i) {
        ::usleep(pause);
        lock = tryLock(descriptor);
    }
    return lock;
}

/// Whether nobody else owns the opened file or has another name for it: it may have been laid there for us to fill.
bool isOurs(int descriptor)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_nlink <= 1 &&
           status.st_uid == ::geteuid();
}

/// Without locks the name itself is made unique; one that is abandoned stays.
Temporary openUnique(const QByteArray& name, mode_t mode)
{
    const QByteArray unique = name + '.' + QByteArray::number(::getpid());
    return {unique, ::open(unique.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode)};
}

/// Opens and locks the temporary; without a descriptor on failure. Whoever held the lock before has renamed or removed
/// the file that we opened, so the name is opened again until both agree.
Temporary openLocked(const QByteArray& name, mode_t mode)
{
    constexpr int attempts = 100;
    for (int i = 0; i < attempts; ++i) {
        const int descriptor = ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, mode);
        if (descriptor < 0) {
            return {};
        }
        const Lock lock = waitForLock(descriptor);
        if (lock == Lock::Held && isSameFile(descriptor, name) && isOurs(descriptor)) {
            return {name, descriptor};
        }
        const bool isForeign = lock == Lock::Held && isSameFile(descriptor, name);
        ::close(descriptor);
        if (lock == Lock::Unsupported) {
            return openUnique(name, mode);
        }
        if (lock == Lock::HeldElsewhere || (isForeign && ::unlink(name.constData()) != 0)) {
            return {};
        }
    }
    return {};
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

/// The file that is there already.
struct OldFile
{
    bool exists = false;
    struct stat status = {};
};

bool isReplaceable(const QByteArray& target, OldFile& old)
{
    old.exists = ::stat(target.constData(), &old.status) == 0;
    return !old.exists ||
           (S_ISREG(old.status.st_mode) && ::faccessat(AT_FDCWD, target.constData(), W_OK, AT_EACCESS) == 0);
}

/// The permissions are set before the first byte is written, so that nobody reads the new content who could not read
/// the old one.
bool fillAndRename(const Temporary& temporary, const QByteArray& target, const OldFile& old, const QByteArray& content)
{
    const int descriptor = temporary.descriptor;
    return ::ftruncate(descriptor, 0) == 0 && (!old.exists || copyOwnership(descriptor, old.status)) &&
           writeAll(descriptor, content) && ::fsync(descriptor) == 0 &&
           ::rename(temporary.name.constData(), target.constData()) == 0;
}

} // namespace

bool AtomicFile::replace(const QString& path, const QByteArray& content)
{
    const QByteArray target = writtenFile(path);
    OldFile old;
    if (target.isEmpty() || !isReplaceable(target, old)) {
        return false;
    }
    const mode_t mode = old.exists ? old.status.st_mode & 0600 : 0666;
    const Temporary temporary = openLocked(temporaryFor(target), mode);
    if (temporary.descriptor < 0) {
        return false;
    }
    const bool isReplaced = fillAndRename(temporary, target, old, content);
    if (isReplaced) {
        syncDirectory(directoryOf(target));
    } else {
        ::unlink(temporary.name.constData());
    }
    ::close(temporary.descriptor);
    return isReplaced;
}

void AtomicFile::removeAbandonedTemporary(const QString& path)
{
    const QByteArray target = writtenFile(path);
    if (target.isEmpty()) {
        return;
    }
    const QByteArray temporary = temporaryFor(target);
    const int descriptor = ::open(temporary.constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (descriptor < 0) {
        return;
    }
    if (tryLock(descriptor) == Lock::Held && isSameFile(descriptor, temporary)) {
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
