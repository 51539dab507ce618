// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/Command.h>

#include <console/Console.h>
#include <materials/CheckCommand.h>
#include <materials/ExportCommand.h>
#include <materials/ImportCommand.h>
#include <materials/LibraryLog.h>
#include <materials/ListCommand.h>
#include <materials/Options.h>

#include <QCoreApplication>
#include <QHash>

namespace Materials {

namespace {

const char* const helpText = QT_TRANSLATE_NOOP("materials", R"(Material libraries.

  materials list   [--library L] [--json]
      The materials with their identifiers, deleted ones marked.
  materials show   [--library L] [--json] ID|NAME
      One material with all its values.
  materials export [--library L] [--format csv|json] [--output FILE]
      The live materials; CSV unless FILE ends in .json.
  materials import [--library L] [--update] [--dry-run] [--json] SOURCE [ID|NAME...]
      Compares the materials of SOURCE (a library as below, or a CSV or JSON
      file), all or those named, with the library: new, same, changed, refused.
      Then copies the new ones into it, and with --update the changed ones too.
  materials check  [--library L] [--json] [FILE]
      Names every fault of a library file with its place.

  --library L   software (ConfigFiles/MaterialLibrary.json beside the program,
                the default) or project:DIR (MaterialLibrary.json in DIR)
  --plain       project libraries are plain JSON, not enciphered
  --dry-run     only compare
  --language L  the language of these texts: English (the default) or Chinese

Exit codes: 0 ok, 1 faults found or a material is missing, 2 wrong call,
3 a file or standard output cannot be read or written.
)");

ExitCode runNamedCommand(const QStringList& arguments)
{
    static const QHash<QString, ExitCode (*)(const Options&)> commands = {{QStringLiteral("list"), runList},
                                                                          {QStringLiteral("show"), runShow},
                                                                          {QStringLiteral("export"), runExport},
                                                                          {QStringLiteral("import"), runImport},
                                                                          {QStringLiteral("check"), runCheck}};
    const Options options = parseOptions(arguments);
    if (options.isHelp) {
        Console::print(QCoreApplication::translate("materials", helpText));
        return Success;
    }
    if (!options.fault.isEmpty() || !commands.contains(options.command)) {
        const QString unknown = QCoreApplication::translate("materials", "unknown command '%1'").arg(options.command);
        Console::printUsageError(options.fault.isEmpty() ? unknown : options.fault);
        return UsageError;
    }
    startLibraryLog();
    return commands.value(options.command)(options);
}

} // namespace

ExitCode runCommand(const QStringList& arguments)
{
    const ExitCode exitCode = runNamedCommand(arguments);
    return Console::isOutputWritten() ? exitCode : UnreadableInput;
}

} // namespace Materials
