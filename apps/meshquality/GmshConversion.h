// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

namespace MeshQuality {

/// Turns a mesh in another version of MSH, or in binary MSH, into MSH 2 ASCII with the program gmsh, which runs as a
/// child process. Element numbers and physical groups stay, nodes are numbered anew.
class GmshConversion
{
public:
    /// Ten minutes unless told otherwise.
    explicit GmshConversion(int limitMilliseconds = 600000) : m_limit(limitMilliseconds) {}

    /// Whether gmsh is on the path.
    static bool isAvailable();
    /// Whether the file begins as gmsh's own meshes do. Anything else gmsh could run as a script.
    static bool accepts(const QString& path);

    /// Writes "mesh.msh" into `directory`, which is empty and belongs to this call alone. The path of the result;
    /// otherwise an empty text, and what gmsh said last, or how it ended, in `problem`.
    QString convert(const QString& path, const QString& directory, QString& problem) const;

private:
    int m_limit;
};

} // namespace MeshQuality
