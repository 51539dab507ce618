// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/mesh/BoundaryFaces.h>

#include <QString>

#include <array>
#include <functional>
#include <vector>

namespace Workbench {

struct SurfaceGroups;

/// A face of a volume: boundary triangles that are selected together.
struct FacePatch
{
    /// Physical tag of the volume.
    int volumeTag = 0;
    /// Identifier within the volume: the physical tag of the surface group, or for a patch without group a number above
    /// those of all groups.
    int faceID = 0;
    /// The name that the file gives to the group; empty without.
    QString name;
    bool isGroup = false;
    int triangleCount = 0;
};

/// What patches are made from.
struct PatchInput
{
    const SurfaceGroups* groups = nullptr;
    std::function<int(int element)> volume;
    std::function<const std::array<double, 3>&(int node)> position;
};

/// Gives every face its patch: that of its surface group, or else one of smoothly connected faces, which end at edges
/// where the surface turns by more than 30 degrees. A volume whose skin falls into more than 200 of the latter gets one
/// patch for all of them. Patches come by volume, then by identifier.
std::vector<FacePatch> dividePatches(std::vector<BoundaryFace>& faces, const PatchInput& input);

} // namespace Workbench
