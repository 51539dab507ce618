// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <meshquality/ExitCode.h>

#include <QString>

namespace MeshQuality {

struct ScoredMesh;

/// Measures the mesh in `mesh.file` into `mesh.report`. A file in another format is converted first, if that is
/// possible here. On a terminal, standard error shows how far it is when the file is large; what
/// makes the measures doubtful is said there, too. UnreadableInput, with the reason in `problem`, when there are no
/// measures.
ExitCode measureMesh(ScoredMesh& mesh, QString& problem);

/// The same, with the reason on standard error, and the first skipped lines, too.
ExitCode measureMesh(ScoredMesh& mesh);

/// As above, but a file in another format is no input.
ExitCode measureAsItIs(ScoredMesh& mesh);

} // namespace MeshQuality
