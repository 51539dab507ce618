// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/private/LineSource.h>

#include <fast_float/fast_float.h>

namespace DataManager {

/// Walks through the fields of a line. Fields are separated by one blank each, so two blanks enclose an empty field,
/// and the last field holds the line terminator. Numbers are what Qt's conversion in the C locale makes of the field:
/// white space round it is ignored, text that is no number is 0.
class FieldCursor
{
public:
    explicit FieldCursor(TextRange line) : m_begin(line.begin), m_position(line.begin), m_end(line.end) {}

    /// Goes to the next field; false when the current one is the last.
    bool next()
    {
        while (m_position != m_end && *m_position != ' ') {
            ++m_position;
        }
        if (m_position == m_end) {
            return false;
        }
        ++m_position;
        return true;
    }

    /// Whether the whole field is this character.
    bool is(char only) const
    {
        return m_position != m_end && *m_position == only && (m_position + 1 == m_end || m_position[1] == ' ');
    }

    /// The field as a number. The cursor stays on the field.
    double toDouble()
    {
        double value = 0.0;
        const auto [stop, error] = fast_float::from_chars(m_position, m_end, value);
        if (error == std::errc() && isFieldEnd(stop) && isPlain(stop, value)) {
            m_position = stop;
            return value;
        }
        return doubtfulDouble();
    }

    /// The field as a decimal integer. The cursor stays on the field.
    int toInt()
    {
        unsigned value = 0;
        const char* stop = m_position;
        while (stop != m_end && static_cast<unsigned char>(*stop - '0') < 10) {
            value = value * 10 + static_cast<unsigned char>(*stop - '0');
            ++stop;
        }
        // Nine digits always fit.
        if (stop != m_position && stop - m_position <= 9 && isFieldEnd(stop)) {
            m_position = stop;
            return static_cast<int>(value);
        }
        return doubtfulInt();
    }

private:
    bool isFieldEnd(const char* stop) const
    {
        return stop == m_end || *stop == ' ' || *stop == '\n' ||
               (*stop == '\r' && stop + 1 != m_end && stop[1] == '\n');
    }

    /// Whether both conversions are known to agree: a number that starts and ends with a digit, neither so large nor
    /// so small that it could have left the range of a double.
    bool isPlain(const char* stop, double value) const
    {
        const char first = *m_position == '-' ? m_position[1] : *m_position;
        const double magnitude = value < 0.0 ? -value : value;
        return first >= '0' && first <= '9' && stop[-1] >= '0' && stop[-1] <= '9' &&
               ((magnitude > 1e-300 && magnitude < 1e300) || stop - m_position == 1);
    }

    QString text() const;
    double doubtfulDouble() const;
    int doubtfulInt() const;

    const char* m_begin;
    const char* m_position;
    const char* m_end;
};

} // namespace DataManager
