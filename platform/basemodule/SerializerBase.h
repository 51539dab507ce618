// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/basemodule_export.h>

#include <QByteArray>

struct QMetaObject;

namespace QJsonHelper {

/// Writes records as JSON.
///
/// A record is a QObject whose `Q_PROPERTY`s are its members; QObject's own `objectName` is none of them. Property
/// types: `bool`, `int`, `double`, `QString`, `QList` or `QVector` of these, `QStringList`, a pointer or
/// `QSharedPointer` to a record, and a `QList` of `QSharedPointer` to records (types reached through `QSharedPointer`
/// are made known with `registerRecordType`). A null record is written as `null`. Doubles that JSON cannot hold as a
/// number are written as texts: "NaN", "Infinity", "-Infinity", "-0", and "NaN:" with sixteen hexadecimal digits for a
/// not-a-number with another bit pattern than the usual one.
class BASEMODULE_EXPORT SerializerBase
{
public:
    /// The JSON text, in UTF-8, of every property of `object` that `meta` describes. `object` is the address of the
    /// QObject. Empty on failure: a null object, a property of a type that is not supported, records nested deeper than
    /// 1024. `isIndented` chooses the layout for people; otherwise there is no white space.
    static QByteArray serialize(const void* object, const QMetaObject& meta, bool isIndented);
};

} // namespace QJsonHelper
