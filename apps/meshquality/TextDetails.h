// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

namespace DataManager {
class MeshQualityReport;
}

namespace MeshQuality {

struct ReportOptions;

/// What the options ask for beside the table: worst elements, a histogram, regions.
QString textDetails(const DataManager::MeshQualityReport& report, const ReportOptions& options);

} // namespace MeshQuality
