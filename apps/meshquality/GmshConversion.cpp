// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/GmshConversion.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace MeshQuality {

namespace {

QString lastLine(const QByteArray& output)
{
    const QStringList lines = QString::fromUtf8(output).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    return lines.isEmpty() ? QStringLiteral("gmsh gave no reason") : lines.last().simplified();
}

/// Empty when the program has ended well.
QString run(QProcess& process, const QString& program, const QStringList& arguments, int limit)
{
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForFinished(limit)) {
        const bool isTooSlow = process.state() != QProcess::NotRunning;
        process.kill();
        process.waitForFinished();
        return isTooSlow ? QStringLiteral("gmsh took longer than %1 seconds").arg(limit / 1000.0)
                         : process.errorString();
    }
    if (process.exitStatus() != QProcess::NormalExit) {
        return QStringLiteral("gmsh crashed");
    }
    return process.exitCode() == 0 ? QString() : lastLine(process.readAll());
}

} // namespace

bool GmshConversion::isAvailable()
{
    return !QStandardPaths::findExecutable(QStringLiteral("gmsh")).isEmpty();
}

bool GmshConversion::accepts(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray start = file.read(11);
    return start == "$MeshFormat" || start.startsWith("$NOD");
}

QString GmshConversion::convert(const QString& path, const QString& directory, QString& problem) const
{
    // Beside the file that it opens, gmsh looks for another one with options, which may hold commands: here is none.
    const QString source = directory + QStringLiteral("/source.msh");
    const QString target = directory + QStringLiteral("/mesh.msh");
    if (!QFile::link(QFileInfo(path).absoluteFilePath(), source)) {
        problem = QStringLiteral("there is no room for temporary files");
        return QString();
    }
    QProcess process;
    process.setWorkingDirectory(directory);
    problem = run(process, QStandardPaths::findExecutable(QStringLiteral("gmsh")),
                  {QStringLiteral("-save"), QStringLiteral("-format"), QStringLiteral("msh22"), QStringLiteral("-v"),
                   QStringLiteral("1"), QStringLiteral("-setnumber"), QStringLiteral("Mesh.PreserveNumberingMsh2"),
                   QStringLiteral("1"), QStringLiteral("-o"), target, source},
                  m_limit);
    return problem.isEmpty() ? target : QString();
}

} // namespace MeshQuality
