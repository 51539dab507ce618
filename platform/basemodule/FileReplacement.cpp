// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/private/FileReplacement.h>

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace BaseModule {

namespace {

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

Lock waitForLock(int descriptor, int patience)
{
    constexpr useconds_t pause = 10000;
    Lock lock = tryLock(descriptor);
    for (int i = 0; i < patience && lock == Lock::HeldElsewhere; ++i) {
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

} // namespace

bool FileReplacement::fail(int error)
{
    m_error = error;
    return false;
}

/// Symbolic links are followed also to a target that does not exist yet.
bool FileReplacement::findTarget()
{
    if (m_path.contains(QChar::Null)) {
        return fail(EINVAL);
    }
    // As many links as the kernel itself follows.
    constexpr int maximumLinks = 40;
    QString target = m_path;
    for (int i = 0; QFileInfo(target).isSymLink(); ++i) {
        if (i == maximumLinks) {
            return fail(ELOOP);
        }
        target = QFileInfo(target).symLinkTarget();
    }
    m_target = QFile::encodeName(target);
    return !m_target.isEmpty() || fail(ENOENT);
}

/// The permissions are set before the first byte is written, so that nobody reads the new content who could not read
/// the old one.
bool FileReplacement::open(int patience)
{
    discard();
    m_error = 0;
    if (!findTarget()) {
        return false;
    }
    struct stat old = {};
    const bool exists = ::stat(m_target.constData(), &old) == 0;
    if (exists && !S_ISREG(old.st_mode)) {
        return fail(S_ISDIR(old.st_mode) ? EISDIR : EINVAL);
    }
    if (exists && ::faccessat(AT_FDCWD, m_target.constData(), W_OK, AT_EACCESS) != 0) {
        return fail(errno);
    }
    if (!openLocked(exists ? old.st_mode & 0600 : 0666, patience)) {
        return false;
    }
    return (::ftruncate(m_descriptor, 0) == 0 && (!exists || copyOwnership(m_descriptor, old))) || fail(errno);
}

/// Whoever held the lock before has renamed or removed the file that we opened, so the name is opened again until both
/// agree.
bool FileReplacement::openLocked(mode_t mode, int patience)
{
    constexpr int attempts = 100;
    const QByteArray name = temporaryFor(m_target);
    for (int i = 0; i < attempts; ++i) {
        const int descriptor = ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, mode);
        if (descriptor < 0) {
            return fail(errno);
        }
        const Lock lock = waitForLock(descriptor, patience);
        const bool isNamed = lock == Lock::Held && isSameFile(descriptor, name);
        if (isNamed && isOurs(descriptor)) {
            m_temporary = name;
            m_descriptor = descriptor;
            return true;
        }
        ::close(descriptor);
        if (lock == Lock::Unsupported) {
            return openUnique(name, mode);
        }
        if (isNamed && ::unlink(name.constData()) != 0) {
            return fail(errno);
        }
        if (lock == Lock::HeldElsewhere) {
            break;
        }
    }
    return fail(EBUSY);
}

/// Without locks the name itself is made unique; one that is abandoned stays.
bool FileReplacement::openUnique(const QByteArray& name, mode_t mode)
{
    m_temporary = name + '.' + QByteArray::number(::getpid());
    m_descriptor = ::open(m_temporary.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode);
    return m_descriptor >= 0 || fail(errno);
}

bool FileReplacement::write(const char* data, qint64 size)
{
    while (m_error == 0 && size > 0) {
        const ssize_t written = ::write(m_descriptor, data, static_cast<size_t>(size));
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return fail(written < 0 ? errno : EIO);
        }
        data += written;
        size -= written;
    }
    return m_error == 0;
}

bool FileReplacement::commit()
{
    if (m_error == 0 && ::fsync(m_descriptor) != 0) {
        return fail(errno);
    }
    if (!commitUnsynced()) {
        return false;
    }
    syncDirectory(directoryOf(m_target));
    return true;
}

bool FileReplacement::commitUnsynced()
{
    if (m_error != 0) {
        return false;
    }
    if (::rename(m_temporary.constData(), m_target.constData()) != 0) {
        return fail(errno);
    }
    m_temporary.clear();
    return true;
}

void FileReplacement::discard()
{
    if (m_descriptor < 0) {
        return;
    }
    if (!m_temporary.isEmpty()) {
        ::unlink(m_temporary.constData());
    }
    ::close(m_descriptor);
    m_descriptor = -1;
}

void FileReplacement::removeAbandoned()
{
    if (!findTarget()) {
        return;
    }
    const QByteArray temporary = temporaryFor(m_target);
    const int descriptor = ::open(temporary.constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (descriptor < 0) {
        return;
    }
    if (tryLock(descriptor) == Lock::Held && isSameFile(descriptor, temporary)) {
        ::unlink(temporary.constData());
    }
    ::close(descriptor);
}

} // namespace BaseModule
