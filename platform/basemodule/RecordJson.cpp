// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/private/ValueCodec.h>

#include <QJsonObject>
#include <QMetaProperty>
#include <QObject>

namespace QJsonHelper {

namespace {

// As deep as Qt's JSON parser follows; a record that contains itself fails here.
constexpr int maximumDepth = 1024;

QObject* pointedRecord(const QVariant& value)
{
    return *static_cast<QObject* const*>(value.constData());
}

bool isRecordPointer(int typeID)
{
    return QMetaType::typeFlags(typeID).testFlag(QMetaType::PointerToQObject);
}

QJsonValue writeProperty(const QMetaProperty& property, const QObject* record, int depth)
{
    const QVariant value = property.read(record);
    const int typeID = property.userType();
    if (const ValueCodec* codec = valueCodec(typeID)) {
        return codec->write(value, depth);
    }
    const QMetaObject* meta = QMetaType::metaObjectForType(typeID);
    if (!isRecordPointer(typeID) || meta == nullptr) {
        return QJsonValue::Undefined;
    }
    return writeRecord(pointedRecord(value), *meta, depth);
}

/// A record behind a plain pointer is filled where it is; a missing one is created as a child of its owner.
void readPointer(const QJsonValue& json, const QMetaProperty& property, QObject* owner)
{
    const QMetaObject* meta = QMetaType::metaObjectForType(property.userType());
    if (!json.isObject() || meta == nullptr) {
        return;
    }
    const QVariant current = property.read(owner);
    QObject* record = pointedRecord(current);
    const bool isCreated = record == nullptr;
    if (isCreated) {
        record = meta->newInstance();
    }
    if (record == nullptr) {
        return;
    }
    readRecord(json.toObject(), record, *meta);
    if (isCreated) {
        record->setParent(owner);
        property.write(owner, QVariant(property.userType(), &record));
    }
}

void readProperty(const QJsonValue& json, const QMetaProperty& property, QObject* record)
{
    const int typeID = property.userType();
    if (const ValueCodec* codec = valueCodec(typeID)) {
        const QVariant value = codec->read(json);
        if (value.isValid()) {
            property.write(record, value);
        }
    } else if (isRecordPointer(typeID)) {
        readPointer(json, property, record);
    }
}

} // namespace

QJsonValue writeRecord(const QObject* record, const QMetaObject& meta, int depth)
{
    if (record == nullptr) {
        return QJsonValue::Null;
    }
    if (depth >= maximumDepth) {
        return QJsonValue::Undefined;
    }
    QJsonObject object;
    for (int i = QObject::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        QJsonValue value = writeProperty(property, record, depth + 1);
        if (value.isUndefined()) {
            return value;
        }
        object.insert(QString::fromUtf8(property.name()), value);
    }
    return object;
}

void readRecord(const QJsonObject& json, QObject* record, const QMetaObject& meta)
{
    for (int i = QObject::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        const auto member = json.constFind(QString::fromUtf8(property.name()));
        if (member != json.constEnd()) {
            readProperty(member.value(), property, record);
        }
    }
}

} // namespace QJsonHelper
