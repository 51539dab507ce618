// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

namespace Console {

/// The columns that a text takes on a terminal: two for a Chinese character or a mark as wide as one, else one.
int columnCount(const QString& text);

/// The text with blanks behind it, or before it, up to so many columns; a wider one as it is.
QString leftJustified(const QString& text, int columns);
QString rightJustified(const QString& text, int columns);

} // namespace Console
