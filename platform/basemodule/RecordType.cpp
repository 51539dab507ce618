// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/RecordType.h>

#include <basemodule/private/ValueCodec.h>

#include <QJsonArray>
#include <QJsonObject>

namespace QJsonHelper {

namespace {

QJsonValue writeList(const QVector<QObject*>& records, const QMetaObject& meta, int depth)
{
    QJsonArray array;
    for (const QObject* record : records) {
        QJsonValue json = writeRecord(record, meta, depth);
        if (json.isUndefined()) {
            return json;
        }
        array.append(json);
    }
    return array;
}

/// The new record of a JSON object, null for `null`; false for other types and for records that cannot be created.
bool createRecord(const QJsonValue& json, const QMetaObject& meta, QVector<QObject*>& records)
{
    QObject* const record = json.isObject() ? meta.newInstance() : nullptr;
    if (record == nullptr && !json.isNull()) {
        return false;
    }
    if (record != nullptr) {
        readRecord(json.toObject(), record, meta);
    }
    records.append(record);
    return true;
}

QVariant readOne(const QJsonValue& json, const RecordType& type)
{
    QVector<QObject*> records;
    return createRecord(json, *type.meta, records) ? type.wrap(records) : QVariant();
}

/// Elements that are no records are passed over.
QVariant readList(const QJsonValue& json, const RecordType& type)
{
    if (!json.isArray()) {
        return {};
    }
    QVector<QObject*> records;
    const QJsonArray array = json.toArray();
    records.reserve(array.size());
    for (const QJsonValue element : array) {
        createRecord(element, *type.meta, records);
    }
    return type.wrap(records);
}

} // namespace

void registerRecordType(int typeID, const RecordType& type)
{
    ValueCodec codec;
    codec.write = [type](const QVariant& value, int depth) -> QJsonValue {
        const QVector<QObject*> records = type.unwrap(value);
        return type.isList ? writeList(records, *type.meta, depth) : writeRecord(records.value(0), *type.meta, depth);
    };
    codec.read = [type](const QJsonValue& json) { return type.isList ? readList(json, type) : readOne(json, type); };
    setValueCodec(typeID, codec);
}

} // namespace QJsonHelper
