// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/DeserializerBase.h>

#include <QByteArray>
#include <QDebug>
#include <QJsonDocument>
#include <QObject>
#include <QSharedPointer>

#include <type_traits>

namespace DataManager {

/// A new record of class `Record`, filled from a JSON text. Null, after two critical log lines, when the class has no
/// public parameterless Q_INVOKABLE constructor. A text that does not parse still yields a record, with its defaults;
/// `isParsed`, when given, tells whether it did.
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
    using Result = decltype(QJsonHelper::DeserializerBase::deserialize(json, record.data(), &meta));
    if constexpr (std::is_same_v<Result, bool>) {
        const bool isObject = QJsonHelper::DeserializerBase::deserialize(json, record.data(), &meta);
        if (isParsed != nullptr) {
            *isParsed = isObject;
        }
    } else {
        // An application's own base library may not tell.
        QJsonHelper::DeserializerBase::deserialize(json, record.data(), &meta);
        if (isParsed != nullptr) {
            *isParsed = QJsonDocument::fromJson(json).isObject();
        }
    }
    return record;
}

} // namespace DataManager
