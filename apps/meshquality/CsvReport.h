// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QSaveFile>

namespace MeshQuality {

struct ScoredMesh;

/// Writes one line an element, of all meshes of a run, into a file. What was there before stays until commit().
class CsvReport
{
public:
    /// An empty name stands for no file; everything then succeeds.
    explicit CsvReport(const QString& path);

    void write(const ScoredMesh& mesh);
    /// False when not all has reached the file.
    bool commit();

private:
    void writeHeader();

    QSaveFile m_file;
    bool m_isOpen = false;
};

} // namespace MeshQuality
