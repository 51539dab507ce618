// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <array>

namespace Workbench {

using Colour = std::array<unsigned char, 3>;

/// Colours that tell faces apart without shouting; they repeat after twelve.
Colour faceColour(int face);

/// What is selected.
constexpr Colour highlightColour = {255, 140, 0};
/// Elements that the view was told to look at.
constexpr Colour focusColour = {214, 39, 40};

} // namespace Workbench
