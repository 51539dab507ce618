// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/private/AtomicFile.h>

#include <QByteArray>
#include <QString>

#ifdef Q_OS_UNIX
#include <basemodule/private/FileReplacement.h>
#else
#include <QSaveFile>
#endif

namespace BaseModule {

#ifdef Q_OS_UNIX

bool AtomicFile::replace(const QString& path, const QByteArray& content)
{
    // Two seconds: the caller is the user interface.
    constexpr int patience = 200;
    FileReplacement file(path);
    return file.open(patience) && file.write(content.constData(), content.size()) && file.commit();
}

void AtomicFile::removeAbandonedTemporary(const QString& path)
{
    FileReplacement(path).removeAbandoned();
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
