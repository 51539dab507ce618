// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/MeshQualityReport.h>

/// How values are spread.
namespace DataManager::Distribution {

MeshQualityReport::Summary summary(std::vector<double> values);

MeshQualityReport::Histogram histogram(const std::vector<double>& values, int bins);

} // namespace DataManager::Distribution
