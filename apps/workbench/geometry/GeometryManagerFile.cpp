// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/geometry/GeometryManager.h>

#include <basemodule/GlobalHelper.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using BaseModule::GlobalHelper;

namespace Workbench {
namespace {

QString keyID()
{
    return QStringLiteral("id");
}
QString keyName()
{
    return QStringLiteral("name");
}
QString keyMaterial()
{
    return QStringLiteral("material");
}
QString keyVolume()
{
    return QStringLiteral("volumeGroup");
}
QString keyGroupName()
{
    return QStringLiteral("groupName");
}
QString keyOrigin()
{
    return QStringLiteral("origin");
}
QString keyShown()
{
    return QStringLiteral("shown");
}
QString keyFile()
{
    return QStringLiteral("file");
}
QString keyComponents()
{
    return QStringLiteral("components");
}
QString keySets()
{
    return QStringLiteral("sets");
}

// Identifiers of a file beyond this are damage: nobody issues so many.
constexpr int largestPossibleID = 1000000;

// Null when the file is no description of volumes.
QJsonObject readDescription(const QString& filePath)
{
    QByteArray content;
    const bool isRead = GlobalHelper::readFile(filePath, content);
    const QJsonObject object = isRead ? QJsonDocument::fromJson(content).object() : QJsonObject();
    return object.value(keyComponents()).isArray() ? object : QJsonObject();
}

} // namespace

QJsonObject GeometryManager::componentToJson(int componentID) const
{
    const Component component = m_components.value(componentID);
    return {{keyID(), componentID},
            {keyName(), component.name},
            {keyMaterial(), component.materialID},
            {keyVolume(), component.volumeTag},
            {keyGroupName(), component.groupName},
            {keyOrigin(), component.origin},
            {keyShown(), component.isShown},
            {keyFile(), component.filePath}};
}

bool GeometryManager::save(const QString& filePath)
{
    QJsonArray components;
    for (int componentID : m_components.keys()) {
        components.append(componentToJson(componentID));
    }
    const QJsonObject object{{keyComponents(), components}, {keySets(), m_sets.toJson()}};
    return GlobalHelper::writeFile(filePath, QJsonDocument(object).toJson(),
                                   QIODevice::WriteOnly | QIODevice::Truncate);
}

bool GeometryManager::load(const QString& filePath)
{
    const QJsonObject description = readDescription(filePath);
    if (description.isEmpty()) {
        return false;
    }
    clear();
    takeJson(description);
    return true;
}

bool GeometryManager::isDescription(const QString& filePath)
{
    return !readDescription(filePath).isEmpty();
}

void GeometryManager::takeJson(const QJsonObject& object)
{
    int largestID = 0;
    for (const QJsonValue value : object.value(keyComponents()).toArray()) {
        const QJsonObject entry = value.toObject();
        const int componentID = entry.value(keyID()).toInt();
        Component component;
        component.name = entry.value(keyName()).toString();
        component.materialID = entry.value(keyMaterial()).toInt();
        component.volumeTag = entry.value(keyVolume()).toInt();
        component.groupName = entry.value(keyGroupName()).toString();
        component.origin = entry.value(keyOrigin()).toString();
        component.isShown = entry.value(keyShown()).toBool(true);
        component.filePath = entry.value(keyFile()).toString();
        if (componentID > 0 && componentID <= largestPossibleID && !m_components.contains(componentID) &&
            !isNameTaken(component.name, 0)) {
            m_components.insert(componentID, component);
            largestID = qMax(largestID, componentID);
        }
    }
    m_sets = NamedSets::fromJson(object.value(keySets()).toArray());
    resetSetMaxID(m_sets.largestID());
    restoreComponentMaxID(largestID);
    Q_EMIT signal_componentListDataChanged(findComponents(QString()));
    Q_EMIT signal_geoSetListDataChanged(m_sets.find(QString()));
}

// The counter of components has no setter: it is counted up.
void GeometryManager::restoreComponentMaxID(int largestID)
{
    resetComponentMaxID();
    while (getComponentMaxID() < largestID) {
        generateComponentID();
    }
}

void GeometryManager::clear()
{
    const QList<int> sets = m_sets.find(QString());
    removeSets(sets);
    removeComponents(findComponents(QString()));
    resetComponentMaxID();
    resetSetMaxID(0);
}

} // namespace Workbench
