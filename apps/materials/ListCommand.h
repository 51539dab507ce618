// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <materials/ExitCode.h>

namespace Materials {

struct Options;

/// Lists the materials of a library, tombstones marked.
ExitCode runList(const Options& options);

/// Shows one material with its values.
ExitCode runShow(const Options& options);

} // namespace Materials
