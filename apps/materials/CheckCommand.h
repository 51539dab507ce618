// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <materials/ExitCode.h>

namespace Materials {

struct Options;

/// Names every fault of a library file with its place.
ExitCode runCheck(const Options& options);

} // namespace Materials
