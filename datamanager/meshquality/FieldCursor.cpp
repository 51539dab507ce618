// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/private/FieldCursor.h>

namespace DataManager {

namespace {

// No number needs more; a longer doubtful field is none.
constexpr std::ptrdiff_t longestField = std::ptrdiff_t(1) << 20;

} // namespace

// The blank before a field is decoded with it, or else a byte-order mark in the middle of a line would be dropped as if
// it began a text.
QString FieldCursor::text() const
{
    const void* blank = std::memchr(m_position, ' ', static_cast<std::size_t>(m_end - m_position));
    const char* stop = blank == nullptr ? m_end : static_cast<const char*>(blank);
    if (stop - m_position > longestField) {
        return QString();
    }
    const char* start = m_position == m_begin ? m_position : m_position - 1;
    return QString::fromUtf8(start, static_cast<int>(stop - start));
}

double FieldCursor::doubtfulDouble() const
{
    return text().toDouble();
}

int FieldCursor::doubtfulInt() const
{
    return text().toInt();
}

} // namespace DataManager
