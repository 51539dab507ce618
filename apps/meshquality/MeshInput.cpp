// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/MeshInput.h>

#include <meshquality/Console.h>
#include <meshquality/ProgressLine.h>

#include <datamanager/meshquality/MeshQualityReport.h>

namespace MeshQuality {

ExitCode measureMesh(const QString& file, DataManager::MeshQualityReport& report, QString& problem)
{
    ProgressLine progress(file);
    const bool isMeasured = report.measure(file, [&progress](qint64 read, qint64 size) {
        progress.show(read, size);
        return true;
    });
    problem = report.problemText();
    return isMeasured ? Success : UnreadableInput;
}

ExitCode measureMesh(const QString& file, DataManager::MeshQualityReport& report)
{
    QString problem;
    const ExitCode exitCode = measureMesh(file, report, problem);
    if (exitCode != Success) {
        Console::printError(file, problem);
    }
    return exitCode;
}

} // namespace MeshQuality
