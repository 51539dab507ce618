// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/MaterialLibType.h>

#include <QString>

namespace Workbench {

/// Why so many new materials must not get the next numbers of this library, for the user; empty when they may. The
/// library counts what it has: where materials could not be read, a number may be one that a volume still holds, or
/// that of a material which the new one would replace.
QString materialNumberRefusal(BaseModule::MaterialLibType type, int count);

} // namespace Workbench
