// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/private/MeshHeader.h>

#include <QStringList>

namespace DataManager {

namespace {

// A line of a file that is no text at all may be of any length, and is given whole up to the size of a head.
constexpr std::ptrdiff_t longestLine = 4096;
static_assert(longestLine <= static_cast<std::ptrdiff_t>(LineSource::headSize));

} // namespace

bool MeshHeader::take(TextRange line)
{
    const QString text =
        QString::fromUtf8(line.begin, static_cast<int>(qMin(line.end - line.begin, longestLine))).trimmed();
    if (text.contains(QLatin1Char('$'))) {
        m_isFormatAnnounced = m_isFormatAnnounced || text.endsWith(QLatin1String("$MeshFormat"));
        m_section = text.endsWith(QLatin1String("$MeshFormat"))      ? Section::Format
                    : text.endsWith(QLatin1String("$PhysicalNames")) ? Section::GroupNames
                                                                     : Section::Other;
        if (text.endsWith(QLatin1String("$NOD"))) {
            m_version = QStringLiteral("1");
            return false;
        }
        return true;
    }
    if (m_section == Section::Format) {
        takeFormat(text);
        return isReadable();
    }
    if (m_section == Section::GroupNames) {
        takeGroupName(text);
    }
    return true;
}

void MeshHeader::takeFormat(const QString& line)
{
    const QStringList fields = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    m_version = fields.value(0);
    m_fileType = fields.value(1);
    m_isFormatBlank = fields.isEmpty();
    m_section = Section::Other;
}

void MeshHeader::takeGroupName(const QString& line)
{
    const int quote = line.indexOf(QLatin1Char('"'));
    const QStringList fields = line.left(quote).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (line.endsWith(QLatin1Char('"')) && fields.value(0) == QLatin1String("3")) {
        m_groupNames.insert(fields.value(1).toInt(), line.mid(quote + 1, line.size() - quote - 2));
    }
}

bool MeshHeader::isReadable() const
{
    // What is no number is 0.
    const double version = m_version.toDouble();
    return version >= 2.0 && version < 3.0 && m_fileType == QLatin1String("0");
}

QString MeshHeader::formatText() const
{
    if (m_version.isEmpty()) {
        return m_isFormatBlank       ? QStringLiteral("a file with a blank line after $MeshFormat")
               : m_isFormatAnnounced ? QStringLiteral("a file with nothing after $MeshFormat")
                                     : QStringLiteral("a file without $MeshFormat");
    }
    const bool isAscii = m_fileType == QLatin1String("0") || m_version == QLatin1String("1");
    const QString kind = isAscii ? QStringLiteral(" ASCII")
                         : m_fileType == QLatin1String("1")
                             ? QStringLiteral(" binary")
                             : QStringLiteral(" of file type '%1'").arg(m_fileType.left(20));
    return QStringLiteral("MSH %1%2").arg(m_version.left(20), kind);
}

} // namespace DataManager
