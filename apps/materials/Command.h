// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <materials/ExitCode.h>

#include <QStringList>

namespace Materials {

/// Runs the program. `arguments` begins with the program's name.
ExitCode runCommand(const QStringList& arguments);

} // namespace Materials
