// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QList>
#include <QString>

namespace Workbench {

/// One line of the project tree.
struct ProjectTreeLine
{
    enum class Kind : int
    {
        Heading,
        Volume,
        Face,
        Set,
        Mesh,
        /// A mesh whose file could not be read.
        UnreadMesh,
        Group,
        Material,
        CoordinateSystem
    };

    Kind kind = Kind::Heading;
    QString text;
    QString details;
    /// What the line stands for: select model and identifiers; select model -1 when it cannot be selected.
    int selectModel = -1;
    int firstID = 0;
    int secondID = -1;
    /// Whether the user made it and may delete it.
    bool isOwn = false;
    /// Whether the line has a mark that shows or hides what it stands for, and its state.
    bool isCheckable = false;
    bool isShown = true;
    QList<ProjectTreeLine> children;
};

/// The lines of the open project, as the managers tell them now.
QList<ProjectTreeLine> projectTreeContent();

} // namespace Workbench
