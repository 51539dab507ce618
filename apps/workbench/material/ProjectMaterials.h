// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamodel/MaterialData.h>

#include <QMap>
#include <QSharedPointer>

namespace Workbench {

/// Whether reading the project's material file gives these materials, so that it need not be written. False without a
/// file. One that cannot be read gives none.
bool isProjectInFile(const QMap<int, QSharedPointer<DataModel::MaterialData>>& materials);

} // namespace Workbench
