// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

namespace MeshQuality {

struct ScoredMesh;

/// Writes a mesh as a VTK XML unstructured grid: its tetrahedra with one cell array a metric, and the cell arrays
/// "element", "region" and "line" with their number, physical group and line in the mesh file. Numbers are inline
/// binary in the byte order of the machine, so every bit of them stays. False, after a message on standard error, when
/// not all has reached the file.
bool writeVtu(const ScoredMesh& mesh, const QString& path);

} // namespace MeshQuality
