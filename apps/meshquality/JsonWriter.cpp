// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/JsonWriter.h>

#include <meshquality/NumberText.h>

#include <cmath>

namespace MeshQuality {

void JsonWriter::open(char bracket)
{
    startValue();
    m_text += bracket;
    ++m_depth;
    m_isFirst = true;
}

void JsonWriter::close(char bracket)
{
    --m_depth;
    if (!m_isFirst) {
        startLine();
    }
    m_text += bracket;
    m_isFirst = false;
}

void JsonWriter::key(const QString& name)
{
    startValue();
    quote(name);
    m_text += ": ";
    m_isAfterKey = true;
}

void JsonWriter::value(const QString& text)
{
    startValue();
    quote(text);
}

void JsonWriter::value(bool isTrue)
{
    startValue();
    m_text += isTrue ? "true" : "false";
}

void JsonWriter::value(qint64 number)
{
    startValue();
    m_text += QByteArray::number(number);
}

void JsonWriter::value(float number)
{
    startValue();
    m_text += std::isfinite(number) ? shortestText(number) : QByteArray("null");
}

void JsonWriter::value(double number)
{
    startValue();
    m_text += std::isfinite(number) ? shortestText(number) : QByteArray("null");
}

void JsonWriter::null()
{
    startValue();
    m_text += "null";
}

void JsonWriter::startValue()
{
    if (m_isAfterKey) {
        m_isAfterKey = false;
        return;
    }
    if (m_depth > 0) {
        if (!m_isFirst) {
            m_text += ',';
        }
        startLine();
    }
    m_isFirst = false;
}

void JsonWriter::startLine()
{
    if (m_layout == Layout::Indented) {
        m_text += '\n' + QByteArray(2 * m_depth, ' ');
    }
}

void JsonWriter::quote(const QString& text)
{
    m_text += '"';
    for (const char byte : text.toUtf8()) {
        if (byte == '"' || byte == '\\') {
            m_text += '\\';
            m_text += byte;
        } else if (static_cast<unsigned char>(byte) < 0x20) {
            m_text += "\\u00" + QByteArray(1, byte).toHex();
        } else {
            m_text += byte;
        }
    }
    m_text += '"';
}

} // namespace MeshQuality
