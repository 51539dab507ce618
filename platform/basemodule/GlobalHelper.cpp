// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/GlobalHelper.h>

#include <basemodule/private/AtomicFile.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <new>

namespace BaseModule {

namespace {

QString& projectDirectory()
{
    static QString directory;
    return directory;
}

/// False when anything fails, also when the file does not fit into the memory.
bool readAll(const QString& path, QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    try {
        content = file.readAll();
    } catch (const std::bad_alloc&) {
        return false;
    }
    return file.error() == QFileDevice::NoError;
}

} // namespace

bool GlobalHelper::readFile(QString path, QByteArray& out)
{
    AtomicFile::removeAbandonedTemporary(path);
    // A pipe or a device would block or never end.
    if (path.contains(QChar::Null) || !QFileInfo(path).isFile()) {
        return false;
    }
    QByteArray content;
    if (!readAll(path, content)) {
        return false;
    }
    out = content;
    return true;
}

bool GlobalHelper::writeFile(QString path, QByteArray data, QIODevice::OpenMode mode)
{
    if (mode == (QIODevice::WriteOnly | QIODevice::Truncate)) {
        return AtomicFile::replace(path, data);
    }
    QFile file(path);
    return file.open(mode) && file.write(data) == data.size() && file.flush() && file.error() == QFileDevice::NoError;
}

QString GlobalHelper::getProjectTempIODir()
{
    if (projectDirectory().isEmpty()) {
        return QCoreApplication::applicationDirPath() + QStringLiteral("/../temp");
    }
    return projectDirectory();
}

void GlobalHelper::setProjectTempIODir(QString directory)
{
    if (directory.size() > 1 && directory.endsWith(QLatin1Char('/'))) {
        directory.chop(1);
    }
    projectDirectory() = directory;
}

} // namespace BaseModule
