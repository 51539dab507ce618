// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QSharedPointer>

namespace DataModel {
class MaterialData;
}

namespace Materials {

using Material = QSharedPointer<DataModel::MaterialData>;

} // namespace Materials
