// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/MaterialLibType.h>
#include <materials/Comparison.h>

#include <QList>
#include <QString>

namespace Workbench {

/// Why these new and changed materials must not be copied into the library together, for the user; empty when they may:
/// two there would have one name, one would be replaced twice, or there is no number for a new one.
QString importRefusal(BaseModule::MaterialLibType library, const QList<Materials::Comparison>& copies);

} // namespace Workbench
