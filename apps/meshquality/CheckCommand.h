// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <meshquality/ExitCode.h>

#include <QStringList>

namespace MeshQuality {

/// `meshquality check`: meshes against the thresholds of a profile. `arguments` begins with the command's name.
ExitCode runCheck(const QStringList& arguments);

} // namespace MeshQuality
