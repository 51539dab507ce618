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

#include <filesystem>

using BaseModule::IBaseSignal;

namespace Workbench {

MesherProcess* MesherProcess::instance()
{
    // Never destroyed: a run ends with the application because that says when it is about to quit.
    static auto* const mesher = new MesherProcess;
    return mesher;
}

MesherProcess::MesherProcess()
{
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &MesherProcess::read);
    connect(&m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, &MesherProcess::finish);
    connect(&m_process, &QProcess::errorOccurred, this, &MesherProcess::failToStart);
    connect(MeshManager::instance(), &MeshManager::signal_loadFinished, this, [this] { m_isResultRead = false; });
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &MesherProcess::cancel);
}

QString MesherProcess::outputPath()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../temp/mesh.msh"));
}

QString MesherProcess::unfinishedPath()
{
    return outputPath() + QStringLiteral(".unfinished");
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

bool MesherProcess::mayStart() const
{
    if (isRunning()) {
        showError(tr("The mesher is still at work. Wait until it is done, or cancel it."));
    }
    return !isRunning();
}

bool MesherProcess::start(const QString& geometryPath, double elementSize, const MeshSource& source)
{
    const QString mesher = program();
    if (!mayStart()) {
        return false;
    }
    if (mesher.isEmpty()) {
        showError(tr("The mesher gmsh was not found. Install it (Debian: apt install gmsh), or let the environment "
                     "variable WORKBENCH_GMSH name the program."));
        return false;
    }
    QDir().mkpath(QFileInfo(outputPath()).path());
    m_progress = MesherProgress();
    m_geometryPath = geometryPath;
    m_source.name = source.name.isEmpty() ? QFileInfo(geometryPath).completeBaseName() : source.name;
    m_source.origin = source.origin.isEmpty() ? QFileInfo(geometryPath).absoluteFilePath() : source.origin;
    m_isCancelled = false;
    m_isRunning = true;
    Q_EMIT signal_started(geometryPath);
    m_process.start(mesher, arguments(elementSize), QIODevice::ReadOnly);
    return m_isRunning;
}

QStringList MesherProcess::arguments(double elementSize) const
{
    QStringList arguments{m_geometryPath,          QStringLiteral("-3"), QStringLiteral("-format"),
                          QStringLiteral("msh22"), QStringLiteral("-o"), unfinishedPath()};
    if (elementSize > 0) {
        arguments << QStringLiteral("-clmax") << QString::number(elementSize, 'g', 17);
    }
    return arguments;
}

void MesherProcess::cancel()
{
    if (isRunning()) {
        m_isCancelled = true;
        m_process.end();
    }
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
        m_isRunning = false;
        showError(tr("The mesher could not be started: %1").arg(m_process.errorString()));
        Q_EMIT signal_finished(false);
    }
}

void MesherProcess::finish(int exitCode, QProcess::ExitStatus status)
{
    m_isRunning = false;
    read();
    QString failure = m_isCancelled ? QString() : failureText(exitCode, status);
    if (!m_isCancelled && failure.isEmpty() && !putInPlace()) {
        failure = tr("The mesh of %1 could not be moved to %2.")
                      .arg(QDir::toNativeSeparators(m_geometryPath), QDir::toNativeSeparators(outputPath()));
    }
    QFile::remove(unfinishedPath());
    if (!failure.isEmpty()) {
        showError(failure);
    }
    const bool isMeshed = !m_isCancelled && failure.isEmpty();
    Q_EMIT signal_finished(isMeshed);
    if (isMeshed) {
        MeshManager::instance()->openMesh(outputPath(), m_source);
        m_isResultRead = true;
    }
}

// Another mesh that is being read goes to the same place in the end, where it would be taken for the new one. It is of
// no use any more: the new one is opened instead of it.
bool MesherProcess::putInPlace()
{
    MeshManager::instance()->cancelLoad();
    MeshManager::instance()->waitForLoad();
    std::error_code error;
    std::filesystem::rename(QFile::encodeName(unfinishedPath()).constData(),
                            QFile::encodeName(outputPath()).constData(), error);
    return !error;
}

QString MesherProcess::failureText(int exitCode, QProcess::ExitStatus status) const
{
    const QString file = QDir::toNativeSeparators(m_geometryPath);
    if (status == QProcess::CrashExit) {
        return tr("The mesher crashed on %1. The mesh that was open stays.").arg(file);
    }
    if (exitCode == 0 && m_progress.errors().isEmpty() && QFileInfo(unfinishedPath()).size() > 0) {
        return {};
    }
    const QString reason = m_progress.errors().join(QStringLiteral("; "));
    return tr("The mesher could not mesh %1 (exit code %2): %3")
        .arg(file)
        .arg(exitCode)
        .arg(reason.isEmpty() ? tr("it gave no reason") : reason);
}

} // namespace Workbench
