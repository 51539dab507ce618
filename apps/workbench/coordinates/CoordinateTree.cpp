// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/coordinates/CoordinateTree.h>

#include <QHash>
#include <QSet>

namespace Workbench {

namespace {

using Node = CoordinateTree::Node;

QHash<int, int> positionsByID(const QVector<Node>& nodes)
{
    QHash<int, int> positions;
    for (int i = nodes.size() - 1; i >= 0; --i) {
        positions.insert(nodes.at(i).id, i);
    }
    return positions;
}

void findParents(QVector<Node>& nodes)
{
    const QHash<int, int> positions = positionsByID(nodes);
    for (Node& node : nodes) {
        if (node.id != 0) {
            node.parent = positions.value(node.basicID, -1);
            node.fault = node.parent < 0 ? CoordinateTree::BasicMissing : CoordinateTree::None;
        }
    }
}

/// Walks up from every node; a node that is met again on its own way closes a loop.
void cutLoops(QVector<Node>& nodes)
{
    constexpr int unseen = -1;
    QVector<int> walkOf(nodes.size(), unseen);
    for (int start = 0; start < nodes.size(); ++start) {
        int last = -1;
        int at = start;
        while (at >= 0 && walkOf.at(at) == unseen) {
            walkOf[at] = start;
            last = at;
            at = nodes.at(at).parent;
        }
        if (at >= 0 && last >= 0 && walkOf.at(at) == start) {
            nodes[last].parent = -1;
            nodes[last].fault = CoordinateTree::Loop;
        }
    }
}

} // namespace

QVector<int> CoordinateTree::downwards() const
{
    QVector<QVector<int>> children(nodes.size());
    QVector<int> order;
    for (int i = 0; i < nodes.size(); ++i) {
        if (nodes.at(i).parent < 0) {
            order.append(i);
        } else {
            children[nodes.at(i).parent].append(i);
        }
    }
    for (int i = 0; i < order.size(); ++i) {
        order += children.at(order.at(i));
    }
    return order;
}

QVector<int> CoordinateTree::below(int id) const
{
    QSet<int> reached;
    QVector<int> ids;
    for (const int position : downwards()) {
        const Node& node = nodes.at(position);
        if (node.id == id) {
            reached.insert(position);
        } else if (reached.contains(node.parent)) {
            reached.insert(position);
            ids.append(node.id);
        }
    }
    return ids;
}

CoordinateTree makeCoordinateTree(const QVector<QPair<int, int>>& systems)
{
    CoordinateTree tree;
    for (const QPair<int, int>& system : systems) {
        tree.nodes.append({system.first, system.second});
    }
    findParents(tree.nodes);
    cutLoops(tree.nodes);
    return tree;
}

} // namespace Workbench
