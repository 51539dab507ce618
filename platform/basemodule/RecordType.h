// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/basemodule_export.h>

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QSharedPointer>
#include <QVariant>
#include <QVector>

namespace QJsonHelper {

/// How records are taken out of and put into a property type that holds them by `QSharedPointer`.
struct RecordType
{
    const QMetaObject* meta;                                ///< of the record class
    bool isList;                                            ///< a list of records instead of one
    QVector<QObject*> (*unwrap)(const QVariant& value);     ///< the records, still owned by the value
    QVariant (*wrap)(const QVector<QObject*>& ownedRecord); ///< a value that takes ownership of the records
};

/// Makes a property type known under its meta-type number; a later call replaces an earlier one.
BASEMODULE_EXPORT void registerRecordType(int typeID, const RecordType& type);

/// The record that a value holds.
template <class Record>
QVector<QObject*> unwrapRecord(const QVariant& value)
{
    return {value.value<QSharedPointer<Record>>().data()};
}

/// A value that owns the one record of the list.
template <class Record>
QVariant wrapRecord(const QVector<QObject*>& records)
{
    return QVariant::fromValue(QSharedPointer<Record>(static_cast<Record*>(records.value(0))));
}

/// The records of the list that a value holds.
template <class Record>
QVector<QObject*> unwrapRecordList(const QVariant& value)
{
    QVector<QObject*> records;
    for (const QSharedPointer<Record>& record : value.value<QList<QSharedPointer<Record>>>()) {
        records.append(record.data());
    }
    return records;
}

/// A value that owns the records as a list.
template <class Record>
QVariant wrapRecordList(const QVector<QObject*>& records)
{
    QList<QSharedPointer<Record>> list;
    auto next = records.begin();
    try {
        list.reserve(records.size());
        while (next != records.end()) {
            const QSharedPointer<Record> record(static_cast<Record*>(*next));
            ++next;
            list.append(record);
        }
    } catch (...) {
        // Memory ran out: what no pointer owns yet would be lost.
        qDeleteAll(next, records.end());
        throw;
    }
    return QVariant::fromValue(list);
}

/// Makes properties of the types `QSharedPointer<Record>` and `QList<QSharedPointer<Record>>` readable and writable.
/// The record needs a public parameterless Q_INVOKABLE constructor. Call it before the first use, for example to
/// initialise a namespace-level constant beside the record; returns true.
template <class Record>
bool registerRecordType()
{
    registerRecordType(qMetaTypeId<QSharedPointer<Record>>(),
                       {&Record::staticMetaObject, false, unwrapRecord<Record>, wrapRecord<Record>});
    registerRecordType(qMetaTypeId<QList<QSharedPointer<Record>>>(),
                       {&Record::staticMetaObject, true, unwrapRecordList<Record>, wrapRecordList<Record>});
    return true;
}

} // namespace QJsonHelper
