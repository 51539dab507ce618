// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/private/MeshTables.h>

#include <algorithm>

namespace DataManager {

std::vector<std::size_t> MeshTables::removeUnconnected()
{
    std::vector<std::size_t> removed;
    for (const std::size_t element : m_doubtful) {
        if (!areNodes(tetrahedra[element])) {
            removed.push_back(element);
        }
    }
    m_doubtful.clear();
    removeAt(tetrahedra, removed);
    return removed;
}

MeshTables readMeshTables(const QString& path)
{
    LineSource lines(path);
    MeshTables tables;
    scanMesh(lines, tables);
    tables.removeUnconnected();
    return tables;
}

} // namespace DataManager
