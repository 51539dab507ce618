// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QObject>

namespace QJsonHelper {

/// Enough for an application that only writes.
class SerializerBase
{
public:
    static QByteArray serialize(const void*, const QMetaObject& meta, bool)
    {
        return QByteArray("{\"record\":\"") + meta.className() + "\"}";
    }
};

} // namespace QJsonHelper
