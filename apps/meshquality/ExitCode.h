// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace MeshQuality {

/// What the program tells its caller. Of several, the highest wins.
enum ExitCode : int
{
    Success = 0,
    /// At least one mesh fails a threshold, or a model does not meet its contract.
    CheckFailed = 1,
    /// The call is wrong, or a result cannot be written where it should go.
    UsageError = 2,
    /// At least one mesh, or the model that was to be judged, cannot be read.
    UnreadableInput = 3,
    /// The model cannot be loaded or run.
    ModelTrouble = 4
};

} // namespace MeshQuality
