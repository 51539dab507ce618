// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/BoundaryFaces.h>

#include <algorithm>
#include <cstdint>
#include <utility>

namespace Workbench {
namespace {

constexpr std::array<std::array<std::size_t, 3>, 4> sides = {{{0, 2, 1}, {0, 1, 3}, {1, 2, 3}, {0, 3, 2}}};

// A side, filed under its smallest node.
struct Entry
{
    int second; // of its nodes by size
    int third;
    std::uint32_t code;

    int element() const { return static_cast<int>(code / 8U); }
    std::size_t side() const { return code / 2U % 4U; }
    // Whether the nodes rise or fall as they go round it from the smallest; a neighbour has them the other way.
    std::size_t way() const { return code % 2U; }
};

bool isSameFace(const Entry& a, const Entry& b)
{
    return a.second == b.second && a.third == b.third;
}

Entry entryOf(const std::array<int, 3>& fromSmallest, int element, std::size_t side)
{
    const auto [second, third] = std::minmax(fromSmallest[1], fromSmallest[2]);
    const std::uint32_t way = second == fromSmallest[1] ? 0 : 1;
    return {second, third, static_cast<std::uint32_t>(element) * 8U + static_cast<std::uint32_t>(side) * 2U + way};
}

// Sides by their smallest node: a bucket a node, all in one table.
class Buckets
{
public:
    explicit Buckets(const Tetrahedra& mesh) : m_starts(static_cast<std::size_t>(mesh.nodeCount) + 1)
    {
        forEachSide(mesh, [this](std::size_t node, const Entry&) { ++m_starts[node + 1]; });
        for (std::size_t i = 1; i < m_starts.size(); ++i) {
            m_starts[i] += m_starts[i - 1];
        }
        m_entries.resize(m_starts.back());
        std::vector<std::size_t> next(m_starts.begin(), m_starts.end() - 1);
        forEachSide(mesh, [this, &next](std::size_t node, const Entry& entry) { m_entries[next[node]++] = entry; });
    }

    std::size_t count() const { return m_starts.size() - 1; }
    Entry* begin(std::size_t bucket) { return m_entries.data() + m_starts[bucket]; }
    Entry* end(std::size_t bucket) { return m_entries.data() + m_starts[bucket + 1]; }

private:
    template <class Action>
    static void forEachSide(const Tetrahedra& mesh, Action action)
    {
        for (int element = 0; element < mesh.elementCount; ++element) {
            for (std::size_t side = 0; side < sides.size(); ++side) {
                std::array<int, 3> nodes = sideOfTetrahedron(mesh.corners(element), side);
                std::rotate(nodes.begin(), std::min_element(nodes.begin(), nodes.end()), nodes.end());
                action(static_cast<std::size_t>(nodes[0]), entryOf(nodes, element, side));
            }
        }
    }

    std::vector<std::size_t> m_starts;
    std::vector<Entry> m_entries;
};

// Sides of one face bound a volume when there is but one of them, or when they are of different volumes.
bool isBoundary(const Tetrahedra& mesh, const Entry* begin, const Entry* end)
{
    const auto volume = [&mesh](const Entry& entry) { return mesh.volume(entry.element()); };
    return end - begin == 1 ||
           std::any_of(begin, end, [&](const Entry& entry) { return volume(entry) != volume(*begin); });
}

void setNeighbours(const Entry* begin, const Entry* end, std::vector<std::array<int, 4>>& neighbours)
{
    std::array<int, 2> elements = {-1, -1}; // the first of each way
    for (const Entry* entry = end; entry-- != begin;) {
        elements[entry->way()] = entry->element();
    }
    std::for_each(begin, end, [&](const Entry& entry) {
        neighbours[static_cast<std::size_t>(entry.element())][entry.side()] = elements[1 - entry.way()];
    });
}

void takeBucket(const Tetrahedra& mesh, Entry* begin, Entry* end, Neighbourhood& found)
{
    std::sort(begin, end, [](const Entry& a, const Entry& b) {
        return std::pair(a.second, a.third) < std::pair(b.second, b.third) || (isSameFace(a, b) && a.code < b.code);
    });
    while (begin != end) {
        Entry* next = std::find_if_not(begin, end, [begin](const Entry& entry) { return isSameFace(*begin, entry); });
        setNeighbours(begin, next, found.neighbours);
        if (isBoundary(mesh, begin, next)) {
            std::for_each(begin, next, [&](const Entry& entry) {
                const std::array<int, 3> nodes = sideOfTetrahedron(mesh.corners(entry.element()), entry.side());
                found.boundary.push_back({nodes, entry.element(), -1});
            });
        }
        begin = next;
    }
}

} // namespace

std::array<int, 3> sideOfTetrahedron(const std::array<int, 4>& corners, std::size_t side)
{
    return {corners[sides[side][0]], corners[sides[side][1]], corners[sides[side][2]]};
}

Neighbourhood neighbourhood(const Tetrahedra& mesh)
{
    Buckets buckets(mesh);
    Neighbourhood found;
    found.neighbours.resize(static_cast<std::size_t>(mesh.elementCount));
    for (std::size_t bucket = 0; bucket < buckets.count(); ++bucket) {
        takeBucket(mesh, buckets.begin(bucket), buckets.end(bucket), found);
    }
    return found;
}

} // namespace Workbench
