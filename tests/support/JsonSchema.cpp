// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "JsonSchema.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>

namespace {

bool isOfType(const QJsonValue& value, const QString& type)
{
    switch (value.type()) {
    case QJsonValue::Null:
        return type == QLatin1String("null");
    case QJsonValue::Bool:
        return type == QLatin1String("boolean");
    case QJsonValue::Double:
        return type == QLatin1String("number") ||
               (type == QLatin1String("integer") && value.toDouble() == static_cast<double>(qint64(value.toDouble())));
    case QJsonValue::String:
        return type == QLatin1String("string");
    case QJsonValue::Array:
        return type == QLatin1String("array");
    case QJsonValue::Object:
        return type == QLatin1String("object");
    case QJsonValue::Undefined:
        break;
    }
    return false;
}

bool isOfAnyType(const QJsonValue& value, const QJsonValue& types)
{
    const QJsonArray list = types.isArray() ? types.toArray() : QJsonArray{types};
    for (const QJsonValue type : list) {
        if (isOfType(value, type.toString())) {
            return true;
        }
    }
    return false;
}

} // namespace

JsonSchema::JsonSchema(const QString& name)
{
    QFile file(QStringLiteral(DATAMANAGER_SOURCE_DIR "/docs/schemas/%1.schema.json").arg(name));
    if (file.open(QIODevice::ReadOnly)) {
        m_schema = QJsonDocument::fromJson(file.readAll()).object();
    }
}

QString JsonSchema::problem(const QJsonValue& value, const QString& definition) const
{
    if (m_schema.isEmpty()) {
        return QStringLiteral("there is no such schema");
    }
    const QJsonObject schema = definition.isEmpty()
                                   ? m_schema
                                   : QJsonObject{{QStringLiteral("$ref"), QStringLiteral("#/$defs/") + definition}};
    return check(schema, value, QStringLiteral("#"));
}

QString JsonSchema::check(const QJsonObject& schema, const QJsonValue& value, const QString& place) const
{
    for (const QString& keyword : schema.keys()) {
        const QString problem = checkKeyword(schema, keyword, value, place);
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    return QString();
}

QString JsonSchema::checkKeyword(const QJsonObject& schema, const QString& keyword, const QJsonValue& value,
                                 const QString& place) const
{
    static const QSet<QString> withoutRule{QStringLiteral("$schema"), QStringLiteral("title"),
                                           QStringLiteral("description"), QStringLiteral("$defs"),
                                           // Goes with "properties".
                                           QStringLiteral("additionalProperties")};
    const QJsonValue rule = schema.value(keyword);
    const QString wrong = place + QStringLiteral(": ") + keyword;
    if (keyword == QLatin1String("$ref")) {
        const QJsonObject definitions = m_schema.value(QLatin1String("$defs")).toObject();
        const QJsonValue definition = definitions.value(rule.toString().section(QLatin1Char('/'), -1));
        return definition.isObject() ? check(definition.toObject(), value, place) : wrong;
    }
    if (keyword == QLatin1String("type")) {
        return isOfAnyType(value, rule) ? QString() : wrong;
    }
    if (keyword == QLatin1String("enum")) {
        return rule.toArray().contains(value) ? QString() : wrong;
    }
    if (keyword == QLatin1String("minimum")) {
        return value.isDouble() && value.toDouble() < rule.toDouble() ? wrong : QString();
    }
    if (keyword == QLatin1String("maximum")) {
        return value.isDouble() && value.toDouble() > rule.toDouble() ? wrong : QString();
    }
    if (keyword == QLatin1String("pattern")) {
        const bool matches = QRegularExpression(rule.toString()).match(value.toString()).hasMatch();
        return value.isString() && !matches ? wrong : QString();
    }
    if (keyword == QLatin1String("minItems") || keyword == QLatin1String("maxItems")) {
        const int size = value.toArray().size();
        const bool fits = keyword == QLatin1String("minItems") ? size >= rule.toInt() : size <= rule.toInt();
        return value.isArray() && !fits ? wrong : QString();
    }
    if (keyword == QLatin1String("items")) {
        return checkItems(rule.toObject(), value.toArray(), place);
    }
    if (keyword == QLatin1String("anyOf") || keyword == QLatin1String("oneOf")) {
        return checkAlternatives(rule.toArray(), value, place, keyword == QLatin1String("oneOf"));
    }
    if (keyword == QLatin1String("properties") || keyword == QLatin1String("required")) {
        return value.isObject() ? checkMembers(schema, value.toObject(), place) : QString();
    }
    return withoutRule.contains(keyword) ? QString() : wrong + QStringLiteral(" is not known here");
}

QString JsonSchema::checkMembers(const QJsonObject& schema, const QJsonObject& object, const QString& place) const
{
    for (const QJsonValue name : schema.value(QLatin1String("required")).toArray()) {
        if (!object.contains(name.toString())) {
            return place + QStringLiteral(": lacks ") + name.toString();
        }
    }
    const QJsonObject properties = schema.value(QLatin1String("properties")).toObject();
    const bool isClosed = schema.value(QLatin1String("additionalProperties")) == QJsonValue(false);
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QString memberPlace = place + QLatin1Char('/') + member.key();
        if (isClosed && !properties.contains(member.key())) {
            return memberPlace + QStringLiteral(": is not expected");
        }
        const QString problem = check(properties.value(member.key()).toObject(), member.value(), memberPlace);
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    return QString();
}

QString JsonSchema::checkItems(const QJsonObject& schema, const QJsonArray& array, const QString& place) const
{
    for (int i = 0; i < array.size(); ++i) {
        const QString problem = check(schema, array.at(i), place + QLatin1Char('/') + QString::number(i));
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    return QString();
}

QString JsonSchema::checkAlternatives(const QJsonArray& schemas, const QJsonValue& value, const QString& place,
                                      bool onlyOne) const
{
    int fitting = 0;
    for (const QJsonValue schema : schemas) {
        fitting += check(schema.toObject(), value, place).isEmpty() ? 1 : 0;
    }
    const bool isRight = onlyOne ? fitting == 1 : fitting > 0;
    return isRight ? QString() : place + QStringLiteral(": fits %1 alternatives").arg(fitting);
}
