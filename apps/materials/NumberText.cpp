// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/NumberText.h>

#include <QLocale>

#include <cmath>

namespace Materials {

QString shortestText(double value)
{
    // Qt writes -0 without its sign.
    if (value == 0 && std::signbit(value)) {
        return QStringLiteral("-0");
    }
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

} // namespace Materials
