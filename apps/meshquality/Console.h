// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

/// Text to people and programs, in UTF-8.
namespace MeshQuality::Console {

void print(const QString& text);
/// One line on standard error: "meshquality: SUBJECT: WHAT".
void printError(const QString& subject, const QString& what);
/// One line on standard error: "meshquality: WHAT", and where to find help.
void printUsageError(const QString& what);

} // namespace MeshQuality::Console
