// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>
#include <QStringList>

namespace Workbench {

/// What the program tells its caller.
enum ExitCode : int
{
    Success = 0,
    UsageError = 2,
    UnreadableInput = 3
};

/// What a call of the program asks for.
struct CommandLine
{
    bool isHelp = false;
    bool isVersion = false;
    bool isLanguageUnknown = false;
    /// To open at once; empty for none.
    QString file;
    /// Why the call is wrong, for people; empty when it is not.
    QString fault;
};

/// `arguments` begin with the program's name; those that Qt and the choice of a language take are gone.
CommandLine parseCommandLine(const QStringList& arguments);

/// Whether a call asks for a text, which needs no display. Takes the arguments as they are.
bool asksForText(int argc, const char* const* argv);

/// Prints what is asked for; Success.
ExitCode printText(const CommandLine& commandLine);

/// Success, or what the caller is told after a line on standard error: the call is wrong, or its file cannot be read,
/// which is no matter where it asks for a text.
ExitCode checkCommandLine(const CommandLine& commandLine);

} // namespace Workbench
