// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QJsonValue>
#include <QVariant>

#include <functional>

class QObject;
struct QMetaObject;

namespace QJsonHelper {

/// How values of one property type become JSON and back.
struct ValueCodec
{
    /// The JSON form of a value; `Undefined` when it has none. `depth` counts the records around the value.
    std::function<QJsonValue(const QVariant& value, int depth)> write;
    /// The value of a JSON form; an invalid variant when the form is of another type.
    std::function<QVariant(const QJsonValue& json)> read;
};

/// The codec of a property type, by its meta-type identifier; null when the type is not supported.
const ValueCodec* valueCodec(int typeID);

/// Adds or replaces the codec of a property type.
void setValueCodec(int typeID, const ValueCodec& codec);

/// The JSON object of a record, `null` for a null record, `Undefined` on failure.
QJsonValue writeRecord(const QObject* record, const QMetaObject& meta, int depth);

/// Sets the properties of a record from a JSON object.
void readRecord(const QJsonObject& json, QObject* record, const QMetaObject& meta);

} // namespace QJsonHelper
