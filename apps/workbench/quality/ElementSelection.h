// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <vector>

namespace Workbench {

/// Selects elements of a mesh, by their places, in place of what is selected or, where they are `added`, beside it.
/// Nothing happens while a dialog selects something else than elements, and when there is no such mesh.
void selectElements(int kernelID, const std::vector<int>& places, bool added);

} // namespace Workbench
