// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <meshquality/ExitCode.h>

#include <QStringList>

namespace MeshQuality {

/// `meshquality predict`: what an application gets from the library's predictor. `arguments` begins with the command's
/// name.
ExitCode runPredict(const QStringList& arguments);

} // namespace MeshQuality
