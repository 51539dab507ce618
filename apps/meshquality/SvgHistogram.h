// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/MeshQualityReport.h>

#include <QString>

namespace MeshQuality {

/// The spread of a metric as an SVG picture of its own: a bar a bin, with its bounds and count as tooltip.
QString svgHistogram(const DataManager::MeshQualityReport& report, DataManager::MeshQualityReport::Metric metric);

} // namespace MeshQuality
