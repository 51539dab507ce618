// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace MeshQuality {

class JsonWriter;
struct ReportOptions;
struct ScoredMesh;

/// Writes what is known of a mesh as one object. Of the worst elements, ten by Shape unless the options say otherwise.
void writeJson(const ScoredMesh& mesh, const ReportOptions& options, JsonWriter& json);

} // namespace MeshQuality
