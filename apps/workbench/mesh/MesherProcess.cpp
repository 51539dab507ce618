// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/MesherProcess.h>

#include <workbench/mesh/MeshManager.h>

#include <basemodule/IBaseSignal.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using BaseModule::IBaseSignal;

namespace Workbench {

MesherProcess* MesherProcess::instance()
{
    // Owned by the application, so that a run ends with it.
    static auto* const mesher = new MesherProcess;
    return mesher;
}

MesherProcess::MesherProcess()
{
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &MesherProcess::read);
    connect(&m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, &MesherProcess::finish);
    connect(&m_process, &QProcess::errorOccurred, this, &MesherProcess::failToStart);
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &MesherProcess::cancel);
}

QString MesherProcess::outputPath()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../temp/mesh.msh"));
}

bool MesherProcess::isGeometry(const QString& path)
{
    const QStringList suffixes{QStringLiteral("geo"),  QStringLiteral("step"), QStringLiteral("stp"),
                               QStringLiteral("brep"), QStringLiteral("iges"), QStringLiteral("igs")};
    return suffixes.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive);
}

QString MesherProcess::program()
{
    const QString wanted = qEnvironmentVariable("WORKBENCH_GMSH", QStringLiteral("gmsh"));
    return QStandardPaths::findExecutable(wanted);
}

void MesherProcess::showError(const QString& text)
{
    Q_EMIT IBaseSignal::getInstance()->signal_showMessageType(2, text);
}

bool MesherProcess::start(const QString& geometryPath, double elementSize)
{
    const QString mesher = program();
    if (isRunning()) {
        showError(tr("The mesher is still at work. Wait until it is done, or cancel it."));
        return false;
    }
    if (mesher.isEmpty()) {
        showError(tr("The mesher gmsh was not found. Install it (Debian: apt install gmsh), or let the environment "
                     "variable WORKBENCH_GMSH name the program."));
        return false;
    }
    QDir().mkpath(QFileInfo(outputPath()).path());
    QFile::remove(outputPath());
    m_progress = MesherProgress();
    m_geometryPath = geometryPath;
    m_isCancelled = false;
    QStringList arguments{
        geometryPath,         QStringLiteral("-3"), QStringLiteral("-format"), QStringLiteral("msh22"),
        QStringLiteral("-o"), outputPath()};
    if (elementSize > 0) {
        arguments << QStringLiteral("-clmax") << QString::number(elementSize, 'g', 17);
    }
    Q_EMIT signal_started(geometryPath);
    m_process.start(mesher, arguments, QIODevice::ReadOnly);
    return m_process.state() != QProcess::NotRunning;
}

void MesherProcess::cancel()
{
    m_isCancelled = true;
    m_process.kill();
    m_process.waitForFinished(2000);
}

void MesherProcess::read()
{
    const QByteArray output = m_process.readAllStandardOutput();
    m_progress.take(output);
    Q_EMIT signal_output(QString::fromLocal8Bit(output));
    Q_EMIT signal_progress(m_progress.percent());
}

void MesherProcess::failToStart(QProcess::ProcessError error)
{
    if (error == QProcess::FailedToStart) {
        showError(tr("The mesher could not be started: %1").arg(m_process.errorString()));
        Q_EMIT signal_finished(false);
    }
}

void MesherProcess::finish(int exitCode, QProcess::ExitStatus status)
{
    read();
    const QString failure = m_isCancelled ? QString() : failureText(exitCode, status);
    if (!failure.isEmpty()) {
        showError(failure);
    }
    const bool isMeshed = !m_isCancelled && failure.isEmpty();
    Q_EMIT signal_finished(isMeshed);
    if (isMeshed) {
        MeshManager::instance()->openMesh(outputPath(), QFileInfo(m_geometryPath).completeBaseName());
    }
}

QString MesherProcess::failureText(int exitCode, QProcess::ExitStatus status) const
{
    const QString file = QDir::toNativeSeparators(m_geometryPath);
    if (status == QProcess::CrashExit) {
        return tr("The mesher crashed on %1. The mesh that was open stays.").arg(file);
    }
    if (exitCode == 0 && m_progress.errors().isEmpty() && QFileInfo(outputPath()).size() > 0) {
        return {};
    }
    const QString reason = m_progress.errors().join(QStringLiteral("; "));
    return tr("The mesher could not mesh %1 (exit code %2): %3")
        .arg(file)
        .arg(exitCode)
        .arg(reason.isEmpty() ? tr("it gave no reason") : reason);
}

} // namespace Workbench
