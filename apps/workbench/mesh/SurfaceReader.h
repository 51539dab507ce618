// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/mesh/FileLines.h>

#include <QMap>
#include <QString>

#include <array>
#include <vector>

namespace Workbench {

/// The triangles of a mesh file that belong to a surface group.
struct SurfaceGroups
{
    struct Triangle
    {
        /// Node numbers, rising.
        std::array<int, 3> nodes;
        int physicalTag;
    };

    /// By their nodes; of triangles with the same nodes the first of the file comes first.
    std::vector<Triangle> triangles;
    /// Names that the file gives to surface groups, by physical tag.
    QMap<int, QString> names;

    /// The group of the triangle with these node numbers, in any order; 0 when it is in none.
    int groupOf(std::array<int, 3> nodes) const;
};

/// Reads them from MSH 2 ASCII. Lines that are no triangles of three different nodes in a group are passed over; of a
/// file in another format none are left. False when the file could not be read, or `progress` ended it.
bool readSurfaceGroups(const QString& path, SurfaceGroups& groups, const FileLines::Progress& progress);

} // namespace Workbench
