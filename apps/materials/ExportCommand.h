// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <materials/ExitCode.h>

namespace Materials {

struct Options;

/// Writes the live materials of a library as CSV or JSON.
ExitCode runExport(const Options& options);

} // namespace Materials
