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
    /// Unknown members are passed over; members that are missing or of another type, and list elements of another
    /// type, leave the property as it was. Returns false, with `object` unchanged, when the text is not a JSON object.
    static bool deserialize(const QByteArray& json, void* object, const QMetaObject* meta);
};

} // namespace QJsonHelper
