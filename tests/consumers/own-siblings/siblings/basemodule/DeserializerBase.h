// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QObject>

namespace QJsonHelper {

class DeserializerBase
{
public:
    static void deserialize(const QByteArray&, void*, const QMetaObject*) {}
};

} // namespace QJsonHelper
