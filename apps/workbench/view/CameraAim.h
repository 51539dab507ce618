// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <array>

namespace Workbench {

/// xmin, xmax, ymin, ymax, zmin, zmax.
using Box = std::array<double, 6>;

/// How much of a box is within the window.
enum class Seen : int
{
    Nothing,
    Part,
    Whole
};

/// By how much a box that takes the place of another differs: the farthest that one of its sides moved, as a share of
/// the longer diagonal. 0 for two points in the same place; infinite when a box has no finite size.
double boxChange(const Box& before, const Box& now);

/// Whether the camera has to be aimed anew after what is drawn got another box. It stays on a part that was meshed
/// anew, wherever it looks; it does not stay on a place where there is nothing any more, or on a thing of another size,
/// and who saw everything goes on seeing everything.
bool needsAim(double change, Seen before, Seen now);

} // namespace Workbench
