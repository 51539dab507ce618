// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace MeshQuality {

/// What the program tells its caller. Of several, the highest wins.
enum ExitCode : int
{
    Success = 0,
    /// At least one mesh fails a threshold.
    ThresholdFailed = 1,
    /// The call is wrong, or a result cannot be written where it should go.
    UsageError = 2,
    /// At least one mesh cannot be read.
    UnreadableInput = 3,
    /// The model cannot be loaded or run.
    ModelTrouble = 4
};

} // namespace MeshQuality
