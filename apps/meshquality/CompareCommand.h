// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <meshquality/ExitCode.h>

#include <QStringList>

namespace MeshQuality {

/// `meshquality compare`: two meshes side by side. `arguments` begins with the command's name.
ExitCode runCompare(const QStringList& arguments);

} // namespace MeshQuality
