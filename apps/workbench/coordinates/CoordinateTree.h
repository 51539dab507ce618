// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QVector>

namespace Workbench {

/// How coordinate systems hang together by their basic systems, whatever a file says of them.
struct CoordinateTree
{
    enum Fault : int
    {
        None,
        BasicMissing, ///< its basic system does not exist
        Loop          ///< it closes a loop of basic systems, which is cut here
    };
    struct Node
    {
        int id;
        int basicID;
        int parent = -1; ///< the position of the basic system's node; -1 at the top
        Fault fault = None;
    };
    /// In the order given.
    QVector<Node> nodes;

    /// Every position once, a basic system before the systems that are relative to it.
    QVector<int> downwards() const;
    /// The identifiers of all systems below this one, at any depth; basic systems first.
    QVector<int> below(int id) const;
};

/// `systems` holds (identifier, identifier of the basic system). Of several systems with one identifier the first
/// counts as the basic system of others; 0 is at the top.
CoordinateTree makeCoordinateTree(const QVector<QPair<int, int>>& systems);

} // namespace Workbench
