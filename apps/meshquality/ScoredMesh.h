// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/MeshQualityReport.h>

namespace MeshQuality {

/// A mesh that has been measured and scored.
struct ScoredMesh
{
    QString file;
    /// The format of a file that had to be converted before it was measured. The lines in the report are then those of
    /// the conversion. Otherwise empty.
    QString convertedFrom;
    DataManager::MeshQualityReport report;
    float score = 0.0F;
};

} // namespace MeshQuality
