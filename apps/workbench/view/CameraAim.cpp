// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/CameraAim.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Workbench {
namespace {

// A mesh follows curved faces more or less closely; that makes no other part of it.
constexpr double samePart = 0.01;
constexpr double otherThing = 0.25;

double diagonal(const Box& box)
{
    return std::hypot(box[1] - box[0], box[3] - box[2], box[5] - box[4]);
}

} // namespace

double boxChange(const Box& before, const Box& now)
{
    const double size = std::max(diagonal(before), diagonal(now));
    double farthest = 0;
    for (std::size_t side = 0; side < before.size(); ++side) {
        farthest = std::max(farthest, std::abs(now[side] - before[side]));
    }
    if (!std::isfinite(size) || !std::isfinite(farthest)) {
        return std::numeric_limits<double>::infinity();
    }
    return farthest > 0 ? farthest / size : 0;
}

bool needsAim(double change, Seen before, Seen now)
{
    const bool isLessSeen = now < before && (before == Seen::Whole || now == Seen::Nothing);
    return change > otherThing || (change > samePart && isLessSeen);
}

} // namespace Workbench
