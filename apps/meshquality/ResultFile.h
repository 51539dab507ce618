// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QSaveFile>

namespace MeshQuality {

/// A file that a result goes to piece by piece. What was there before stays until commit().
class ResultFile
{
public:
    /// An empty name stands for no file; everything then succeeds.
    explicit ResultFile(const QString& path);

    /// Whether there is a file and nothing has gone wrong with it yet.
    bool isWritable() const { return m_isOpen && m_file.error() == QFileDevice::NoError; }
    void write(const QByteArray& bytes);
    /// False, after a message on standard error, when not all has reached the file.
    bool commit();

private:
    QSaveFile m_file;
    bool m_isOpen = false;
};

} // namespace MeshQuality
