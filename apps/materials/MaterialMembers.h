// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamodel/MaterialData.h>

#include <QVector>

namespace Materials {

/// The property members of a material in their order.
inline const QVector<QSharedPointer<DataModel::MaterialPropertyData> DataModel::MaterialData::*> propertyMembers = {
    &DataModel::MaterialData::property1, &DataModel::MaterialData::property2, &DataModel::MaterialData::property3,
    &DataModel::MaterialData::property4, &DataModel::MaterialData::property5};

} // namespace Materials
