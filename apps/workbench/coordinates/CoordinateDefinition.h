// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/coordinates/Placement.h>

#include <basemodule/CoordinateSystemType.h>

#include <QString>

namespace Workbench {

/// What makes a coordinate system in its basic system.
struct CoordinateDefinition
{
    QString name;
    BaseModule::CoordinateSystemType type = BaseModule::Cartesian;
    Vector3 offset = {0, 0, 0}; ///< of the origin, along the axes of the basic system, in units of the model
    Vector3 angles = {0, 0, 0}; ///< in radians, in the sense of `placed`
};

} // namespace Workbench
