// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/private/EscapedText.h>

#include <QString>

namespace BaseModule {

namespace {

const QChar mark = QLatin1Char('%');
constexpr int digitCount = 4;

bool isHalfSurrogate(const QString& text, int position)
{
    const QChar unit = text.at(position);
    if (unit.isHighSurrogate()) {
        return position + 1 == text.size() || !text.at(position + 1).isLowSurrogate();
    }
    return unit.isLowSurrogate() && (position == 0 || !text.at(position - 1).isHighSurrogate());
}

/// Of a unit that is no printable character of ASCII.
bool isFragile(ushort unit)
{
    const bool isControl = unit < 0xa0;
    const bool isNoncharacter = (unit >= 0xfdd0 && unit <= 0xfdef) || unit >= 0xfffe;
    return isControl || isNoncharacter || unit == QChar::ByteOrderMark;
}

bool needsEscape(const QString& text, int position, QChar separator)
{
    const QChar unit = text.at(position);
    // Most texts are numbers and names in ASCII.
    if (unit >= QLatin1Char(' ') && unit <= QLatin1Char('~')) {
        return unit == mark || unit == separator;
    }
    return (!separator.isNull() && unit == separator) || isFragile(unit.unicode()) || isHalfSurrogate(text, position);
}

void appendEscaped(QString& escaped, QChar unit)
{
    escaped += mark;
    escaped += QString::number(unit.unicode(), 16).toUpper().rightJustified(digitCount, QLatin1Char('0'));
}

int hexadecimalDigit(QChar unit)
{
    const ushort code = unit.unicode();
    if (code >= '0' && code <= '9') {
        return code - '0';
    }
    if (code >= 'A' && code <= 'F') {
        return code - 'A' + 10;
    }
    return code >= 'a' && code <= 'f' ? code - 'a' + 10 : -1;
}

/// The code unit written in the four digits from `position` on; -1 when they are none.
int codeUnit(const QString& escaped, int position)
{
    if (escaped.size() - position < digitCount) {
        return -1;
    }
    int unit = 0;
    for (int i = 0; i < digitCount; ++i) {
        const int digit = hexadecimalDigit(escaped.at(position + i));
        if (digit < 0) {
            return -1;
        }
        unit = unit * 16 + digit;
    }
    return unit;
}

} // namespace

QString EscapedText::escape(const QString& text, QChar separator)
{
    int position = 0;
    while (position < text.size() && !needsEscape(text, position, separator)) {
        ++position;
    }
    if (position == text.size()) {
        return text;
    }
    QString escaped = text.left(position);
    for (; position < text.size(); ++position) {
        if (needsEscape(text, position, separator)) {
            appendEscaped(escaped, text.at(position));
        } else {
            escaped += text.at(position);
        }
    }
    return escaped;
}

bool EscapedText::unescape(const QString& escaped, QString& text)
{
    if (!escaped.contains(mark)) {
        text = escaped;
        return true;
    }
    QString plain;
    plain.reserve(escaped.size());
    for (int i = 0; i < escaped.size(); ++i) {
        if (escaped.at(i) != mark) {
            plain += escaped.at(i);
            continue;
        }
        const int unit = codeUnit(escaped, i + 1);
        if (unit < 0) {
            return false;
        }
        plain += QChar(unit);
        i += digitCount;
    }
    text = plain;
    return true;
}

} // namespace BaseModule
