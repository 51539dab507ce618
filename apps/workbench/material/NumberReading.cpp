// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/NumberReading.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace Workbench {

namespace {

/// Decimal and thousands commas that keyboards for Latin, Chinese and Arabic produce.
const QString commas = QStringLiteral(",\uFF0C\u3001\u066B\u066C\u060C");

bool hasComma(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar character) { return commas.contains(character); });
}

/// Where the first digit that is not zero stands: 1 for 5, 2 for 50, 0 for 0.5, -1 for 0.05.
int leadingPlace(const QByteArray& mantissa)
{
    const int pointAt = mantissa.contains('.') ? mantissa.indexOf('.') : mantissa.size();
    const auto isNonZero = [](char character) { return character >= '1' && character <= '9'; };
    const int digitAt = static_cast<int>(std::find_if(mantissa.begin(), mantissa.end(), isNonZero) - mantissa.begin());
    return digitAt < pointAt ? pointAt - digitAt : pointAt - digitAt + 1;
}

/// Of a number that a double does not hold. Beyond either end, the sign of its decimal magnitude decides; an exponent
/// that no integer holds decides alone.
bool isTiny(const QByteArray& number)
{
    const QByteArray lower = number.toLower();
    const int mark = lower.contains('e') ? lower.indexOf('e') : lower.size();
    bool isInteger = false;
    const QByteArray exponentText = lower.mid(mark + 1);
    const int exponent = exponentText.toInt(&isInteger);
    if (!exponentText.isEmpty() && !isInteger) {
        return exponentText.startsWith('-');
    }
    return double(exponent) + leadingPlace(lower.left(mark)) < 0;
}

NumberReading outOfRange(const QByteArray& number)
{
    return {isTiny(number) ? NumberReading::TooSmall : NumberReading::TooLarge, 0};
}

} // namespace

NumberReading readNumber(const QString& text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty()) {
        return {NumberReading::Empty, 0};
    }
    if (hasComma(trimmed)) {
        return {NumberReading::HasComma, 0};
    }
    // Characters beyond Latin-1 become question marks, which no number holds.
    QByteArray number = trimmed.toLatin1();
    if (number.startsWith('+') && !number.startsWith("+-")) {
        number.remove(0, 1);
    }
    double value = 0;
    const char* const last = number.constData() + number.size();
    const std::from_chars_result end = std::from_chars(number.constData(), last, value);
    if (end.ptr != last || end.ec == std::errc::invalid_argument) {
        return {NumberReading::NotANumber, 0};
    }
    if (end.ec == std::errc::result_out_of_range) {
        return outOfRange(number);
    }
    return {std::isfinite(value) ? NumberReading::None : NumberReading::NotFinite, value};
}

} // namespace Workbench
