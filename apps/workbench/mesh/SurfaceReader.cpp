// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/SurfaceReader.h>

#include <algorithm>
#include <charconv>
#include <string_view>

namespace Workbench {
namespace {

constexpr int triangleType = 2;
constexpr int surfaceDimension = 2;

// Takes blank-separated integers off the front of a line.
class Fields
{
public:
    Fields(const char* begin, const char* end) : m_next(begin), m_end(end) {}

    bool takeInt(int& value)
    {
        m_next = std::find_if_not(m_next, m_end, [](char c) { return c == ' ' || c == '\t'; });
        const auto [rest, error] = std::from_chars(m_next, m_end, value);
        const bool isWhole = error == std::errc() && (rest == m_end || *rest == ' ' || *rest == '\t' || *rest == '\r');
        m_next = rest;
        return isWhole;
    }

    /// What stands between the first and the last quotation mark.
    QString quoted() const
    {
        const std::string_view text(m_next, static_cast<std::size_t>(m_end - m_next));
        const std::size_t first = text.find('"');
        const std::size_t last = text.rfind('"');
        return last == first ? QString()
                             : QString::fromUtf8(text.data() + first + 1, static_cast<int>(last - first - 1));
    }

private:
    const char* m_next;
    const char* m_end;
};

// Columns: number, type, count of tags, the tags (the first is the physical group), three nodes.
bool takeTriangle(Fields fields, SurfaceGroups::Triangle& triangle)
{
    int number = 0;
    int type = 0;
    int tagCount = 0;
    if (!fields.takeInt(number) || !fields.takeInt(type) || type != triangleType || !fields.takeInt(tagCount) ||
        tagCount < 1 || !fields.takeInt(triangle.physicalTag)) {
        return false;
    }
    int otherTag = 0;
    for (int i = 1; i < tagCount; ++i) {
        if (!fields.takeInt(otherTag)) {
            return false;
        }
    }
    std::array<int, 3>& nodes = triangle.nodes;
    if (!fields.takeInt(nodes[0]) || !fields.takeInt(nodes[1]) || !fields.takeInt(nodes[2])) {
        return false;
    }
    std::sort(nodes.begin(), nodes.end());
    return triangle.physicalTag > 0 && nodes[0] < nodes[1] && nodes[1] < nodes[2];
}

// Follows the sections of the file.
class Reader
{
public:
    explicit Reader(SurfaceGroups& groups) : m_groups(groups) {}

    void take(const char* begin, const char* end)
    {
        if (begin != end && *begin == '$') {
            const std::string_view marker(begin, static_cast<std::size_t>(end - begin));
            m_section = marker.substr(0, marker.find_last_not_of(" \t\r") + 1) == "$Elements" ? Section::Elements
                        : marker.substr(0, 14) == "$PhysicalNames"                            ? Section::Names
                                                                                              : Section::Other;
        } else if (m_section == Section::Elements) {
            SurfaceGroups::Triangle triangle{};
            if (takeTriangle(Fields(begin, end), triangle)) {
                m_groups.triangles.push_back(triangle);
            }
        } else if (m_section == Section::Names) {
            takeName(Fields(begin, end));
        }
    }

private:
    enum class Section : int
    {
        Other,
        Names,
        Elements
    };

    void takeName(Fields fields)
    {
        int dimension = 0;
        int tag = 0;
        if (fields.takeInt(dimension) && dimension == surfaceDimension && fields.takeInt(tag)) {
            m_groups.names.insert(tag, fields.quoted());
        }
    }

    SurfaceGroups& m_groups;
    Section m_section = Section::Other;
};

} // namespace

int SurfaceGroups::groupOf(std::array<int, 3> nodes) const
{
    std::sort(nodes.begin(), nodes.end());
    const auto before = [](const Triangle& triangle, const std::array<int, 3>& wanted) {
        return triangle.nodes < wanted;
    };
    const auto found = std::lower_bound(triangles.begin(), triangles.end(), nodes, before);
    return found != triangles.end() && found->nodes == nodes ? found->physicalTag : 0;
}

bool readSurfaceGroups(const QString& path, SurfaceGroups& groups, const FileLines::Progress& progress)
{
    groups = SurfaceGroups();
    Reader reader(groups);
    const bool isRead =
        FileLines(path).forEach([&reader](const char* begin, const char* end) { reader.take(begin, end); }, progress);
    std::stable_sort(groups.triangles.begin(), groups.triangles.end(),
                     [](const auto& a, const auto& b) { return a.nodes < b.nodes; });
    return isRead;
}

} // namespace Workbench
