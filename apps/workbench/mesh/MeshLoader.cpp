// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/MeshLoader.h>

#include <workbench/file/FileCopy.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <memory>

namespace Workbench {
namespace {

// How much is done when the file is copied, and when it is read.
constexpr double doneCopying = 0.1;
constexpr double doneReading = 0.95;

KernelProgress part(const KernelProgress& progress, double from, double to)
{
    return [&progress, from, to](double done) { return progress(from + (to - from) * done); };
}

FileCopy copyFile(const QString& source, const QString& target, const KernelProgress& progress)
{
    if (QFileInfo(source) == QFileInfo(target)) {
        return {true, false, {}};
    }
    QDir().mkpath(QFileInfo(target).path());
    QFile file(source);
    return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ? replaceByCopy(file, target, progress)
                                                                  : FileCopy{false, false, file.errorString()};
}

/// The other copy may fail, but not be given up alone.
KernelReading readCopy(const MeshLoader::Job& job, const KernelProgress& progress)
{
    KernelReading reading = readKernelMesh(job.copy, part(progress, doneCopying, doneReading));
    if (!reading.mesh || job.otherCopy.isEmpty()) {
        return reading;
    }
    const FileCopy other = copyFile(job.copy, job.otherCopy, part(progress, doneReading, 1));
    return other.isGivenUp ? KernelReading{{}, true, {}} : reading;
}

void removeCopy(const MeshLoader::Job& job)
{
    if (!job.copy.isEmpty() && QFileInfo(job.source) != QFileInfo(job.copy)) {
        QFile::remove(job.copy);
    }
}

KernelReading readOne(const MeshLoader::Job& job, const KernelProgress& progress)
{
    // Looked at first: copying a pipe would never end.
    if (job.copy.isEmpty() || !QFileInfo(job.source).isFile()) {
        return readKernelMesh(job.source, progress);
    }
    const FileCopy copy = copyFile(job.source, job.copy, part(progress, 0, doneCopying));
    if (copy.isGivenUp) {
        return {{}, true, {}};
    }
    if (!copy.isDone) {
        return {{}, false, MeshLoader::tr("it cannot be copied to %1").arg(QDir::toNativeSeparators(job.copy))};
    }
    KernelReading reading = readCopy(job, progress);
    if (!reading.mesh) {
        removeCopy(job);
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
                 [jobs, readings, finish](bool isCancelled) {
                     if (isCancelled) { // maybe after all was done
                         std::for_each(jobs.begin(), jobs.begin() + readings->size(), removeCopy);
                     }
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
