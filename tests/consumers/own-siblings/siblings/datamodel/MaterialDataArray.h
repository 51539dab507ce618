// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamodel/MaterialData.h>

namespace DataModel {

class MaterialDataArray : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE MaterialDataArray() = default;

    QList<QSharedPointer<MaterialData>> materialList;
};

} // namespace DataModel
