// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace Workbench {

double radiansOf(double degrees);

/// The degrees with the fewest digits that `radiansOf` turns into exactly these radians. Where no double does, the
/// nearest degrees.
double degreesOf(double radians);

} // namespace Workbench
