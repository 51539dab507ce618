// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/BoundaryFaces.h>

#include <algorithm>
#include <cstdint>
#include <utility>

namespace Workbench {
namespace {

// The corners of the four sides, counter-clockwise as seen from outside.
constexpr std::array<std::array<int, 3>, 4> sides = {{{0, 2, 1}, {0, 1, 3}, {1, 2, 3}, {0, 3, 2}}};

// A side, filed under its smallest node.
struct Entry
{
    int second;
    int third;
    std::uint32_t element; // times 4, plus the side
};

bool isSameFace(const Entry& a, const Entry& b)
{
    return a.second == b.second && a.third == b.third;
}

std::array<int, 3> nodesOfSide(const std::array<int, 4>& corners, std::size_t side)
{
    std::array<int, 3> nodes{};
    for (std::size_t i = 0; i < 3; ++i) {
        nodes[i] = corners[static_cast<std::size_t>(sides[side][i])];
    }
    return nodes;
}

// Sides by their smallest node: a bucket a node, all in one table.
class Buckets
{
public:
    explicit Buckets(const Tetrahedra& mesh) : m_starts(static_cast<std::size_t>(mesh.nodeCount) + 1)
    {
        forEachSide(mesh, [this](const std::array<int, 3>& sorted, std::uint32_t) { ++m_starts[index(sorted) + 1]; });
        for (std::size_t i = 1; i < m_starts.size(); ++i) {
            m_starts[i] += m_starts[i - 1];
        }
        m_entries.resize(m_starts.back());
        std::vector<std::size_t> next(m_starts.begin(), m_starts.end() - 1);
        forEachSide(mesh, [this, &next](const std::array<int, 3>& sorted, std::uint32_t side) {
            m_entries[next[index(sorted)]++] = {sorted[1], sorted[2], side};
        });
    }

    std::size_t count() const { return m_starts.size() - 1; }
    Entry* begin(std::size_t bucket) { return m_entries.data() + m_starts[bucket]; }
    Entry* end(std::size_t bucket) { return m_entries.data() + m_starts[bucket + 1]; }

private:
    static std::size_t index(const std::array<int, 3>& sorted) { return static_cast<std::size_t>(sorted[0]); }

    template <class Action>
    static void forEachSide(const Tetrahedra& mesh, Action action)
    {
        for (int element = 0; element < mesh.elementCount; ++element) {
            for (std::size_t side = 0; side < sides.size(); ++side) {
                std::array<int, 3> nodes = nodesOfSide(mesh.corners(element), side);
                std::sort(nodes.begin(), nodes.end());
                action(nodes, static_cast<std::uint32_t>(element) * 4U + static_cast<std::uint32_t>(side));
            }
        }
    }

    std::vector<std::size_t> m_starts;
    std::vector<Entry> m_entries;
};

// Sides of one face bound a volume when there is but one of them, or when they are of different volumes.
bool isBoundary(const Tetrahedra& mesh, const Entry* begin, const Entry* end)
{
    const auto volume = [&mesh](const Entry& entry) { return mesh.volume(static_cast<int>(entry.element / 4U)); };
    return end - begin == 1 ||
           std::any_of(begin, end, [&](const Entry& entry) { return volume(entry) != volume(*begin); });
}

void takeBucket(const Tetrahedra& mesh, Entry* begin, Entry* end, std::vector<BoundaryFace>& faces)
{
    std::sort(begin, end, [](const Entry& a, const Entry& b) {
        return std::pair(a.second, a.third) < std::pair(b.second, b.third) ||
               (isSameFace(a, b) && a.element < b.element);
    });
    while (begin != end) {
        Entry* next = std::find_if_not(begin, end, [begin](const Entry& entry) { return isSameFace(*begin, entry); });
        if (isBoundary(mesh, begin, next)) {
            std::for_each(begin, next, [&](const Entry& entry) {
                const int element = static_cast<int>(entry.element / 4U);
                faces.push_back({nodesOfSide(mesh.corners(element), entry.element % 4U), element, -1});
            });
        }
        begin = next;
    }
}

} // namespace

std::vector<BoundaryFace> boundaryFaces(const Tetrahedra& mesh)
{
    Buckets buckets(mesh);
    std::vector<BoundaryFace> faces;
    for (std::size_t bucket = 0; bucket < buckets.count(); ++bucket) {
        takeBucket(mesh, buckets.begin(bucket), buckets.end(bucket), faces);
    }
    return faces;
}

} // namespace Workbench
