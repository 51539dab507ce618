// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/ResultFile.h>

#include <console/Console.h>

#include <QCoreApplication>

namespace MeshQuality {

ResultFile::ResultFile(const QString& path) : m_file(path)
{
    m_isOpen = !path.isEmpty() && m_file.open(QIODevice::WriteOnly);
}

void ResultFile::write(const QByteArray& bytes)
{
    if (isWritable()) {
        m_file.write(bytes);
    }
}

bool ResultFile::commit()
{
    if (!m_isOpen && m_file.fileName().isEmpty()) {
        return true;
    }
    // A disk that fills up while the last bytes are flushed is not noticed by the commit.
    if (m_isOpen && (!m_file.flush() || m_file.error() != QFileDevice::NoError)) {
        m_file.cancelWriting();
    }
    if (!m_isOpen || !m_file.commit()) {
        Console::printError(m_file.fileName(), QCoreApplication::translate("meshquality", "cannot be written"));
        return false;
    }
    return true;
}

} // namespace MeshQuality
