// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace MeshQuality {

class JsonWriter;
struct ScoredMesh;

/// Writes what is known of a mesh as one object.
void writeJson(const ScoredMesh& mesh, JsonWriter& json);

} // namespace MeshQuality
