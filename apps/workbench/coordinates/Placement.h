// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <array>

namespace Workbench {

using Vector3 = std::array<double, 3>;

/// Where a coordinate system stands in another one: its origin, and its axes as the columns of a rotation matrix.
struct Placement
{
    Vector3 origin = {0, 0, 0};
    std::array<Vector3, 3> rows = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
};

/// The placement in its own basic system: right-handed rotations about the fixed axes of the basic system, in radians,
/// first about x, then about y, then about z. A column vector v given in the system stands at origin + Rz Ry Rx v.
Placement placed(const Vector3& origin, const Vector3& angles);

/// The placement in global coordinates of a system that has `local` in a basic system, which has `basic`.
Placement carried(const Placement& basic, const Placement& local);

/// The other way round: the local placement that `carried` takes to `placement`.
Placement seenFrom(const Placement& basic, const Placement& placement);

/// The point or the angles in the sense of `placed`. Where the second angle is a right one, the third one is 0.
Vector3 carriedPoint(const Placement& placement, const Vector3& point);
Vector3 anglesOf(const Placement& placement);

/// The unit quaternion (w, x, y, z) of the rotation, with w not negative.
std::array<double, 4> quaternionOf(const Placement& placement);

} // namespace Workbench
