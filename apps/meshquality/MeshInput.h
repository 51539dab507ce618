// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <meshquality/ExitCode.h>

#include <QString>

namespace DataManager {
class MeshQualityReport;
}

namespace MeshQuality {

/// Measures a mesh file into `report`. On a terminal, standard error shows how far it is when the file is large.
/// UnreadableInput, with the reason in `problem`, when there are no measures.
ExitCode measureMesh(const QString& file, DataManager::MeshQualityReport& report, QString& problem);

/// The same, with the reason on standard error.
ExitCode measureMesh(const QString& file, DataManager::MeshQualityReport& report);

} // namespace MeshQuality
