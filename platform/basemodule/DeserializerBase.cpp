// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/DeserializerBase.h>

#include <basemodule/private/ValueCodec.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaObject>
#include <QObject>

#include <algorithm>

namespace QJsonHelper {

namespace {

/// The records in the lists of a root object that are read.
qint64 recordCount(const QJsonObject& root, const QMetaObject& meta)
{
    qint64 count = 0;
    for (auto member = root.begin(); member != root.end(); ++member) {
        const int property = meta.indexOfProperty(member.key().toUtf8().constData());
        if (!member.value().isArray() || property < QObject::staticMetaObject.propertyCount()) {
            continue;
        }
        const QJsonArray elements = member.value().toArray();
        count +=
            std::count_if(elements.begin(), elements.end(), [](const QJsonValue& value) { return value.isObject(); });
    }
    return count;
}

/// Whether the records stay in proportion to the text they come from. "{}" makes a record of hundreds of bytes; one
/// that was written by us has a text of more than 150.
bool isProportionate(const QJsonObject& root, const QMetaObject& meta, int textSize)
{
    constexpr qint64 bytesPerRecord = 600;
    constexpr qint64 factor = 7;
    constexpr qint64 allowance = 64 * 1024 * 1024;
    return recordCount(root, meta) * bytesPerRecord <= factor * textSize + allowance;
}

} // namespace

bool DeserializerBase::deserialize(const QByteArray& json, void* object, const QMetaObject* meta)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject() || object == nullptr || meta == nullptr ||
        !isProportionate(document.object(), *meta, json.size())) {
        return false;
    }
    readRecord(document.object(), static_cast<QObject*>(object), *meta);
    return true;
}

} // namespace QJsonHelper
