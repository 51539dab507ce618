// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

class QIcon;

namespace Workbench {

/// Pictures for tool buttons, drawn here so that they fit together and need no files.
enum class IconName : int
{
    New,
    Open,
    Save,
    Undo,
    Redo,
    SelectMode,
    RotateMode,
    TranslateMode,
    DrawMode,
    Volumes,
    Faces,
    Nodes,
    Elements,
    Groups,
    Axes,
    Fit,
    Isometric,
    Front,
    Top,
    Right,
    Screenshot,
    Mesh,
    Edges
};

QIcon icon(IconName name);

} // namespace Workbench
