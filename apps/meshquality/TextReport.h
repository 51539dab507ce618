// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

namespace MeshQuality {

struct ScoredMesh;

/// A compact table for people.
QString textReport(const ScoredMesh& mesh);

} // namespace MeshQuality
