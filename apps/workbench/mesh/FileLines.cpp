// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/FileLines.h>

#include <algorithm>

namespace Workbench {

bool FileLines::forEach(const Line& line, const Progress& progress)
{
    if (!m_file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const qint64 size = m_file.size();
    while (!m_file.atEnd()) {
        const QByteArray block = m_file.read(1 << 20);
        if (block.isEmpty() || !progress(m_file.pos(), size)) {
            return false;
        }
        takeBlock(block, line);
    }
    endLine(line);
    return true;
}

void FileLines::takeBlock(const QByteArray& block, const Line& line)
{
    const char* begin = block.constData();
    const char* const blockEnd = begin + block.size();
    for (const char* end = std::find(begin, blockEnd, '\n'); end != blockEnd; end = std::find(begin, blockEnd, '\n')) {
        if (m_rest.isEmpty() && !m_isTooLong) {
            line(begin, end);
        } else {
            takePart(begin, end);
            endLine(line);
        }
        begin = end + 1;
    }
    takePart(begin, blockEnd);
}

void FileLines::takePart(const char* begin, const char* end)
{
    m_isTooLong = m_isTooLong || m_rest.size() + (end - begin) > longestLine;
    if (m_isTooLong) {
        m_rest.clear();
    } else {
        m_rest.append(begin, static_cast<int>(end - begin));
    }
}

void FileLines::endLine(const Line& line)
{
    if (!m_isTooLong && !m_rest.isEmpty()) {
        line(m_rest.constData(), m_rest.constData() + m_rest.size());
    }
    m_rest.clear();
    m_isTooLong = false;
}

} // namespace Workbench
