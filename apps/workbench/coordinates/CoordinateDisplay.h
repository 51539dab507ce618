// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QList>

namespace Workbench {

/// What a project keeps of its coordinate systems beside the systems themselves.
struct CoordinateDisplay
{
    int currentID = 0;
    /// Whether axes are to be seen at all: those of all systems but the hidden ones.
    bool areAxesShown = true;
    /// In ascending order.
    QList<int> hiddenIDs;
};

inline bool operator==(const CoordinateDisplay& left, const CoordinateDisplay& right)
{
    return left.currentID == right.currentID && left.areAxesShown == right.areAxesShown &&
           left.hiddenIDs == right.hiddenIDs;
}

} // namespace Workbench
