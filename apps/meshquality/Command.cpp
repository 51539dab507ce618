// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/Command.h>

#include <console/Console.h>
#include <meshquality/CheckCommand.h>
#include <meshquality/CompareCommand.h>
#include <meshquality/ModelCommand.h>
#include <meshquality/PredictCommand.h>
#include <meshquality/ReportCommand.h>

#include <QCoreApplication>

namespace MeshQuality {

namespace {

const char* const helpText = QT_TRANSLATE_NOOP(
    "meshquality", R"(Quality of tetrahedral meshes in MSH 2 ASCII and VTK XML (.vtu); with gmsh on the path in any MSH.

  meshquality report [OPTION...] MESH...
      Counts, means and spread of eleven metrics, and the model's score of each mesh.
      --json FILE         also as JSON into a file, or with - onto standard output instead of the table
      --jsonl             one JSON object a line on standard output, as each mesh ends, instead of the table
      --csv FILE          all values, one line an element
      --vtu FILE          the mesh with one cell array a metric, for ParaView
      --html FILE         one web page with everything
      --worst N           the worst N elements
      --by METRIC         by which metric they are the worst (Shape)
      --histogram METRIC  how the values of a metric are spread
      --by-region         the same for each physical group
      --model FILE        another model than ../mesher/mesh.onnx beside the program
  meshquality check [--profile FILE] MESH...
      One line a mesh: pass, warn or fail against the thresholds of a profile, or of the built-in one.
  meshquality check --print-profile
      The built-in profile, with the source of each threshold.
  meshquality compare [--model FILE] A B
      Two meshes side by side, with what has improved and what has worsened.
  meshquality model [--json] [FILE]
      Whether a model can serve, and what it says about itself; without FILE the one beside the program.
  meshquality predict
      Scores ../temp/mesh.msh beside the program, as an application does, and
      prints the history of the last ten scores, oldest first.
  meshquality --help
  meshquality --version

  --language L  the language of these texts: English (the default) or Chinese; JSON and CSV stay as they are

Exit codes: 0 ok, 1 a mesh fails its check or a model does not meet the contract, 2 wrong call or a result
cannot be written, 3 a mesh or the model to be judged cannot be read, 4 the model cannot be used for scores;
of several the highest.
)");

ExitCode runNamedCommand(const QStringList& arguments)
{
    const QString command = arguments.value(1);
    const QStringList rest = arguments.mid(1);
    if (rest.contains(QStringLiteral("--help"))) {
        Console::print(QCoreApplication::translate("meshquality", helpText));
        return Success;
    }
    if (command == QLatin1String("--version")) {
        Console::print(QStringLiteral("meshquality " MESHQUALITY_VERSION "\n"));
        return Success;
    }
    if (command == QLatin1String("report")) {
        return runReport(rest);
    }
    if (command == QLatin1String("check")) {
        return runCheck(rest);
    }
    if (command == QLatin1String("compare")) {
        return runCompare(rest);
    }
    if (command == QLatin1String("model")) {
        return runModel(rest);
    }
    if (command == QLatin1String("predict")) {
        return runPredict(rest);
    }
    Console::printUsageError(command.isEmpty()
                                 ? QCoreApplication::translate("meshquality", "no command is given")
                                 : QCoreApplication::translate("meshquality", "unknown command '%1'").arg(command));
    return UsageError;
}

} // namespace

ExitCode runCommand(const QStringList& arguments)
{
    const ExitCode exitCode = runNamedCommand(arguments);
    return Console::isOutputWritten() ? exitCode : qMax(exitCode, UsageError);
}

} // namespace MeshQuality
