// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/private/MeshTables.h>

#include <datamanager/meshquality/private/LargePages.h>

#include <new>

namespace DataManager {

void MeshTables::expect(qint64 fileSize)
{
    // Meshes of 0.1 to 2 million tetrahedra have 250 to 310 bytes of file for every node and 45 to 55 for every
    // tetrahedron. What is not filled takes no memory.
    try {
        reserveInLargePages(nodes, static_cast<std::size_t>(fileSize / 200));
        reserveInLargePages(tetrahedra, static_cast<std::size_t>(fileSize / 36));
    } catch (const std::bad_alloc&) {
        // Less may be enough.
    }
}

std::vector<std::size_t> MeshTables::removeUnconnected()
{
    std::vector<std::size_t> removed;
    for (const std::size_t element : m_doubtful) {
        if (!areNodes(tetrahedra[element])) {
            removed.push_back(element);
        }
    }
    removeAt(tetrahedra, removed);
    return removed;
}

MeshTables readMeshTables(const QString& path)
{
    LineSource lines(path);
    MeshTables tables;
    tables.expect(lines.size());
    scanMesh(lines, tables);
    tables.removeUnconnected();
    return tables;
}

} // namespace DataManager
