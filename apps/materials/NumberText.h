// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

namespace Materials {

/// The shortest text that reads back as the same number, the sign of zero included; "nan", "inf" and "-inf" where it is
/// none. The same under every locale.
QString shortestText(double value);

} // namespace Materials
