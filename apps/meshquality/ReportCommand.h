// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <meshquality/ExitCode.h>

#include <QStringList>

namespace MeshQuality {

/// `meshquality report`: measures and scores meshes. `arguments` begins with the command's name.
ExitCode runReport(const QStringList& arguments);

} // namespace MeshQuality
