// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/MeshQualityPredict.h>

#include <datamanager/meshquality/private/MeshTables.h>
#include <datamanager/meshquality/private/VectorTable.h>

#include <algorithm>
#include <new>

namespace DataManager {

namespace {

// The nodes that are there already count when the elements' node numbers are looked at.
MeshTables tablesWithNodes(const QVector<QVector<double>>& nodes)
{
    MeshTables tables;
    tables.nodes.reserve(static_cast<std::size_t>(nodes.size()));
    for (const QVector<double>& node : nodes) {
        tables.nodes.push_back(VectorTable::plain(node));
    }
    return tables;
}

bool namesNodes(const QVector<int>& numbers, int nodeCount)
{
    return numbers.size() >= 4 && std::all_of(numbers.begin(), numbers.begin() + 4,
                                              [nodeCount](int number) { return number >= 1 && number <= nodeCount; });
}

} // namespace

namespace {

void appendMesh(const QString& path, QVector<QVector<double>>& nodes, QVector<QVector<int>>& elements)
{
    MeshTables tables = tablesWithNodes(nodes);
    LineSource lines(path);
    scanMesh(lines, tables);
    tables.removeUnconnected();

    nodes.reserve(static_cast<int>(tables.nodes.size()));
    for (std::size_t i = static_cast<std::size_t>(nodes.size()); i < tables.nodes.size(); ++i) {
        nodes.append(VectorTable::table(tables.nodes[i]));
    }
    elements.reserve(elements.size() + static_cast<int>(tables.tetrahedra.size()));
    for (const NodeNumbers& numbers : tables.tetrahedra) {
        QVector<int> corners(4); // a list of values would not tell when the memory ends
        std::copy(numbers.begin(), numbers.end(), corners.begin());
        elements.append(corners);
    }
}

} // namespace

void MeshQualityPredict::get_Nodes_Elements(QString path, QVector<QVector<double>>& nodes,
                                            QVector<QVector<int>>& elements)
{
    const int nodeCount = nodes.size();
    const int elementCount = elements.size();
    try {
        appendMesh(path, nodes, elements);
    } catch (const std::bad_alloc&) {
        // A mesh that does not fit into the memory is read like an empty file.
        nodes.resize(nodeCount);
        elements.resize(elementCount);
    }
}

QVector<QVector<QVector<double>>> MeshQualityPredict::get_ElementsNodes(QVector<QVector<double>> nodes,
                                                                        QVector<QVector<int>> elements)
{
    QVector<QVector<QVector<double>>> corners(elements.size());
    for (int i = 0; i < elements.size(); ++i) {
        const QVector<int>& numbers = elements.at(i);
        if (namesNodes(numbers, nodes.size())) {
            corners[i] = {nodes.at(numbers.at(0) - 1), nodes.at(numbers.at(1) - 1), nodes.at(numbers.at(2) - 1),
                          nodes.at(numbers.at(3) - 1)};
        }
    }
    return corners;
}

} // namespace DataManager
