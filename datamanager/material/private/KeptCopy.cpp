// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/private/KeptCopy.h>

#include <basemodule/GlobalHelper.h>

#include <QFile>
#include <QFileInfo>

namespace DataManager {

namespace {

using BaseModule::GlobalHelper;

QString copyName(const QString& path, int number)
{
    return path + QStringLiteral(".unreadable") +
           (number == 0 ? QString() : QLatin1Char('.') + QString::number(number));
}

QString temporaryName(const QString& path)
{
    return path + QStringLiteral(".unreadable.new");
}

bool isTaken(const QString& path)
{
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

/// Compares piece by piece, so that a file that just fits into the memory is not there twice.
bool holds(const QString& path, const QByteArray& bytes)
{
    constexpr int pieceSize = 65536;
    const QFileInfo information(path);
    QFile file(path);
    // A pipe or a device would block or never end.
    if (!information.isFile() || information.size() != bytes.size() || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    for (int place = 0; place < bytes.size(); place += pieceSize) {
        if (file.read(pieceSize) != bytes.mid(place, pieceSize)) {
            return false;
        }
    }
    return true;
}

/// Without the permissions of the present user, which for root are everybody's.
QFile::Permissions permissionsOf(const QString& path)
{
    return QFile::permissions(path) & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser);
}

/// A new file, so that no link which somebody put there is followed; the owner's alone while it is written.
bool writeTemporary(const QString& path, const QByteArray& bytes)
{
    const QString temporary = temporaryName(path);
    QFile::remove(temporary);
    QFile file(temporary);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        return false;
    }
    file.close();
    return file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
           GlobalHelper::writeFile(temporary, bytes, QIODevice::WriteOnly | QIODevice::Truncate) &&
           file.setPermissions(permissionsOf(path));
}

} // namespace

bool KeptCopy::keep(const QString& path, const QByteArray& bytes)
{
    // Another process may take the name, or put its own bytes under the temporary's, at any moment. So a copy counts
    // only once it has been read back, and everything else is tried again.
    constexpr int maximumAttempts = 10;
    int attempts = 0;
    for (int number = 0; attempts <= maximumAttempts;) {
        const QString copy = copyName(path, number);
        if (holds(copy, bytes)) {
            return true;
        }
        if (isTaken(copy)) {
            ++number;
            continue;
        }
        ++attempts;
        // Renaming with QFile fails when the new name exists.
        if (writeTemporary(path, bytes)) {
            QFile::rename(temporaryName(path), copy);
        }
    }
    QFile::remove(temporaryName(path));
    return false;
}

void KeptCopy::removeAbandoned(const QString& path)
{
    QByteArray content;
    // Reading clears away what a killed process left while it wrote the temporary.
    GlobalHelper::readFile(temporaryName(path), content);
    QFile::remove(temporaryName(path));
}

} // namespace DataManager
