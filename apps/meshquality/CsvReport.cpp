// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/CsvReport.h>

#include <meshquality/ElementCsv.h>
#include <meshquality/ScoredMesh.h>

namespace MeshQuality {

CsvReport::CsvReport(const QString& path) : m_file(path)
{
    m_file.write(elementHeader());
}

void CsvReport::write(const ScoredMesh& mesh)
{
    for (int element = 0; m_file.isWritable() && element < mesh.report.elementCount(); ++element) {
        m_file.write(elementLine(mesh.file, mesh.report, element));
    }
}

} // namespace MeshQuality
