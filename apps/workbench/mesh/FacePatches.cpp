// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/FacePatches.h>

#include <workbench/mesh/SurfaceReader.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <tuple>
#include <utility>

namespace Workbench {
namespace {

constexpr double leastCosine = 0.8660254037844386; // of 30 degrees
constexpr int mostPatches = 200;

// Joins faces to patches.
class Union
{
public:
    explicit Union(std::size_t count) : m_parent(count) { std::iota(m_parent.begin(), m_parent.end(), 0U); }

    std::size_t root(std::size_t i)
    {
        while (m_parent[i] != i) {
            m_parent[i] = m_parent[m_parent[i]];
            i = m_parent[i];
        }
        return i;
    }

    void join(std::size_t a, std::size_t b)
    {
        const std::size_t rootA = root(a);
        const std::size_t rootB = root(b);
        m_parent[std::max(rootA, rootB)] = std::min(rootA, rootB);
    }

private:
    std::vector<std::size_t> m_parent;
};

struct Edge
{
    int volume;
    int low;
    int high;
    std::size_t face;

    auto place() const { return std::tuple(volume, low, high); }
};

std::array<double, 3> unitNormal(const BoundaryFace& face, const PatchInput& input)
{
    const std::array<double, 3>& a = input.position(face.nodes[0]);
    const std::array<double, 3>& b = input.position(face.nodes[1]);
    const std::array<double, 3>& c = input.position(face.nodes[2]);
    const std::array<double, 3> u = {b[0] - a[0], b[1] - a[1], b[2] - a[2]};
    const std::array<double, 3> v = {c[0] - a[0], c[1] - a[1], c[2] - a[2]};
    const std::array<double, 3> n = {u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]};
    const double length = std::sqrt(n[0] * n[0] + n[1] * n[1] + n[2] * n[2]);
    return {n[0] / length, n[1] / length, n[2] / length};
}

class Division
{
public:
    Division(std::vector<BoundaryFace>& faces, const PatchInput& input)
        : m_faces(faces), m_input(input), m_union(faces.size()), m_groups(faces.size())
    {
        for (std::size_t i = 0; i < faces.size(); ++i) {
            const std::array<int, 3>& nodes = faces[i].nodes;
            m_groups[i] = input.groups->groupOf({nodes[0] + 1, nodes[1] + 1, nodes[2] + 1});
        }
    }

    std::vector<FacePatch> patches()
    {
        joinSmooth();
        numberRest();
        for (std::size_t i = 0; i < m_faces.size(); ++i) {
            m_places.try_emplace(key(i), 0);
        }
        int place = 0;
        for (auto& [key, patch] : m_places) {
            patch = place++;
            m_patches.push_back(patchOf(key));
        }
        for (std::size_t i = 0; i < m_faces.size(); ++i) {
            m_faces[i].patch = m_places[key(i)];
            ++m_patches[static_cast<std::size_t>(m_faces[i].patch)].triangleCount;
        }
        return std::move(m_patches);
    }

private:
    using Key = std::pair<int, int>; // volume, identifier

    int volume(std::size_t face) const { return m_input.volume(m_faces[face].element); }

    Key key(std::size_t face)
    {
        return {volume(face), m_groups[face] > 0 ? m_groups[face] : m_restIDs[{volume(face), m_union.root(face)}]};
    }

    FacePatch patchOf(const Key& key) const
    {
        FacePatch patch;
        patch.volumeTag = key.first;
        patch.faceID = key.second;
        patch.isGroup = key.second <= m_largestGroup;
        patch.name = m_input.groups->names.value(key.second);
        return patch;
    }

    std::vector<Edge> restEdges() const
    {
        std::vector<Edge> edges;
        for (std::size_t i = 0; i < m_faces.size(); ++i) {
            for (std::size_t side = 0; m_groups[i] == 0 && side < 3; ++side) {
                const auto [low, high] = std::minmax(m_faces[i].nodes[side], m_faces[i].nodes[(side + 1) % 3]);
                edges.push_back({volume(i), low, high, i});
            }
        }
        std::sort(edges.begin(), edges.end(), [](const Edge& a, const Edge& b) { return a.place() < b.place(); });
        return edges;
    }

    // Joins faces across edges that two of them share.
    void joinSmooth()
    {
        const std::vector<Edge> edges = restEdges();
        for (auto begin = edges.begin(); begin != edges.end();) {
            const auto isHere = [begin](const Edge& edge) { return edge.place() == begin->place(); };
            const auto end = std::find_if_not(begin, edges.end(), isHere);
            if (end - begin == 2 && isSmooth(begin->face, (begin + 1)->face)) {
                m_union.join(begin->face, (begin + 1)->face);
            }
            begin = end;
        }
    }

    bool isSmooth(std::size_t a, std::size_t b) const
    {
        const std::array<double, 3> m = unitNormal(m_faces[a], m_input);
        const std::array<double, 3> n = unitNormal(m_faces[b], m_input);
        return m[0] * n[0] + m[1] * n[1] + m[2] * n[2] >= leastCosine;
    }

    // Numbers the patches without group, above all groups.
    void numberRest()
    {
        m_largestGroup = m_groups.empty() ? 0 : *std::max_element(m_groups.begin(), m_groups.end());
        std::map<int, int> countOfVolume;
        for (std::size_t i = 0; i < m_faces.size(); ++i) {
            if (m_groups[i] == 0 && m_restIDs.try_emplace({volume(i), m_union.root(i)}, 0).second) {
                m_restIDs[{volume(i), m_union.root(i)}] = m_largestGroup + ++countOfVolume[volume(i)];
            }
        }
        for (auto& [volumeAndRoot, faceID] : m_restIDs) {
            if (countOfVolume[volumeAndRoot.first] > mostPatches) {
                faceID = m_largestGroup + 1;
            }
        }
    }

    std::vector<BoundaryFace>& m_faces;
    const PatchInput& m_input;
    Union m_union;
    std::vector<int> m_groups;
    int m_largestGroup = 0;
    std::map<std::pair<int, std::size_t>, int> m_restIDs;
    std::map<Key, int> m_places;
    std::vector<FacePatch> m_patches;
};

} // namespace

std::vector<FacePatch> dividePatches(std::vector<BoundaryFace>& faces, const PatchInput& input)
{
    return Division(faces, input).patches();
}

} // namespace Workbench
