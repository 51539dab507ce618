// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/MeshManager.h>

#include <workbench/mesh/MeshLoader.h>
#include <workbench/mesh/MesherProcess.h>

#include <basemodule/GlobalHelper.h>
#include <basemodule/IBaseSignal.h>
#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

using BaseModule::GlobalHelper;
using BaseModule::IBaseSignal;
using DataManager::SelectedDataManager;

namespace Workbench {
namespace {

QString fileOfKernel(int kernelID)
{
    return QStringLiteral("mesh-%1.msh").arg(kernelID);
}

QString workingPath(const QString& fileName)
{
    return GlobalHelper::getProjectTempIODir() + QLatin1Char('/') + fileName;
}

} // namespace

// All at once: who listens finds all of them.
void MeshManager::insertKernels(const QMap<int, Kernel>& kernels)
{
    QMultiMap<int, int> groups;
    for (auto it = kernels.cbegin(); it != kernels.cend(); ++it) {
        m_kernels.insert(it.key(), *it);
        for (int groupID : it->groups.keys()) {
            groups.insert(it.key(), groupID);
        }
    }
    if (!kernels.isEmpty()) {
        Q_EMIT signal_kernalDataListChanged(kernels.keys());
    }
    if (!groups.isEmpty()) {
        Q_EMIT signal_groupDataListChanged(groups);
    }
}

int MeshManager::insertKernel(int kernelID, const Kernel& kernel)
{
    insertKernels({{kernelID, kernel}});
    return kernelID;
}

int MeshManager::addKernel(const QString& name, const QString& filePath)
{
    if (isNameTaken(name, 0)) {
        return 0;
    }
    Kernel kernel;
    kernel.name = name;
    kernel.fileName = fileOfKernel(getKernelMaxID() + 1);
    kernel.origin = QFileInfo(filePath).absoluteFilePath();
    const auto goOn = [](double) { return true; };
    kernel.mesh = MeshLoader::read({{filePath, workingPath(kernel.fileName), {}}}, goOn).constFirst().mesh;
    if (!kernel.mesh) {
        return 0;
    }
    makeFileGroups(kernel);
    return insertKernel(generateKernelID(), kernel);
}

int MeshManager::removeKernels(const QList<int>& kernelIDList)
{
    QList<int> removed;
    for (int kernelID : kernelIDList) {
        if (m_kernels.contains(kernelID)) {
            QFile::remove(workingPath(m_kernels.take(kernelID).fileName));
            removed.append(kernelID);
        }
    }
    if (removed.isEmpty()) {
        return 0;
    }
    m_sets.removeMembers([&removed](const QPair<int, int>& member) { return removed.contains(member.first); });
    for (BaseModule::SelectModel model : {BaseModule::MeshNode, BaseModule::MeshElement, BaseModule::MeshGroup}) {
        SelectedDataManager::getInstance()->removeSelectedTargets(model, removed);
    }
    Q_EMIT signal_kernalDataListDeleted(removed);
    return removed.size();
}

void MeshManager::openMesh(const QString& filePath, const MeshSource& source)
{
    // A project whose mesh is being read keeps it as one that was given up; only then is a new file's name known.
    cancelLoad();
    waitForLoad();
    Kernel kernel;
    kernel.name = source.name.isEmpty() ? QFileInfo(filePath).completeBaseName() : source.name;
    kernel.origin = source.origin.isEmpty() ? QFileInfo(filePath).absoluteFilePath() : source.origin;
    kernel.fileName = fileOfKernel(getKernelMaxID() + 1);
    Q_EMIT signal_loadStarted(filePath);
    m_loader->start({{filePath, workingPath(kernel.fileName), MesherProcess::outputPath()}},
                    [this, filePath, kernel](const QVector<KernelReading>& readings) {
                        finishOpening(filePath, kernel, readings);
                    });
}

void MeshManager::finishOpening(const QString& filePath, const Kernel& kernel, const QVector<KernelReading>& readings)
{
    int kernelID = 0;
    if (isUsable(readings, filePath)) {
        forgetUnread();
        removeKernels(m_kernels.keys());
        Kernel opened = kernel;
        opened.mesh = readings.constFirst().mesh;
        makeFileGroups(opened);
        kernelID = insertKernel(generateKernelID(), opened);
    }
    Q_EMIT signal_loadFinished(kernelID);
}

bool MeshManager::isUsable(const QVector<KernelReading>& readings, const QString& filePath)
{
    const KernelReading& last = readings.constLast();
    if (!last.mesh && !last.isCancelled) {
        const QString text = tr("The mesh %1 cannot be opened: %2");
        const QString path = QDir::toNativeSeparators(filePath);
        Q_EMIT IBaseSignal::getInstance()->signal_showMessageType(2, text.arg(path, last.problem));
    }
    return !last.mesh.isNull();
}

bool MeshManager::isLoading() const
{
    return m_loader->isActive();
}

void MeshManager::waitForLoad()
{
    m_loader->wait();
}

void MeshManager::cancelLoad()
{
    m_loader->cancel();
}

void MeshManager::clear()
{
    const bool wasLoading = isLoading();
    m_loader->abandon();
    if (wasLoading) {
        Q_EMIT signal_loadFinished(0);
    }
    m_unread = {};
    removeSets(findSets(QString()));
    removeKernels(m_kernels.keys());
    resetKernelMaxID();
    resetSetMaxID();
}

} // namespace Workbench
