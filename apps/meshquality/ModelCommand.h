// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <meshquality/ExitCode.h>

#include <QStringList>

namespace MeshQuality {

/// `meshquality model`: whether a model meets the contract, and what it says about itself. `arguments` begins with the
/// command's name.
ExitCode runModel(const QStringList& arguments);

} // namespace MeshQuality
