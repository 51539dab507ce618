// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/GlobalHelper.h>

#include <basemodule/private/AtomicFile.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace BaseModule {

namespace {

QString& projectDirectory()
{
    static QString directory;
    return directory;
}

} // namespace

bool GlobalHelper::readFile(QString path, QByteArray& out)
{
    AtomicFile::removeAbandonedTemporary(path);
    // A pipe or a device would block or never end.
    if (path.contains(QChar::Null) || !QFileInfo(path).isFile()) {
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError) {
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
