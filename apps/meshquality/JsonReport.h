// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

namespace MeshQuality {

class JsonWriter;
struct ReportOptions;
struct ScoredMesh;

/// Writes what is known of a mesh as one object. Of the worst elements, ten by Shape unless the options say otherwise.
void writeJson(const ScoredMesh& mesh, const ReportOptions& options, JsonWriter& json);

/// Writes that a mesh has no measures, and why, as one object.
void writeJsonProblem(const QString& file, const QString& problem, JsonWriter& json);

} // namespace MeshQuality
