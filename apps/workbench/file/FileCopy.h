// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

#include <functional>

class QFile;

namespace Workbench {

/// What became of a copy.
struct FileCopy
{
    bool isDone = false;
    bool isGivenUp = false;
    /// What went wrong, as the system says it, where it is neither.
    QString problem;
};

/// Told between two pieces of a file how much of it is copied, from 0 to 1; false gives up.
using CopyProgress = std::function<bool(double done)>;

/// Puts a copy of the open file, from its beginning, in the place of another one, when all of it is written: what was
/// there before stays until then, and for good when the copy is given up or fails. For working files, which nobody
/// needs after a power cut: it does not wait for the disk.
FileCopy replaceByCopy(QFile& source, const QString& target, const CopyProgress& progress);

} // namespace Workbench
