// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/MeshLoader.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <memory>

namespace Workbench {
namespace {

bool copyFile(const QString& source, const QString& target)
{
    if (QFileInfo(source) == QFileInfo(target)) {
        return true;
    }
    QDir().mkpath(QFileInfo(target).path());
    QFile::remove(target);
    return QFile::copy(source, target) &&
           QFile::setPermissions(target, QFile::permissions(target) | QFileDevice::WriteOwner);
}

KernelReading readOne(const MeshLoader::Job& job, const KernelProgress& progress)
{
    // Looked at first: copying a pipe would never end.
    if (job.copy.isEmpty() || !QFileInfo(job.source).isFile()) {
        return readKernelMesh(job.source, progress);
    }
    if (!copyFile(job.source, job.copy)) {
        return {{}, false, MeshLoader::tr("it cannot be copied to %1").arg(QDir::toNativeSeparators(job.copy))};
    }
    KernelReading reading = readKernelMesh(job.copy, progress);
    if (!reading.mesh && QFileInfo(job.source) != QFileInfo(job.copy)) {
        QFile::remove(job.copy);
    } else if (reading.mesh && !job.otherCopy.isEmpty()) {
        copyFile(job.copy, job.otherCopy);
    }
    return reading;
}

} // namespace

MeshLoader::MeshLoader(QObject* parent) : QObject(parent)
{
    connect(&m_task, &BackgroundTask::signal_progress, this, &MeshLoader::signal_progress);
}

void MeshLoader::start(const QList<Job>& jobs, const Finish& finish)
{
    const auto readings = std::make_shared<QVector<KernelReading>>();
    m_task.start([jobs, readings](const KernelProgress& progress) { *readings = read(jobs, progress); },
                 [readings, finish](bool isCancelled) {
                     finish(isCancelled ? QVector<KernelReading>{{{}, true, {}}} : *readings);
                 });
}

QVector<KernelReading> MeshLoader::read(const QList<Job>& jobs, const KernelProgress& progress)
{
    QVector<KernelReading> readings;
    for (const Job& job : jobs) {
        const double before = static_cast<double>(readings.size()) / jobs.size();
        readings.append(readOne(job, [&](double done) { return progress(before + done / jobs.size()); }));
        if (!readings.last().mesh) {
            break;
        }
    }
    return readings;
}

} // namespace Workbench
