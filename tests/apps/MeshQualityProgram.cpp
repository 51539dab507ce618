// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshQualityProgram.h"

#include <QProcess>

ProgramRun runMeshQuality(const QStringList& arguments, const QString& program)
{
    QProcess process;
    process.start(program.isEmpty() ? QStringLiteral(MESHQUALITY_PROGRAM) : program, arguments);
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit) {
        return {};
    }
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}
