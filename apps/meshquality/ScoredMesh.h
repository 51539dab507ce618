// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/MeshQualityReport.h>

namespace MeshQuality {

/// A mesh that has been measured and scored.
struct ScoredMesh
{
    QString file;
    DataManager::MeshQualityReport report;
    float score = 0.0F;
};

} // namespace MeshQuality
