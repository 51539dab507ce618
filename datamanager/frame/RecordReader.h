// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/DeserializerBase.h>

#include <QByteArray>
#include <QDebug>
#include <QJsonDocument>
#include <QObject>
#include <QSharedPointer>

#include <new>
#include <type_traits>

namespace DataManager {

/// Fills a record from a JSON text; false when that is no object.
template <class Record>
bool fillRecord(const QByteArray& json, Record& record)
{
    const QMetaObject& meta = Record::staticMetaObject;
    using Result = decltype(QJsonHelper::DeserializerBase::deserialize(json, &record, &meta));
    if constexpr (std::is_same_v<Result, bool>) {
        return QJsonHelper::DeserializerBase::deserialize(json, &record, &meta);
    } else {
        // An application's own base library may not tell.
        QJsonHelper::DeserializerBase::deserialize(json, &record, &meta);
        return QJsonDocument::fromJson(json).isObject();
    }
}

/// A new record of class `Record`, filled from a JSON text. Null, after two critical log lines, when the class has no
/// public parameterless Q_INVOKABLE constructor. A text that does not parse, or not within the memory there is, still
/// yields a record, with its defaults; `isParsed`, when given, tells whether it did.
template <class Record>
QSharedPointer<Record> readRecord(const QByteArray& json, bool* isParsed = nullptr)
{
    const QMetaObject& meta = Record::staticMetaObject;
    QSharedPointer<Record> record(qobject_cast<Record*>(meta.newInstance()));
    if (record.isNull()) {
        qCritical() << "Failed to create an instance of type" << meta.className();
        qCritical() << "Did you forget to declare a public parameterless Q_INVOKABLE constructor?";
        return record;
    }
    bool isObject = false;
    try {
        isObject = fillRecord(json, *record);
    } catch (const std::bad_alloc&) {
        // What the text holds does not fit into the memory: as if it did not parse.
        record.reset(qobject_cast<Record*>(meta.newInstance()));
    }
    if (isParsed != nullptr) {
        *isParsed = isObject;
    }
    return record;
}

} // namespace DataManager
