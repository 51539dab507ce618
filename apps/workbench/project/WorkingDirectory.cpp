// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/project/WorkingDirectory.h>

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUuid>

namespace Workbench {
namespace {

// Beside the directory, so that it is none of the working files.
std::unique_ptr<QLockFile> lockOf(const QString& path)
{
    auto lock = std::make_unique<QLockFile>(path + QStringLiteral(".lock"));
    lock->setStaleLockTime(0); // stale only when its process is gone, however old it is
    return lock;
}

} // namespace

WorkingDirectory::WorkingDirectory()
{
    removeAbandoned();
    m_path = parentPath() + QLatin1Char('/') + QUuid::createUuid().toString(QUuid::WithoutBraces);
    // The lock first: a directory without one counts as abandoned.
    m_isValid = QDir().mkpath(parentPath());
    m_lock = lockOf(m_path);
    m_isValid = m_isValid && m_lock->tryLock(0) && QDir().mkdir(m_path);
    if (!m_isValid) {
        makeElsewhere();
    }
}

void WorkingDirectory::makeElsewhere()
{
    m_lock.reset();
    QTemporaryDir directory(QDir::tempPath() + QStringLiteral("/workbench-XXXXXX"));
    directory.setAutoRemove(false);
    m_path = directory.path();
    m_isValid = m_isElsewhere = directory.isValid();
}

WorkingDirectory::~WorkingDirectory()
{
    if (m_isValid) {
        QDir(m_path).removeRecursively();
    }
}

QString WorkingDirectory::parentPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QStringLiteral("/projects");
}

void WorkingDirectory::removeAbandoned()
{
    for (const QFileInfo& entry : QDir(parentPath()).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const std::unique_ptr<QLockFile> lock = lockOf(entry.filePath());
        if (lock->tryLock(0)) {
            QDir(entry.filePath()).removeRecursively();
        }
    }
}

} // namespace Workbench
