// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace DataManager {

/// Sends an error to the user through the signal hub: the translation of `text`, with %1 replaced by `number`.
void showError(const char* text, int number);

} // namespace DataManager
