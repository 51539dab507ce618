// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace BaseModule {

/// How the coordinates of a system are measured. Stored as its number; other values are kept as they are.
enum CoordinateSystemType : int
{
    Cartesian = 0,
    Cylindrical = 1,
    Spherical = 2
};

} // namespace BaseModule
