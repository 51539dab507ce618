// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace BaseModule {

/// What the mouse does in the 3-D view. Other values may occur and count as undefined.
enum InteractionMode : int
{
    Undefine = 0,
    Select = 1,
    Rotate = 2,
    Translate = 3,
    MouseDraw = 4
};

} // namespace BaseModule
