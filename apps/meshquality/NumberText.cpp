// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/NumberText.h>

#include <charconv>

namespace MeshQuality {

namespace {

template <class... Arguments>
QByteArray text(Arguments... arguments)
{
    char buffer[64];
    const std::to_chars_result result = std::to_chars(buffer, buffer + sizeof buffer, arguments...);
    return QByteArray(buffer, static_cast<int>(result.ptr - buffer));
}

} // namespace

QByteArray shortestText(float value)
{
    return value != value ? QByteArray("nan") : text(value);
}

QByteArray shortestText(double value)
{
    return value != value ? QByteArray("nan") : text(value);
}

QByteArray sixDigits(double value)
{
    return value != value ? QByteArray("nan") : text(value, std::chars_format::general, 6);
}

} // namespace MeshQuality
