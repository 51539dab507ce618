// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/private/LineSource.h>

#include <QFileInfo>

namespace DataManager {

namespace {

constexpr std::size_t pieceSize = std::size_t(1) << 18;

} // namespace

LineSource::LineSource(const QString& path) : m_file(path), m_buffer(pieceSize)
{
    m_position = m_end = m_buffer.data();
    // A pipe or a device would block or never end.
    if (QFileInfo(path).isFile() && m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        m_size = m_file.size();
    }
}

bool LineSource::nextAcrossPieces()
{
    std::size_t searched = static_cast<std::size_t>(m_end - m_position);
    while (readPiece()) {
        const std::size_t unsearched = static_cast<std::size_t>(m_end - m_position) - searched;
        if (const void* newline = std::memchr(m_position + searched, '\n', unsearched)) {
            accept(static_cast<const char*>(newline) + 1);
            return true;
        }
        searched += unsearched;
    }
    if (m_position == m_end) {
        return false;
    }
    accept(m_end);
    return true;
}

bool LineSource::readPiece()
{
    if (!m_file.isOpen()) {
        return false;
    }
    const std::size_t kept = static_cast<std::size_t>(m_end - m_position);
    if (m_position != m_buffer.data()) {
        std::memmove(m_buffer.data(), m_position, kept);
    }
    if (kept + pieceSize / 2 > m_buffer.size()) {
        m_buffer.resize(m_buffer.size() * 2);
    }
    const qint64 count = m_file.read(m_buffer.data() + kept, static_cast<qint64>(m_buffer.size() - kept));
    m_position = m_buffer.data();
    m_end = m_position + kept + (count > 0 ? count : 0);
    m_dollar = nullptr;
    m_bytesRead += count > 0 ? count : 0;
    return count > 0;
}

} // namespace DataManager
