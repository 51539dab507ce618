// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/private/LineBuffer.h>

#include <QFile>
#include <QString>

#include <array>
#include <cstring>
#include <string_view>

namespace DataManager {

/// What begins and ends the nodes and the elements of a mesh file.
constexpr std::array<std::string_view, 4> sectionMarkers{"$Nodes", "$EndNodes", "$Elements", "$EndElements"};

/// A part of a text, valid until the source that gave it moves on.
struct TextRange
{
    const char* begin = nullptr;
    const char* end = nullptr;
};

/// The lines of a regular file, read in large pieces through one buffer, which grows only when a single line that is
/// kept whole is longer. Of other long lines their first bytes are kept, followed by the section markers of their rest.
/// What cannot be opened, and what is no regular file, has no lines. The file is read and not mapped, because a file
/// that the mesher cuts short meanwhile would end the process through its mapping.
class LineSource
{
public:
    explicit LineSource(const QString& path);

    /// Whether there is a file to read.
    bool isOpen() const { return m_file.isOpen(); }
    /// Size of the file in bytes when it was opened.
    qint64 size() const { return m_size; }
    /// How many bytes have been read.
    qint64 bytesRead() const { return m_bytesRead; }

    /// How many bytes of every line are kept, at least.
    static constexpr std::size_t headSize = 8192;
    /// Whether the lines that follow are kept whole, however long they are. At first they are not.
    void keepLongLines(bool keeps) { m_keepsLongLines = keeps; }

    /// Goes to the next line; false at the end.
    bool next()
    {
        const void* newline = std::memchr(m_position, '\n', static_cast<std::size_t>(m_end - m_position));
        if (newline == nullptr) {
            return nextAcrossPieces();
        }
        accept(static_cast<const char*>(newline) + 1);
        return true;
    }

    /// The current line with its terminator, if it has one.
    TextRange line() const { return m_line; }
    /// Number of the current line, from 1.
    qint64 lineNumber() const { return m_lineNumber; }

    /// Whether the current line holds the character that starts every section marker. The next such character is
    /// looked for once, not line by line.
    bool holdsDollar()
    {
        if (m_dollar < m_line.begin) {
            const void* found = std::memchr(m_line.begin, '$', static_cast<std::size_t>(m_end - m_line.begin));
            m_dollar = found == nullptr ? m_end : static_cast<const char*>(found);
        }
        return m_dollar < m_line.end;
    }

private:
    class MarkerSearch;

    void accept(const char* lineEnd)
    {
        m_line = {m_position, lineEnd};
        m_position = lineEnd;
        ++m_lineNumber;
    }
    bool nextAcrossPieces();
    bool readPiece();
    void acceptAbridged();
    const char* passRest(char* place, MarkerSearch& markers);
    std::size_t readInto(char* place);

    QFile m_file;
    qint64 m_size = 0;
    qint64 m_bytesRead = 0;
    qint64 m_lineNumber = 0;
    bool m_keepsLongLines = false;
    LineBuffer m_buffer;
    const char* m_position = nullptr;
    const char* m_end = nullptr;
    const char* m_dollar = nullptr;
    TextRange m_line;
};

} // namespace DataManager
