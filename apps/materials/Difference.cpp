// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/Difference.h>

#include <materials/MaterialJson.h>
#include <materials/NumberText.h>

#include <datamodel/MaterialData.h>

#include <QJsonArray>
#include <QMetaProperty>

#include <algorithm>

namespace Materials {

namespace {

QString textOf(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Undefined:
    case QJsonValue::Null:
        return QStringLiteral("-");
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double:
        return shortestText(value.toDouble());
    default:
        return value.toString();
    }
}

QString pathOf(const QString& parent, const QString& member)
{
    return parent.isEmpty() ? member : parent + QLatin1Char('.') + member;
}

void append(QVector<Difference>& list, const QString& path, const QJsonValue& source, const QJsonValue& target);

void appendMembers(QVector<Difference>& list, const QString& path, const QJsonObject& source, const QJsonObject& target,
                   const QMetaObject& meta)
{
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QString member = QString::fromUtf8(meta.property(i).name());
        append(list, pathOf(path, member), source.value(member), target.value(member));
    }
}

void appendElements(QVector<Difference>& list, const QString& path, const QJsonArray& source, const QJsonArray& target)
{
    for (int i = 0; i < std::max(source.size(), target.size()); ++i) {
        append(list, QStringLiteral("%1[%2]").arg(path).arg(i), source.at(i), target.at(i));
    }
}

void append(QVector<Difference>& list, const QString& path, const QJsonValue& source, const QJsonValue& target)
{
    if (source == target) {
        return;
    }
    if (source.isObject() || target.isObject()) {
        appendMembers(list, path, source.toObject(), target.toObject(),
                      DataModel::MaterialPropertyData::staticMetaObject);
    } else if (source.isArray() || target.isArray()) {
        appendElements(list, path, source.toArray(), target.toArray());
    } else {
        list.append({path, textOf(source), textOf(target)});
    }
}

} // namespace

QVector<Difference> differences(const DataModel::MaterialData& source, const DataModel::MaterialData& target)
{
    QJsonObject first = materialJson(source);
    QJsonObject second = materialJson(target);
    for (const QString& ignored : {QStringLiteral("id"), QStringLiteral("isDeleted")}) {
        first.remove(ignored);
        second.remove(ignored);
    }
    QVector<Difference> list;
    appendMembers(list, {}, first, second, DataModel::MaterialData::staticMetaObject);
    return list;
}

} // namespace Materials
