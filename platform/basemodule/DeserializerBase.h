// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/basemodule_export.h>

#include <QByteArray>

struct QMetaObject;

namespace QJsonHelper {

/// Reads the JSON that `SerializerBase` writes.
class BASEMODULE_EXPORT DeserializerBase
{
public:
    /// Sets the properties of `object`, the address of a QObject described by `meta`, from a JSON text in UTF-8.
    /// Unknown members are passed over; members that are missing or of another type leave the property as it was. So
    /// does a list of plain values with one element of another type; in a list of records such an element is left out.
    /// Returns false, with `object` unchanged, when the text is not a JSON object, or when it lists so many records
    /// with next to no text that they would take more than 64 MB and many times the text's own length. Note that the
    /// write access that moc generates for a `MEMBER` property compares first and so keeps 0 where -0 is read: give
    /// properties of doubles a `WRITE` accessor.
    static bool deserialize(const QByteArray& json, void* object, const QMetaObject* meta);
};

} // namespace QJsonHelper
