// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace Materials {

/// What the program tells its caller.
enum ExitCode : int
{
    Success = 0,
    /// A library has faults, or a material is missing.
    CheckFailed = 1,
    UsageError = 2,
    /// A file cannot be read as what it should be, or cannot be written.
    UnreadableInput = 3
};

} // namespace Materials
