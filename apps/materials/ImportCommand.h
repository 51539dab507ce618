// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <materials/ExitCode.h>

namespace Materials {

struct Options;

/// Compares the materials of another library or file with a library and copies those that it lacks.
ExitCode runImport(const Options& options);

} // namespace Materials
