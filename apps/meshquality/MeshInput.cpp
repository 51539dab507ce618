// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/MeshInput.h>

#include <console/Console.h>
#include <meshquality/GmshConversion.h>
#include <meshquality/ProblemText.h>
#include <meshquality/ProgressLine.h>
#include <meshquality/ScoredMesh.h>
#include <meshquality/SkippedText.h>
#include <meshquality/VtuConversion.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryDir>

namespace MeshQuality {

using DataManager::MeshQualityReport;

namespace {

bool measureWithProgress(ScoredMesh& mesh, const QString& path)
{
    ProgressLine progress(mesh.file);
    return mesh.report.measure(path, [&progress](qint64 read, qint64 size) {
        progress.show(read, size);
        return true;
    });
}

bool measure(ScoredMesh& mesh, const QString& path)
{
    const bool isMeasured = measureWithProgress(mesh, path);
    for (const QString& warning : mesh.report.warnings(mesh.file)) {
        Console::printError(mesh.file, QCoreApplication::translate("meshquality", "warning: ") + warning);
    }
    return isMeasured;
}

/// Converts into the directory; an empty path, with the reason in `problem`, when that fails.
QString convertVtu(ScoredMesh& mesh, const QString& directory, QString& problem)
{
    const QString target = directory + QStringLiteral("/mesh.msh");
    mesh.convertedFrom = QStringLiteral("VTK XML");
    return MeshQuality::convertVtu(mesh.file, target, problem) ? target : QString();
}

QString convertMsh(ScoredMesh& mesh, const QString& directory, QString& problem)
{
    problem = mesh.report.problemText();
    if (!GmshConversion::isAvailable() || !GmshConversion::accepts(mesh.file)) {
        return QString();
    }
    mesh.convertedFrom = mesh.report.otherFormat();
    QString target = GmshConversion().convert(mesh.file, directory, problem);
    if (target.isEmpty()) {
        problem = QStringLiteral("%1, and gmsh cannot convert it: %2").arg(mesh.convertedFrom, problem);
    }
    return target;
}

ExitCode measureConverted(ScoredMesh& mesh, QString& problem)
{
    const QTemporaryDir directory;
    const QString converted =
        isVtkXml(mesh.file) ? convertVtu(mesh, directory.path(), problem) : convertMsh(mesh, directory.path(), problem);
    if (converted.isEmpty()) {
        return UnreadableInput;
    }
    if (measure(mesh, converted)) {
        return Success;
    }
    problem = mesh.report.problem() == MeshQualityReport::Problem::WrongFormat
                  ? QStringLiteral("%1, and gmsh cannot convert it: it wrote %2")
                        .arg(mesh.convertedFrom, mesh.report.otherFormat())
                  : mesh.report.problemText();
    return UnreadableInput;
}

/// Says on standard error why there are no measures, or which lines are not in them.
ExitCode told(const ScoredMesh& mesh, ExitCode exitCode, const QString& problem)
{
    if (exitCode != Success) {
        Console::printError(mesh.file, translated(problem));
    } else if (mesh.report.skippedLineCount() > 0) {
        Console::printError(mesh.file, QCoreApplication::translate("meshquality", "warning: %1 lines skipped: ")
                                               .arg(mesh.report.skippedLineCount()) +
                                           skippedPlaces(mesh.report).join(QStringLiteral("; ")));
    }
    return exitCode;
}

} // namespace

ExitCode measureMesh(ScoredMesh& mesh, QString& problem)
{
    if (measure(mesh, mesh.file)) {
        return Success;
    }
    problem = mesh.report.problemText();
    return mesh.report.problem() == MeshQualityReport::Problem::WrongFormat ? measureConverted(mesh, problem)
                                                                            : UnreadableInput;
}

ExitCode measureMesh(ScoredMesh& mesh)
{
    QString problem;
    const ExitCode exitCode = measureMesh(mesh, problem);
    return told(mesh, exitCode, problem);
}

ExitCode measureAsItIs(ScoredMesh& mesh)
{
    const bool isMeasured = measure(mesh, mesh.file);
    return told(mesh, isMeasured ? Success : UnreadableInput, mesh.report.problemText());
}

} // namespace MeshQuality
