// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <console/Columns.h>

#include <algorithm>

namespace Console {

namespace {

// The wide and full-width blocks of Unicode's East Asian Width below U+10000.
bool isWide(QChar character)
{
    const ushort code = character.unicode();
    return (code >= 0x1100 && code <= 0x115f) || (code >= 0x2e80 && code <= 0xa4cf) ||
           (code >= 0xac00 && code <= 0xd7a3) || (code >= 0xf900 && code <= 0xfaff) ||
           (code >= 0xfe30 && code <= 0xfe6f) || (code >= 0xff00 && code <= 0xff60) ||
           (code >= 0xffe0 && code <= 0xffe6);
}

QString blanks(const QString& text, int columns)
{
    return QString(std::max(0, columns - columnCount(text)), QLatin1Char(' '));
}

} // namespace

int columnCount(const QString& text)
{
    return text.size() + static_cast<int>(std::count_if(text.begin(), text.end(), isWide));
}

QString leftJustified(const QString& text, int columns)
{
    return text + blanks(text, columns);
}

QString rightJustified(const QString& text, int columns)
{
    return blanks(text, columns) + text;
}

} // namespace Console
