// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

namespace MeshQuality {

/// Whether the file's name or its first bytes say that it is a VTK XML file.
bool isVtkXml(const QString& path);

/// Writes the linear tetrahedra of a VTK XML unstructured grid as MSH 2 ASCII; coordinates stay to the last bit. The
/// integer cell arrays "element" and "region" give their numbers and physical groups; without them the cells are
/// numbered from 1, in group 0. False, with the reason in `problem`, when that cannot be done.
bool convertVtu(const QString& path, const QString& target, QString& problem);

} // namespace MeshQuality
