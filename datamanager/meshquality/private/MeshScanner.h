// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/private/LineSource.h>
#include <datamanager/meshquality/private/Tetrahedron.h>

#include <array>

namespace DataManager {

/// The four node numbers of a tetrahedron as the file gives them, from 1.
using NodeNumbers = std::array<int, 4>;

/// Follows the section markers of a mesh file. A marker counts wherever it stands in its line.
class MeshSections
{
public:
    /// Takes a line that may be a marker; true when it is one.
    bool takeMarker(TextRange line);
    bool inNodes() const { return m_inNodes; }
    /// Where both sections are open, the lines belong to the nodes.
    bool inElements() const { return m_inElements && !m_inNodes; }

private:
    bool m_inNodes = false;
    bool m_inElements = false;
};

enum class ElementLine : int
{
    OtherType,
    Short,
    Tetrahedron
};

/// Reads a node line, `number x y z`; false when it has fewer than four fields.
bool readNodeLine(TextRange line, Tetrahedron::Vector& node);

/// Reads an element line, `number 4 tags physical elementary n1 n2 n3 n4`. Two tags are expected, whatever the third
/// field says.
ElementLine readElementLine(TextRange line, NodeNumbers& corners);

/// What a scan of a mesh file meets, in file order.
/// A sink derives from this, hides what it wants to know, and is passed by its own type: nothing here is virtual.
struct MeshSink
{
    void node(const Tetrahedron::Vector&, TextRange) {}
    void tetrahedron(const NodeNumbers&, TextRange) {}
    /// A node line with fewer than four fields, or a tetrahedron's with fewer than nine. It is passed over. An element
    /// line that ends with its type is of no type that is known: the line terminator belongs to the last field.
    void shortNode() {}
    void shortTetrahedron(TextRange) {}
    /// A line outside of both sections; false stops the scan.
    bool outside(TextRange) { return true; }
    /// Asked before every line; false stops the scan.
    bool proceeds() { return true; }
};

template <class Sink>
void scanNodeLine(TextRange line, Sink& sink)
{
    Tetrahedron::Vector node;
    if (readNodeLine(line, node)) {
        sink.node(node, line);
    } else {
        sink.shortNode();
    }
}

template <class Sink>
void scanElementLine(TextRange line, Sink& sink)
{
    NodeNumbers corners;
    switch (readElementLine(line, corners)) {
    case ElementLine::Tetrahedron:
        sink.tetrahedron(corners, line);
        break;
    case ElementLine::Short:
        sink.shortTetrahedron(line);
        break;
    case ElementLine::OtherType:
        break;
    }
}

/// Passes every record of a mesh file to `sink`. The first of all node lines and the first of all element lines are
/// counts, which nothing uses.
template <class Sink>
void scanMesh(LineSource& lines, Sink& sink)
{
    MeshSections sections;
    bool nodeCountSeen = false;
    bool elementCountSeen = false;
    while (sink.proceeds() && lines.next()) {
        const TextRange line = lines.line();
        if (lines.holdsDollar() && sections.takeMarker(line)) {
            lines.keepLongLines(sections.inNodes() || sections.inElements());
            continue;
        }
        if (sections.inNodes()) {
            if (nodeCountSeen) {
                scanNodeLine(line, sink);
            }
            nodeCountSeen = true;
        } else if (sections.inElements()) {
            if (elementCountSeen) {
                scanElementLine(line, sink);
            }
            elementCountSeen = true;
        } else if (!sink.outside(line)) {
            return;
        }
    }
}

} // namespace DataManager
