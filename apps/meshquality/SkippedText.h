// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QStringList>

namespace DataManager {
class MeshQualityReport;
}

namespace MeshQuality {

/// The first lines that were skipped, each with the reason, and last how many more there are; nothing when none was.
QStringList skippedPlaces(const DataManager::MeshQualityReport& report);

} // namespace MeshQuality
