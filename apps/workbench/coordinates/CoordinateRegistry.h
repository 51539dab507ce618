// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>

namespace Workbench {

/// The library's registry of coordinate systems.
inline DataManager::RelativeCoordinateSystemDate& coordinateRegistry()
{
    return *DataManager::RelativeCoordinateSystemDate::getInstance();
}

} // namespace Workbench
