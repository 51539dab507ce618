// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/private/NumberText.h>

#include <basemodule/private/JsonNumber.h>

#include <QByteArray>
#include <QJsonValue>
#include <QString>

#include <charconv>
#include <cmath>

namespace BaseModule {

namespace {

// The longest shortest form of a double, "-2.2250738585072014e-308", has 24 characters.
constexpr int bufferSize = 32;

template <class Number>
void appendShortest(QString& text, Number value)
{
    char buffer[bufferSize];
    const std::to_chars_result end = std::to_chars(buffer, buffer + bufferSize, value);
    text += QLatin1String(buffer, static_cast<int>(end.ptr - buffer));
}

template <class Number>
bool parseWhole(const QByteArray& text, Number& value)
{
    Number parsed{};
    const char* const last = text.constData() + text.size();
    const std::from_chars_result end = std::from_chars(text.constData(), last, parsed);
    if (end.ec != std::errc() || end.ptr != last) {
        return false;
    }
    value = parsed;
    return true;
}

} // namespace

void NumberText::append(QString& text, int value)
{
    appendShortest(text, value);
}

void NumberText::append(QString& text, double value)
{
    if (std::isfinite(value)) {
        appendShortest(text, value);
    } else {
        text += QJsonHelper::JsonNumber::fromDouble(value).toString();
    }
}

// Characters beyond Latin-1 become question marks, which no number holds.
bool NumberText::toInt(const QStringRef& text, int& value)
{
    return parseWhole(text.toLatin1(), value);
}

bool NumberText::toDouble(const QStringRef& text, double& value)
{
    double parsed = 0;
    // The reading of "inf" and "nan" in their other spellings would not keep the bits.
    if (parseWhole(text.toLatin1(), parsed) && std::isfinite(parsed)) {
        value = parsed;
        return true;
    }
    return QJsonHelper::JsonNumber::toDouble(text.toString(), value);
}

} // namespace BaseModule
