// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QList>

class vtkRenderer;

namespace Workbench {

/// The coordinate system whose axes are seen nearest to a pixel, counted from the window's lower left corner; -1 when
/// none is near. Axes are seen through everything, so nothing hides them but their own switches.
int axesAt(vtkRenderer& renderer, int x, int y);

/// The systems whose axes are seen and begin in the rectangle, in the registry's order.
QList<int> axesIn(vtkRenderer& renderer, const int area[4]);

} // namespace Workbench
