// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/PropertyCheck.h>

#include <datamodel/MaterialPropertyData.h>

#include <QJsonArray>
#include <QMetaProperty>

#include <cmath>
#include <limits>

namespace Materials {

namespace {

/// As the library writes doubles: a number, or a text where JSON has none.
bool isComponent(const QJsonValue& value)
{
    static const QStringList texts = {QStringLiteral("NaN"), QStringLiteral("Infinity"), QStringLiteral("-Infinity"),
                                      QStringLiteral("-0")};
    return value.isDouble() || texts.contains(value.toString()) || value.toString().startsWith(QLatin1String("NaN:"));
}

bool isFinite(const QJsonValue& value)
{
    return value.isDouble() || value.toString() == QLatin1String("-0");
}

void checkComponents(QVector<Fault>& faults, const QString& place, const QJsonArray& components)
{
    constexpr int componentCount = 9;
    if (components.size() != componentCount) {
        faults.append({place, fault(QT_TRANSLATE_NOOP("materials", "has %1 values, expected 9"),
                                    {QString::number(components.size())})});
    }
    for (int i = 0; i < components.size(); ++i) {
        const QString element = QStringLiteral("%1[%2]").arg(place).arg(i);
        if (!isComponent(components.at(i))) {
            faults.append({element, fault(QT_TRANSLATE_NOOP("materials", "is no number"))});
        } else if (!isFinite(components.at(i))) {
            faults.append({element, fault(QT_TRANSLATE_NOOP("materials", "is %1"), {components.at(i).toString()})});
        }
    }
}

} // namespace

Console::Message fault(const char* source, const QStringList& values)
{
    return Console::makeMessage("materials", source, values);
}

bool isIdentifier(const QJsonValue& value)
{
    const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max() &&
           std::trunc(number) == number;
}

void checkMembers(QVector<Fault>& faults, const QString& place, const QJsonObject& record, const QMetaObject& meta)
{
    for (const QString& key : record.keys()) {
        if (meta.indexOfProperty(key.toUtf8().constData()) < meta.propertyOffset()) {
            faults.append({place + QLatin1Char('.') + key, fault(QT_TRANSLATE_NOOP("materials", "unknown member"))});
        }
    }
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QString name = QString::fromUtf8(meta.property(i).name());
        if (!record.contains(name)) {
            faults.append({place + QLatin1Char('.') + name, fault(QT_TRANSLATE_NOOP("materials", "is missing"))});
            continue;
        }
        const int type = meta.property(i).userType();
        const QJsonValue value = record.value(name);
        if ((type == QMetaType::QString && !value.isString()) || (type == QMetaType::Bool && !value.isBool()) ||
            (type == qMetaTypeId<QList<double>>() && !value.isArray())) {
            faults.append(
                {place + QLatin1Char('.') + name, fault(QT_TRANSLATE_NOOP("materials", "is of another type"))});
        }
    }
}

void checkProperty(QVector<Fault>& faults, const QString& place, const QJsonValue& property)
{
    if (property.isNull() || property.isUndefined()) {
        return;
    }
    if (!property.isObject()) {
        faults.append({place, fault(QT_TRANSLATE_NOOP("materials", "is no property"))});
        return;
    }
    const QJsonObject record = property.toObject();
    checkMembers(faults, place, record, DataModel::MaterialPropertyData::staticMetaObject);
    if (!isIdentifier(record.value(QStringLiteral("kind")))) {
        faults.append({place + QStringLiteral(".kind"), fault(QT_TRANSLATE_NOOP("materials", "is no whole number"))});
    }
    checkComponents(faults, place + QStringLiteral(".components"),
                    record.value(QStringLiteral("components")).toArray());
}

} // namespace Materials
