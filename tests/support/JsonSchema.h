// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

/// A JSON schema with those keywords of draft 2020-12 that the schemas of this project use. A schema that uses another
/// one is refused, so that nothing is passed over in silence.
class JsonSchema
{
public:
    /// Reads a file of docs/schemas.
    explicit JsonSchema(const QString& name);

    /// What is wrong with a value, and where; empty when it follows the schema, or the definition of this name in it.
    QString problem(const QJsonValue& value, const QString& definition = QString()) const;

private:
    QString check(const QJsonObject& schema, const QJsonValue& value, const QString& place) const;
    QString checkKeyword(const QJsonObject& schema, const QString& keyword, const QJsonValue& value,
                         const QString& place) const;
    QString checkMembers(const QJsonObject& schema, const QJsonObject& object, const QString& place) const;
    QString checkItems(const QJsonObject& schema, const QJsonArray& array, const QString& place) const;
    QString checkAlternatives(const QJsonArray& schemas, const QJsonValue& value, const QString& place,
                              bool onlyOne) const;

    QJsonObject m_schema;
};
