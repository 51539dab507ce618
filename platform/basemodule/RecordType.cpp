// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/RecordType.h>

#include <basemodule/private/ValueCodec.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QScopedPointer>

#include <utility>

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

/// Records on their way into a property: nobody else owns them when memory runs out.
struct OwnedRecords
{
    OwnedRecords() = default;
    ~OwnedRecords() { qDeleteAll(list); }
    Q_DISABLE_COPY(OwnedRecords)

    /// The records, which the caller takes.
    QVector<QObject*> take() { return std::exchange(list, {}); }

    QVector<QObject*> list;
};

/// The new record of a JSON object, null for `null`; false for other types and for records that cannot be created.
bool createRecord(const QJsonValue& json, const QMetaObject& meta, OwnedRecords& records)
{
    QScopedPointer<QObject> record(json.isObject() ? meta.newInstance() : nullptr);
    if (record.isNull() && !json.isNull()) {
        return false;
    }
    if (!record.isNull()) {
        readRecord(json.toObject(), record.data(), meta);
    }
    records.list.append(record.data());
    record.take();
    return true;
}

QVariant readOne(const QJsonValue& json, const RecordType& type)
{
    OwnedRecords records;
    return createRecord(json, *type.meta, records) ? type.wrap(records.take()) : QVariant();
}

/// Elements that are no records are passed over.
QVariant readList(const QJsonValue& json, const RecordType& type)
{
    if (!json.isArray()) {
        return {};
    }
    OwnedRecords records;
    const QJsonArray array = json.toArray();
    records.list.reserve(array.size());
    for (const QJsonValue element : array) {
        createRecord(element, *type.meta, records);
    }
    return type.wrap(records.take());
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
