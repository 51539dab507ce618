// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/mesh/KernelMesh.h>

#include <array>
#include <vector>

namespace Workbench {

/// The sides of these elements, given as places in the mesh, behind which none of these elements lies. Elements that
/// lie upon one another keep all sides, but for two that are mirror images, which hide each other.
std::vector<std::array<int, 3>> outsideSides(const KernelMesh& mesh, const std::vector<int>& places);

} // namespace Workbench
