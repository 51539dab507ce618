// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/private/MeshScanner.h>

#include <vector>

namespace DataManager {

/// The nodes and the tetrahedra of a mesh file in flat arrays.
///
/// Lines that cannot be read are passed over, as if the file did not hold them: node lines with fewer than four fields
/// (the later nodes move up by one), tetrahedra with fewer than nine fields, and tetrahedra that name a node which the
/// file does not hold.
class MeshTables : public MeshSink
{
public:
    std::vector<Tetrahedron::Vector> nodes;
    std::vector<NodeNumbers> tetrahedra;

    /// Makes room for what a file of this size usually holds; it may hold more.
    void expect(qint64 fileSize);

    void node(const Tetrahedron::Vector& position, TextRange) { nodes.push_back(position); }
    void tetrahedron(const NodeNumbers& corners, TextRange)
    {
        if (!areNodes(corners)) {
            m_doubtful.push_back(tetrahedra.size());
        }
        tetrahedra.push_back(corners);
    }

    /// Whether nodes of these numbers have been read.
    bool areNodes(const NodeNumbers& corners) const
    {
        const std::size_t count = nodes.size();
        // Zero and negative numbers become large ones.
        const auto isNode = [count](int number) { return static_cast<std::size_t>(number) - 1 < count; };
        return isNode(corners[0]) && isNode(corners[1]) && isNode(corners[2]) && isNode(corners[3]);
    }

    /// To be called once, after the scan. Removes the tetrahedra that name missing nodes, and returns their places
    /// among all those scanned, in order.
    std::vector<std::size_t> removeUnconnected();

    Tetrahedron::Corners corners(std::size_t element) const
    {
        const NodeNumbers& numbers = tetrahedra[element];
        return {position(numbers[0]), position(numbers[1]), position(numbers[2]), position(numbers[3])};
    }
    /// The node of this number, which exists.
    const Tetrahedron::Vector& position(int number) const { return nodes[static_cast<std::size_t>(number) - 1]; }

private:
    // Elements whose nodes were not there when their line was read; a node section that follows may bring them.
    std::vector<std::size_t> m_doubtful;
};

inline bool repeatsNode(const NodeNumbers& n)
{
    return n[0] == n[1] || n[0] == n[2] || n[0] == n[3] || n[1] == n[2] || n[1] == n[3] || n[2] == n[3];
}

/// Removes the entries at these places, which are in order.
template <class Entry>
void removeAt(std::vector<Entry>& entries, const std::vector<std::size_t>& places)
{
    if (places.empty()) {
        return;
    }
    auto place = places.begin();
    std::size_t kept = 0;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (place != places.end() && *place == i) {
            ++place;
        } else {
            entries[kept++] = entries[i];
        }
    }
    entries.resize(kept);
}

/// Reads the whole of a mesh file. Unreadable files have no nodes and no elements.
MeshTables readMeshTables(const QString& path);

} // namespace DataManager
