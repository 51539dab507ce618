// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/SerializerBase.h>

#include <basemodule/private/ValueCodec.h>

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
    QByteArray text =
        QJsonDocument(json.toObject()).toJson(isIndented ? QJsonDocument::Indented : QJsonDocument::Compact);
    // A byte-order mark at the start of a text would be dropped by the reader; escaped it is kept. Its bytes can stand
    // for nothing else in valid UTF-8.
    text.replace("\xef\xbb\xbf", "\\ufeff");
    return text;
}

} // namespace QJsonHelper
