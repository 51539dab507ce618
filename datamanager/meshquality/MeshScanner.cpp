// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/private/MeshScanner.h>

#include <datamanager/meshquality/private/FieldCursor.h>

#include <string_view>

namespace DataManager {

bool MeshSections::takeMarker(TextRange line)
{
    const std::string_view text(line.begin, static_cast<std::size_t>(line.end - line.begin));
    const auto holds = [text](std::string_view marker) { return text.find(marker) != std::string_view::npos; };
    const auto& [nodes, endOfNodes, elements, endOfElements] = sectionMarkers;
    if (holds(nodes)) {
        m_inNodes = true;
    } else if (holds(endOfNodes)) {
        m_inNodes = false;
    } else if (holds(elements)) {
        m_inElements = true;
    } else if (holds(endOfElements)) {
        m_inElements = false;
    } else {
        return false;
    }
    return true;
}

bool readNodeLine(TextRange line, Tetrahedron::Vector& node)
{
    FieldCursor field(line);
    for (double* coordinate : {&node.x, &node.y, &node.z}) {
        if (!field.next()) {
            return false;
        }
        *coordinate = field.toDouble();
    }
    return true;
}

ElementLine readElementLine(TextRange line, NodeNumbers& corners)
{
    FieldCursor field(line);
    if (!field.next() || !field.is('4')) {
        return ElementLine::OtherType;
    }
    // Past the type, the tag count and the two tags.
    if (!field.next() || !field.next() || !field.next()) {
        return ElementLine::Short;
    }
    for (int& corner : corners) {
        if (!field.next()) {
            return ElementLine::Short;
        }
        corner = field.toInt();
    }
    return ElementLine::Tetrahedron;
}

} // namespace DataManager
