// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace Workbench {

/// Chooses the OpenGL format that the 3-D view needs. Call it before the application object is created.
void prepareGraphics();

} // namespace Workbench
