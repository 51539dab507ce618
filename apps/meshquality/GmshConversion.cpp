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

/// What gmsh says first of all errors, which is the cause of the others.
QString reason(const QByteArray& output)
{
    const QStringList lines = QString::fromUtf8(output).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        if (line.startsWith(QLatin1String("Error"))) {
            return line.simplified();
        }
    }
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
    return process.exitCode() == 0 ? QString() : reason(process.readAll());
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
    // Gmsh knows the mesh by a name that means nothing to who reads this.
    problem.replace(source, path);
    if (problem.isEmpty() && !QFile::exists(target)) {
        problem = QStringLiteral("it wrote no file");
    }
    return problem.isEmpty() ? target : QString();
}

} // namespace MeshQuality
