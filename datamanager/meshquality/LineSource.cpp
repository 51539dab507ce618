// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/private/LineSource.h>

#include <QFileInfo>

namespace DataManager {

namespace {

constexpr std::size_t pieceSize = std::size_t(1) << 18;
// What fits into the buffer as it is at first need not be cut.
constexpr std::size_t longestUncut = pieceSize / 2;

} // namespace

/// The section markers in a text that comes in pieces.
class LineSource::MarkerSearch
{
public:
    /// A marker that lies across two pieces is found when the second begins with this many bytes of the first.
    static constexpr std::size_t overlap = 11;
    /// All markers together.
    static constexpr std::size_t longestResult = 36;

    void take(const char* begin, const char* end)
    {
        const std::string_view text(begin, static_cast<std::size_t>(end - begin));
        if (text.find('$') == std::string_view::npos) {
            return;
        }
        for (std::size_t i = 0; i < sectionMarkers.size(); ++i) {
            m_isFound[i] = m_isFound[i] || text.find(sectionMarkers[i]) != std::string_view::npos;
        }
    }
    /// Those that were found, one after the other.
    QByteArray found() const
    {
        QByteArray text;
        for (std::size_t i = 0; i < sectionMarkers.size(); ++i) {
            if (m_isFound[i]) {
                text.append(sectionMarkers[i].data(), static_cast<int>(sectionMarkers[i].size()));
            }
        }
        return text;
    }

private:
    std::array<bool, sectionMarkers.size()> m_isFound{};
};

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
    while (m_keepsLongLines || searched <= longestUncut) {
        if (!readPiece()) {
            if (m_position == m_end) {
                return false;
            }
            accept(m_end);
            return true;
        }
        const std::size_t unsearched = static_cast<std::size_t>(m_end - m_position) - searched;
        if (const void* newline = std::memchr(m_position + searched, '\n', unsearched)) {
            accept(static_cast<const char*>(newline) + 1);
            return true;
        }
        searched += unsearched;
    }
    acceptAbridged();
    return true;
}

// The line's first bytes stay at the start of the buffer. Its rest passes through the buffer behind them, far enough
// away that the first bytes and all markers fit in before the newline, wherever that is found.
void LineSource::acceptAbridged()
{
    const std::size_t kept = static_cast<std::size_t>(m_end - m_position);
    char* const head = m_buffer.data();
    std::memmove(head, m_position, kept);
    m_end = head + kept;
    MarkerSearch markers;
    markers.take(head + headSize - MarkerSearch::overlap, m_end);
    const char* const end = passRest(head + headSize + MarkerSearch::longestResult, markers);
    const QByteArray found = markers.found();
    const std::size_t size = headSize + static_cast<std::size_t>(found.size());
    char* const line = head + (end - head) - size;
    std::memmove(line, head, headSize);
    std::memcpy(line + headSize, found.constData(), static_cast<std::size_t>(found.size()));
    m_position = line;
    m_dollar = nullptr;
    accept(end == m_end ? end : end + 1);
}

/// Reads to the end of the line, piece by piece to the same place, each behind the end of the one before. Where the
/// newline is, or the end of the file.
const char* LineSource::passRest(char* place, MarkerSearch& markers)
{
    char* const fresh = place + MarkerSearch::overlap;
    while (true) {
        std::memmove(place, m_end - MarkerSearch::overlap, MarkerSearch::overlap);
        const std::size_t count = readInto(fresh);
        m_end = fresh + count;
        const void* const newline = std::memchr(fresh, '\n', count);
        const char* const end = newline == nullptr ? m_end : static_cast<const char*>(newline);
        markers.take(place, end);
        if (newline != nullptr || count == 0) {
            return end;
        }
    }
}

bool LineSource::readPiece()
{
    const std::size_t kept = static_cast<std::size_t>(m_end - m_position);
    if (m_position != m_buffer.data()) {
        std::memmove(m_buffer.data(), m_position, kept);
    }
    if (kept + pieceSize / 2 > m_buffer.size()) {
        // No more than what the file holds, as far as is known.
        const std::size_t unread = static_cast<std::size_t>(qMax(m_size - m_bytesRead, qint64(0)));
        m_buffer.resize(qMin(m_buffer.size() * 2, kept + unread + pieceSize / 2));
    }
    const std::size_t count = readInto(m_buffer.data() + kept);
    m_position = m_buffer.data();
    m_end = m_position + kept + count;
    m_dollar = nullptr;
    return count > 0;
}

/// Fills the buffer from `place` on, as far as one read does; 0 at the end of the file.
std::size_t LineSource::readInto(char* place)
{
    const char* const end = m_buffer.data() + m_buffer.size();
    const qint64 count = m_file.isOpen() ? qMax(m_file.read(place, end - place), qint64(0)) : 0;
    m_bytesRead += count;
    return static_cast<std::size_t>(count);
}

} // namespace DataManager
