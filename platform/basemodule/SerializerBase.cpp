// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/SerializerBase.h>

#include <basemodule/ValueCodec.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>

namespace QJsonHelper {

QByteArray SerializerBase::serialize(const void* object, const QMetaObject& meta, bool isIndented)
{
    const QJsonValue json = writeRecord(static_cast<const QObject*>(object), meta, 0);
    if (!json.isObject()) {
        return {};
    }
    return QJsonDocument(json.toObject()).toJson(isIndented ? QJsonDocument::Indented : QJsonDocument::Compact);
}

} // namespace QJsonHelper
