// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/MaterialOrigins.h>

#include <datamanager/material/private/KeptCopy.h>

#include <basemodule/GlobalHelper.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using BaseModule::GlobalHelper;

namespace Workbench {

namespace {

using Origin = MaterialOrigins::Origin;

const QString materialsKey = QStringLiteral("materials");
const QString idKey = QStringLiteral("id");
const QString sourceKey = QStringLiteral("source");
const QString sourceIDKey = QStringLiteral("sourceID");
const QString sourceNameKey = QStringLiteral("sourceName");
const QString editedKey = QStringLiteral("edited");
const QString createdWord = QStringLiteral("created");
const QString softwareWord = QStringLiteral("software library");

QString path()
{
    return GlobalHelper::getProjectTempIODir() + QStringLiteral("/MaterialOrigins.json");
}

QJsonObject toJson(int id, const Origin& origin)
{
    return {{idKey, id},
            {sourceKey, origin.source == Origin::Created ? createdWord : softwareWord},
            {sourceIDKey, origin.sourceID},
            {sourceNameKey, origin.sourceName},
            {editedKey, origin.isEdited}};
}

Origin fromJson(const QJsonObject& object)
{
    const QString source = object.value(sourceKey).toString();
    return {source == createdWord    ? Origin::Created
            : source == softwareWord ? Origin::Software
                                     : Origin::Unknown,
            object.value(sourceIDKey).toInt(), object.value(sourceNameKey).toString(),
            object.value(editedKey).toBool()};
}

QJsonObject toJson(const QMap<int, Origin>& origins)
{
    QJsonArray materials;
    for (auto origin = origins.begin(); origin != origins.end(); ++origin) {
        materials.append(toJson(origin.key(), *origin));
    }
    return {{materialsKey, materials}};
}

// Those whose source is known.
QMap<int, Origin> originsFrom(const QJsonObject& object)
{
    QMap<int, Origin> origins;
    for (const QJsonValue entry : object.value(materialsKey).toArray()) {
        const int id = entry.toObject().value(idKey).toInt();
        const Origin origin = fromJson(entry.toObject());
        if (id > 0 && origin.source != Origin::Unknown) {
            origins.insert(id, origin);
        }
    }
    return origins;
}

// A file that somebody removed needs no copy.
bool keepFile()
{
    QByteArray content;
    return !QFile::exists(path()) || (GlobalHelper::readFile(path(), content) &&
                                      (content.isEmpty() || DataManager::KeptCopy::keep(path(), content)));
}

} // namespace

void MaterialOrigins::set(int id, const Origin& origin)
{
    m_origins.insert(id, origin);
}

void MaterialOrigins::markEdited(int id)
{
    const auto origin = m_origins.find(id);
    if (origin != m_origins.end()) {
        origin->isEdited = true;
    }
}

void MaterialOrigins::forget(int id)
{
    m_origins.remove(id);
}

void MaterialOrigins::read()
{
    QByteArray content;
    const bool isThere = QFile::exists(path());
    const bool isRead = isThere && GlobalHelper::readFile(path(), content);
    const QJsonObject object = QJsonDocument::fromJson(content).object();
    m_origins = originsFrom(object);
    m_isFileHeld = !isThere || (isRead && object == toJson(m_origins));
}

bool MaterialOrigins::write()
{
    if (m_origins.isEmpty() && (!m_isFileHeld || !QFile::exists(path()))) {
        return true;
    }
    m_isFileHeld = m_isFileHeld || keepFile();
    return m_isFileHeld && GlobalHelper::writeFile(path(), QJsonDocument(toJson(m_origins)).toJson(),
                                                   QIODevice::WriteOnly | QIODevice::Truncate);
}

void MaterialOrigins::clear()
{
    m_origins.clear();
    m_isFileHeld = true;
    QFile::remove(path());
}

} // namespace Workbench
