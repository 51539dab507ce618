// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <meshquality/ResultFile.h>

namespace MeshQuality {

struct ScoredMesh;

/// Writes one line an element, of all meshes of a run, into a file. What was there before stays until commit().
class CsvReport
{
public:
    /// An empty name stands for no file; everything then succeeds.
    explicit CsvReport(const QString& path);

    void write(const ScoredMesh& mesh);
    /// False, after a message on standard error, when not all has reached the file.
    bool commit() { return m_file.commit(); }

private:
    ResultFile m_file;
};

} // namespace MeshQuality
