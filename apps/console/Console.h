// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

/// Text to people and programs, in UTF-8.
namespace Console {

/// The name that starts every line on standard error. To be set before anything is written.
void setProgramName(const QString& name);

/// Writes to standard output. False when it cannot be written; the first time, a line on standard error says so.
bool print(const QString& text);
/// Whether all that was printed so far has been written.
bool isOutputWritten();

/// One line on standard error: "PROGRAM: WHAT".
void printError(const QString& what);
/// One line on standard error: "PROGRAM: SUBJECT: WHAT".
void printError(const QString& subject, const QString& what);
/// One line on standard error: "PROGRAM: WHAT", without a full stop, and where to find help.
void printUsageError(const QString& what);
/// The same for a language that there is not.
void printLanguageError();

} // namespace Console
