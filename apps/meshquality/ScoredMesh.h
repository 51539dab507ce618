// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/MeshQualityReport.h>

#include <limits>

namespace DataManager {
class QualityModelCard;
}

namespace MeshQuality {

/// A mesh that has been measured, and scored if the model could be used.
struct ScoredMesh
{
    QString file;
    /// The format of a file that had to be converted before it was measured. The lines in the report are then those of
    /// the conversion. Otherwise empty.
    QString convertedFrom;
    DataManager::MeshQualityReport report;
    /// The model, while there is one that could be loaded; belongs to who loaded it.
    const DataManager::QualityModelCard* model = nullptr;
    bool isScored = false;
    /// NaN also when there is none.
    float score = std::numeric_limits<float>::quiet_NaN();
};

} // namespace MeshQuality
