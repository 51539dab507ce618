// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/project/ReplacementFile.h>

#include <QCryptographicHash>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Workbench {
namespace {

QString targetOf(const QString& path)
{
    const QFileInfo file(path);
    return file.isSymLink() ? file.symLinkTarget() : file.absoluteFilePath();
}

// Short however long the target's name is.
QString temporaryOf(const QString& target)
{
    const QFileInfo file(target);
    const QByteArray digest = QCryptographicHash::hash(file.fileName().toUtf8(), QCryptographicHash::Sha1).toHex();
    return QStringLiteral("%1/.%2.replacement").arg(file.path(), QString::fromLatin1(digest.left(16)));
}

int openFile(const QString& name, int flags)
{
    return ::open(QFile::encodeName(name).constData(), flags | O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0666);
}

// Whoever held the lock before us may have renamed or removed the file that we opened.
bool isStillNamed(int descriptor, const QString& name)
{
    struct stat opened = {};
    struct stat named = {};
    return ::fstat(descriptor, &opened) == 0 && ::lstat(QFile::encodeName(name).constData(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino && S_ISREG(opened.st_mode);
}

// Makes the rename last; the new content is in place already, so failing here is no failure.
void syncDirectory(const QString& path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        ::fsync(descriptor);
        ::close(descriptor);
    }
}

} // namespace

// Keeps what went wrong: who writes may call on, which makes the file forget. Not buffered, so that it is known at
// once.
class ReplacementFile::Content : public QFile
{
public:
    bool open(int descriptor)
    {
        return QFile::open(descriptor, QIODevice::ReadWrite | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle);
    }
    QString problem() const { return m_problem; }

protected:
    // The system may take a part, and says only of the rest why it does not take that.
    qint64 writeData(const char* data, qint64 size) override
    {
        qint64 written = 0;
        while (written < size) {
            const qint64 part = QFile::writeData(data + written, size - written);
            if (part <= 0) {
                m_problem = m_problem.isEmpty() ? errorString() : m_problem;
                return -1;
            }
            written += part;
        }
        return written;
    }

private:
    QString m_problem;
};

ReplacementFile::ReplacementFile(const QString& path)
    : m_target(targetOf(path)), m_name(temporaryOf(m_target)), m_file(std::make_unique<Content>())
{
}

ReplacementFile::~ReplacementFile()
{
    if (m_isOurs) {
        QFile::remove(m_name);
    }
}

QIODevice& ReplacementFile::device()
{
    return *m_file;
}

QString ReplacementFile::problem() const
{
    return m_problem.isEmpty() ? m_file->problem() : m_problem;
}

bool ReplacementFile::fail(int systemError)
{
    m_problem = qt_error_string(systemError);
    return false;
}

bool ReplacementFile::open()
{
    const QFileInfo target(m_target);
    m_problem.clear();
    if (target.exists() && !target.isFile()) {
        return fail(target.isDir() ? EISDIR : EINVAL);
    }
    if (target.exists() && ::access(QFile::encodeName(m_target).constData(), W_OK) != 0) {
        return fail(errno);
    }
    if (!openLocked()) {
        return false;
    }
    m_isOurs = true;
    keepPermissions();
    return m_file->resize(0) || fail(errno);
}

bool ReplacementFile::openLocked()
{
    constexpr int attempts = 100;
    for (int i = 0; i < attempts; ++i) {
        const int descriptor = openFile(m_name, O_CREAT);
        if (descriptor < 0) {
            return fail(errno);
        }
        if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
            fail(errno == EWOULDBLOCK ? EBUSY : errno);
            ::close(descriptor);
            return false;
        }
        if (isStillNamed(descriptor, m_name)) {
            return m_file->open(descriptor);
        }
        ::close(descriptor);
    }
    return fail(EBUSY);
}

// Nobody may read the new content who could not read the old one.
void ReplacementFile::keepPermissions()
{
    struct stat old = {};
    if (::stat(QFile::encodeName(m_target).constData(), &old) != 0) {
        return;
    }
    const bool isSameOwner = ::fchown(m_file->handle(), old.st_uid, old.st_gid) == 0;
    ::fchmod(m_file->handle(), old.st_mode & (isSameOwner ? 07777U : 0666U));
}

bool ReplacementFile::commit()
{
    if (!problem().isEmpty()) {
        return false;
    }
    if (::fsync(m_file->handle()) != 0 ||
        ::rename(QFile::encodeName(m_name).constData(), QFile::encodeName(m_target).constData()) != 0) {
        return fail(errno);
    }
    m_isOurs = false;
    m_file->close();
    syncDirectory(QFileInfo(m_target).path());
    return true;
}

void ReplacementFile::removeAbandoned(const QString& path)
{
    const QString name = temporaryOf(targetOf(path));
    const int descriptor = openFile(name, 0);
    if (descriptor < 0) {
        return;
    }
    if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0 && isStillNamed(descriptor, name)) {
        QFile::remove(name);
    }
    ::close(descriptor);
}

} // namespace Workbench
