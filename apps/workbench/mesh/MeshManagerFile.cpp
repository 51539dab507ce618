// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/MeshManager.h>

#include <workbench/mesh/MeshLoader.h>
#include <workbench/mesh/MesherProcess.h>

#include <basemodule/GlobalHelper.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScopedValueRollback>

#include <algorithm>

using BaseModule::GlobalHelper;

namespace Workbench {
namespace {

// Identifiers of a file beyond this are damage: nobody issues so many.
constexpr int largestPossibleID = 1000000;

QString keyID()
{
    return QStringLiteral("id");
}
QString keyName()
{
    return QStringLiteral("name");
}
QString keyFile()
{
    return QStringLiteral("file");
}
QString keyOrigin()
{
    return QStringLiteral("origin");
}
QString keyShown()
{
    return QStringLiteral("shown");
}
QString keyGroups()
{
    return QStringLiteral("groups");
}
QString keyPhysical()
{
    return QStringLiteral("volumeGroup");
}
QString keyElements()
{
    return QStringLiteral("elements");
}
QString keyKernels()
{
    return QStringLiteral("kernels");
}
QString keySets()
{
    return QStringLiteral("sets");
}

// Null when the file is no description of meshes.
QJsonObject readDescription(const QString& filePath)
{
    QByteArray content;
    const bool isRead = GlobalHelper::readFile(filePath, content);
    const QJsonObject object = isRead ? QJsonDocument::fromJson(content).object() : QJsonObject();
    const QJsonArray kernels = object.value(keyKernels()).toArray();
    const bool isSound = std::all_of(kernels.begin(), kernels.end(), [](const QJsonValue& kernel) {
        const int kernelID = kernel[keyID()].toInt();
        const QString file = kernel[keyFile()].toString();
        return kernelID > 0 && kernelID <= largestPossibleID && !file.isEmpty() && QFileInfo(file).fileName() == file;
    });
    return object.value(keyKernels()).isArray() && isSound ? object : QJsonObject();
}

QList<MeshLoader::Job> jobsOf(const QJsonObject& description, const QString& directory, const QString& predictorPath)
{
    QList<MeshLoader::Job> jobs;
    for (const QJsonValue kernel : description.value(keyKernels()).toArray()) {
        const QString path = directory + QLatin1Char('/') + kernel[keyFile()].toString();
        jobs.append({path, path, predictorPath});
    }
    return jobs;
}

} // namespace

QJsonObject MeshManager::kernelToJson(int kernelID) const
{
    const Kernel kernel = m_kernels.value(kernelID);
    QJsonArray groups;
    for (auto it = kernel.groups.cbegin(); it != kernel.groups.cend(); ++it) {
        QJsonArray elements;
        for (int place : it->elements) {
            elements.append(kernel.mesh->elementNumbers.number(place));
        }
        groups.append(QJsonObject{{keyID(), it.key()},
                                  {keyName(), it->name},
                                  {keyPhysical(), it->physicalTag},
                                  {keyShown(), it->isShown},
                                  {keyElements(), elements}});
    }
    return {{keyID(), kernelID},          {keyName(), kernel.name},     {keyFile(), kernel.fileName},
            {keyOrigin(), kernel.origin}, {keyShown(), kernel.isShown}, {keyGroups(), groups}};
}

MeshManager::Kernel MeshManager::kernelFromJson(const QJsonObject& object, const QSharedPointer<const KernelMesh>& mesh)
{
    Kernel kernel;
    kernel.name = object.value(keyName()).toString();
    kernel.fileName = object.value(keyFile()).toString();
    kernel.origin = object.value(keyOrigin()).toString();
    kernel.isShown = object.value(keyShown()).toBool(true);
    kernel.mesh = mesh;
    for (const QJsonValue value : object.value(keyGroups()).toArray()) {
        Group group;
        group.name = value[keyName()].toString();
        group.physicalTag = value[keyPhysical()].toInt();
        group.isShown = value[keyShown()].toBool(true);
        for (const QJsonValue element : value[keyElements()].toArray()) {
            const int place = mesh->elementNumbers.place(element.toInt());
            if (place >= 0) {
                group.elements.push_back(place);
            }
        }
        std::sort(group.elements.begin(), group.elements.end());
        const int groupID = value[keyID()].toInt();
        if (groupID > 0 && groupID <= largestPossibleID && !kernel.groups.contains(groupID)) {
            kernel.groups.insert(groupID, group);
            kernel.groupMaxID = std::max(kernel.groupMaxID, groupID);
        }
    }
    return kernel;
}

bool MeshManager::save(const QString& filePath)
{
    QJsonArray kernels = m_unread;
    for (int kernelID : m_kernels.keys()) {
        kernels.append(kernelToJson(kernelID));
    }
    const QJsonObject object{{keyKernels(), kernels}, {keySets(), m_sets.toJson()}};
    return GlobalHelper::writeFile(filePath, QJsonDocument(object).toJson(),
                                   QIODevice::WriteOnly | QIODevice::Truncate);
}

bool MeshManager::load(const QString& filePath)
{
    const QJsonObject description = readDescription(filePath);
    const auto goOn = [](double) { return true; };
    const QVector<KernelReading> readings = MeshLoader::read(jobsOf(description, QFileInfo(filePath).path(), {}), goOn);
    if (description.isEmpty() || (!readings.isEmpty() && !readings.constLast().mesh)) {
        return false;
    }
    takeDescription(description, readings);
    return true;
}

bool MeshManager::isDescription(const QString& filePath)
{
    return !readDescription(filePath).isEmpty();
}

void MeshManager::restore(const QString& filePath)
{
    readDescribed(filePath, readDescription(filePath));
}

void MeshManager::readDescribed(const QString& filePath, const QJsonObject& description)
{
    const QList<MeshLoader::Job> jobs = jobsOf(description, QFileInfo(filePath).path(), MesherProcess::outputPath());
    Q_EMIT signal_loadStarted(filePath);
    if (jobs.isEmpty()) {
        takeDescription(description, {});
        Q_EMIT signal_loadFinished(0);
        return;
    }
    m_loader->start(jobs, [this, description, filePath](const QVector<KernelReading>& readings) {
        if (isUsable(readings, filePath)) {
            takeDescription(description, readings);
        } else {
            keepUnread(description);
        }
        Q_EMIT signal_loadFinished(m_kernels.isEmpty() ? 0 : m_kernels.lastKey());
    });
}

// Their numbers stay taken, so that another mesh does not get the name of one of their files.
void MeshManager::keepUnread(const QJsonObject& description)
{
    const QScopedValueRollback<bool> restoring(m_isRestoring, true);
    takeDescription(description, {});
    m_unread = description.value(keyKernels()).toArray();
    int largestID = 0;
    for (const QJsonValue kernel : qAsConst(m_unread)) {
        largestID = std::max(largestID, kernel[keyID()].toInt());
    }
    setKernelMaxID(largestID);
    Q_EMIT signal_visibilityChanged();
}

void MeshManager::forgetUnread()
{
    for (const QJsonValue kernel : qAsConst(m_unread)) {
        QFile::remove(GlobalHelper::getProjectTempIODir() + QLatin1Char('/') + kernel[keyFile()].toString());
    }
    m_unread = {};
}

QStringList MeshManager::getUnreadNames() const
{
    QStringList names;
    for (const QJsonValue kernel : m_unread) {
        names.append(kernel[keyName()].toString());
    }
    return names;
}

void MeshManager::readUnread()
{
    if (!m_unread.isEmpty() && !isLoading()) {
        const QString directory = GlobalHelper::getProjectTempIODir();
        readDescribed(directory + QStringLiteral("/mesh.json"),
                      {{keyKernels(), m_unread}, {keySets(), m_sets.toJson()}});
    }
}

void MeshManager::takeDescription(const QJsonObject& description, const QVector<KernelReading>& readings)
{
    const QScopedValueRollback<bool> restoring(m_isRestoring, true);
    QMap<int, Kernel> kernels;
    for (int i = 0; i < readings.size(); ++i) {
        const QJsonObject object = description.value(keyKernels()).toArray().at(i).toObject();
        kernels.insert(object.value(keyID()).toInt(), kernelFromJson(object, readings[i].mesh));
    }
    // The files stay where they are: they are those of the description, too.
    const QList<int> old = m_kernels.keys();
    m_unread = {};
    m_kernels.clear();
    if (!old.isEmpty()) {
        Q_EMIT signal_kernalDataListDeleted(old);
    }
    m_sets = NamedSets::fromJson(description.value(keySets()).toArray());
    resetSetMaxID();
    while (getSetMaxID() < m_sets.largestID()) {
        generateSetID();
    }
    setKernelMaxID(kernels.isEmpty() ? 0 : kernels.lastKey());
    insertKernels(kernels);
}

} // namespace Workbench
