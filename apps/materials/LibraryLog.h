// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QStringList>

namespace Materials {

/// Keeps what the libraries log from now on, instead of printing it: a failed save is told only there.
void startLibraryLog();

/// The lines since the last call.
QStringList takeLibraryLog();

} // namespace Materials
