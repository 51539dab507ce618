// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/MaterialOrigins.h>

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
    m_origins.clear();
    QByteArray content;
    if (QFile::exists(path()) && GlobalHelper::readFile(path(), content)) {
        for (const QJsonValue& entry : QJsonDocument::fromJson(content).object().value(materialsKey).toArray()) {
            m_origins.insert(entry.toObject().value(idKey).toInt(), fromJson(entry.toObject()));
        }
    }
}

bool MaterialOrigins::write() const
{
    if (m_origins.isEmpty() && !QFile::exists(path())) {
        return true;
    }
    QJsonArray materials;
    for (auto origin = m_origins.begin(); origin != m_origins.end(); ++origin) {
        materials.append(toJson(origin.key(), *origin));
    }
    return GlobalHelper::writeFile(path(), QJsonDocument(QJsonObject{{materialsKey, materials}}).toJson(),
                                   QIODevice::WriteOnly | QIODevice::Truncate);
}

void MaterialOrigins::clear()
{
    m_origins.clear();
    QFile::remove(path());
}

} // namespace Workbench
