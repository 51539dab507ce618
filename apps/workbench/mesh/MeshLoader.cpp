// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/MeshLoader.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>

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
        return {{}, false, QStringLiteral("it cannot be copied to %1").arg(QDir::toNativeSeparators(job.copy))};
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

MeshLoader::MeshLoader(QObject* parent) : QObject(parent) {}

MeshLoader::~MeshLoader()
{
    stopThread();
}

void MeshLoader::start(const QList<Job>& jobs, const Finish& finish)
{
    stopThread();
    auto isCancelled = std::make_shared<std::atomic<bool>>(false);
    m_isCancelled = isCancelled;
    m_thread = QThread::create([this, jobs, finish, isCancelled] {
        int told = -1;
        const QVector<KernelReading> readings = read(jobs, [this, &told, isCancelled](double done) {
            const int percent = static_cast<int>(100 * done);
            if (percent > told) {
                told = percent;
                QMetaObject::invokeMethod(
                    this,
                    [this, percent, isCancelled] {
                        if (!*isCancelled) {
                            Q_EMIT signal_progress(percent);
                        }
                    },
                    Qt::QueuedConnection);
            }
            return !*isCancelled;
        });
        QMetaObject::invokeMethod(
            this,
            [this, finish, readings, isCancelled] {
                if (m_isCancelled == isCancelled) {
                    end(finish, readings);
                }
            },
            Qt::QueuedConnection);
    });
    m_thread->start(QThread::LowPriority);
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

void MeshLoader::cancel()
{
    if (m_isCancelled) {
        *m_isCancelled = true;
    }
}

void MeshLoader::end(const Finish& finish, const QVector<KernelReading>& readings)
{
    const bool isCancelled = *m_isCancelled;
    stopThread();
    // What was cancelled when all was read already counts as cancelled, too.
    finish(isCancelled ? QVector<KernelReading>{{{}, true, {}}} : readings);
}

void MeshLoader::stopThread()
{
    if (m_thread != nullptr) {
        cancel();
        m_thread->wait();
        delete m_thread;
        m_thread = nullptr;
        m_isCancelled.reset();
    }
}

} // namespace Workbench
