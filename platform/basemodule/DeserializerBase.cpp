// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/DeserializerBase.h>

#include <basemodule/private/ValueCodec.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>

namespace QJsonHelper {

bool DeserializerBase::deserialize(const QByteArray& json, void* object, const QMetaObject* meta)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject() || object == nullptr || meta == nullptr) {
        return false;
    }
    readRecord(document.object(), static_cast<QObject*>(object), *meta);
    return true;
}

} // namespace QJsonHelper
