// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QString>

namespace MeshQuality {

/// Writes JSON with its members in the order in which they are given.
class JsonWriter
{
public:
    enum class Layout : int
    {
        Indented,
        OneLine
    };

    explicit JsonWriter(Layout layout = Layout::Indented) : m_layout(layout) {}

    void beginObject() { open('{'); }
    void endObject() { close('}'); }
    void beginArray() { open('['); }
    void endArray() { close(']'); }

    /// Names the next value of an object.
    void key(const QString& name);

    void value(const QString& text);
    void value(bool isTrue);
    void value(qint64 number);
    /// The shortest text that reads back as the same number; null where it is none or infinite.
    void value(float number);
    void value(double number);

    void null();

    /// What has been written, with a line end.
    QByteArray text() const { return m_text + '\n'; }

private:
    void open(char bracket);
    void close(char bracket);
    void startValue();
    void startLine();
    void quote(const QString& text);

    Layout m_layout;
    QByteArray m_text;
    int m_depth = 0;
    bool m_isFirst = true;
    bool m_isAfterKey = false;
};

} // namespace MeshQuality
