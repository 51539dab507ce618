// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

class QObject;

namespace Workbench {

/// Has the application end in order, without asking, when the system or a terminal tells the program to end: the mesher
/// goes with it, and so do the working files. `context` lives as long as that is wanted.
void endOnSignals(QObject* context);

} // namespace Workbench
