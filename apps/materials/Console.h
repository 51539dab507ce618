// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

/// Text to people and programs, in UTF-8.
namespace Materials::Console {

void print(const QString& text);
/// One line on standard error: "materials: WHAT".
void printError(const QString& what);

} // namespace Materials::Console
