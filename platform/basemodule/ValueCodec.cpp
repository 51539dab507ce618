// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/private/ValueCodec.h>

#include <basemodule/private/JsonNumber.h>

#include <QHash>
#include <QJsonArray>
#include <QList>
#include <QMetaType>
#include <QStringList>
#include <QVector>

#include <cmath>
#include <limits>

namespace QJsonHelper {

namespace {

QJsonValue toJson(bool value)
{
    return value;
}

QJsonValue toJson(int value)
{
    return value;
}

QJsonValue toJson(double value)
{
    return JsonNumber::fromDouble(value);
}

QJsonValue toJson(const QString& value)
{
    return value;
}

bool fromJson(const QJsonValue& json, bool& value)
{
    value = json.toBool();
    return json.isBool();
}

bool fromJson(const QJsonValue& json, int& value)
{
    const double number = json.toDouble(std::numeric_limits<double>::quiet_NaN());
    if (!(number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max()) ||
        std::trunc(number) != number) {
        return false;
    }
    value = static_cast<int>(number);
    return true;
}

bool fromJson(const QJsonValue& json, double& value)
{
    return JsonNumber::toDouble(json, value);
}

bool fromJson(const QJsonValue& json, QString& value)
{
    value = json.toString();
    return json.isString();
}

template <class Value>
ValueCodec scalarCodec()
{
    return {[](const QVariant& value, int) { return toJson(value.value<Value>()); },
            [](const QJsonValue& json) {
                Value value{};
                return fromJson(json, value) ? QVariant::fromValue(value) : QVariant();
            }};
}

template <class List>
QJsonValue listToJson(const List& list)
{
    QJsonArray array;
    for (const typename List::value_type& value : list) {
        array.append(toJson(value));
    }
    return array;
}

/// One element of another type makes the whole list one of another type: leaving the element out would shift the
/// elements behind it against lists that run in parallel.
template <class List>
QVariant listFromJson(const QJsonValue& json)
{
    if (!json.isArray()) {
        return {};
    }
    const QJsonArray array = json.toArray();
    List list;
    list.reserve(array.size());
    for (const QJsonValue element : array) {
        typename List::value_type value{};
        if (!fromJson(element, value)) {
            return {};
        }
        list.append(value);
    }
    return QVariant::fromValue(list);
}

template <class List>
ValueCodec listCodec()
{
    return {[](const QVariant& value, int) { return listToJson(value.value<List>()); },
            [](const QJsonValue& json) { return listFromJson<List>(json); }};
}

template <class Value>
void addCodecs(QHash<int, ValueCodec>& codecs)
{
    codecs.insert(qMetaTypeId<Value>(), scalarCodec<Value>());
    codecs.insert(qMetaTypeId<QList<Value>>(), listCodec<QList<Value>>());
    codecs.insert(qMetaTypeId<QVector<Value>>(), listCodec<QVector<Value>>());
}

QHash<int, ValueCodec> builtInCodecs()
{
    QHash<int, ValueCodec> codecs;
    addCodecs<bool>(codecs);
    addCodecs<int>(codecs);
    addCodecs<double>(codecs);
    addCodecs<QString>(codecs);
    codecs.insert(qMetaTypeId<QStringList>(), listCodec<QStringList>());
    return codecs;
}

QHash<int, ValueCodec>& registeredCodecs()
{
    static QHash<int, ValueCodec> codecs = builtInCodecs();
    return codecs;
}

} // namespace

const ValueCodec* valueCodec(int typeID)
{
    const auto found = registeredCodecs().constFind(typeID);
    return found == registeredCodecs().constEnd() ? nullptr : &found.value();
}

void setValueCodec(int typeID, const ValueCodec& codec)
{
    registeredCodecs().insert(typeID, codec);
}

} // namespace QJsonHelper
