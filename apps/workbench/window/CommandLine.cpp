// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/CommandLine.h>

#include <console/Console.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <cstring>

namespace Workbench {
namespace {

QString say(const char* text)
{
    return QCoreApplication::translate("Workbench::CommandLine", text);
}

QString help()
{
    return say(QT_TRANSLATE_NOOP("Workbench::CommandLine",
                                 "Materials, coordinate systems and meshes of a simulation on the desktop.\n"
                                 "\n"
                                 "  workbench [OPTION...] [FILE]\n"
                                 "      Opens a project (.wbproj), a mesh (.msh, version 2 in ASCII) or a geometry "
                                 "(.geo, .step, .brep, .iges).\n"
                                 "  workbench --help\n"
                                 "  workbench --version\n"
                                 "\n"
                                 "  --language L  the language of the window, this time: English or Chinese\n"
                                 "\n"
                                 "Options of every Qt program, such as -platform, are taken as well. The mesher is the "
                                 "program gmsh, or the one\n"
                                 "that the environment variable WORKBENCH_GMSH names.\n"
                                 "\n"
                                 "Exit codes: 0 ok, 2 wrong call, 3 FILE cannot be read\n"));
}

QString problemOf(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists()) {
        return say(QT_TRANSLATE_NOOP("Workbench::CommandLine", "there is no such file"));
    }
    if (!file.isFile()) {
        return say(QT_TRANSLATE_NOOP("Workbench::CommandLine", "it is not a regular file"));
    }
    return file.isReadable() ? QString() : say(QT_TRANSLATE_NOOP("Workbench::CommandLine", "you may not read it"));
}

} // namespace

CommandLine parseCommandLine(const QStringList& arguments)
{
    CommandLine commandLine;
    bool areOptionsOver = false;
    for (const QString& argument : arguments.mid(1)) {
        const bool isOption = !areOptionsOver && argument.size() > 1 && argument.startsWith(QLatin1Char('-'));
        if (isOption && argument == QLatin1String("--")) {
            areOptionsOver = true;
        } else if (argument == QLatin1String("--help") && isOption) {
            commandLine.isHelp = true;
        } else if (argument == QLatin1String("--version") && isOption) {
            commandLine.isVersion = true;
        } else if (isOption) {
            commandLine.fault = say(QT_TRANSLATE_NOOP("Workbench::CommandLine", "unknown option '%1'")).arg(argument);
        } else if (!commandLine.file.isEmpty()) {
            commandLine.fault = say(QT_TRANSLATE_NOOP("Workbench::CommandLine", "more than one file"));
        } else {
            commandLine.file = argument;
        }
    }
    return commandLine;
}

bool asksForText(int argc, const char* const* argv)
{
    const auto* const end = std::find_if(argv, argv + argc, [](const char* word) { return !std::strcmp(word, "--"); });
    return std::any_of(argv, end, [](const char* word) {
        return std::strcmp(word, "--help") == 0 || std::strcmp(word, "--version") == 0;
    });
}

ExitCode printText(const CommandLine& commandLine)
{
    Console::print(commandLine.isHelp ? help() : QStringLiteral("workbench " WORKBENCH_VERSION "\n"));
    return Success;
}

ExitCode checkCommandLine(const CommandLine& commandLine)
{
    if (commandLine.isLanguageUnknown) {
        Console::printLanguageError();
        return UsageError;
    }
    if (!commandLine.fault.isEmpty()) {
        Console::printUsageError(commandLine.fault);
        return UsageError;
    }
    const bool opensFile = !commandLine.file.isEmpty() && !commandLine.isHelp && !commandLine.isVersion;
    const QString problem = opensFile ? problemOf(commandLine.file) : QString();
    if (!problem.isEmpty()) {
        Console::printError(commandLine.file, problem);
        return UnreadableInput;
    }
    return Success;
}

} // namespace Workbench
