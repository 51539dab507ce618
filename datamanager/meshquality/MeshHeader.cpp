// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/private/MeshHeader.h>

#include <QStringList>

namespace DataManager {

namespace {

// A line of a file that is no text at all may be of any length.
constexpr std::ptrdiff_t longestLine = 4096;

} // namespace

bool MeshHeader::take(TextRange line)
{
    const QString text =
        QString::fromUtf8(line.begin, static_cast<int>(qMin(line.end - line.begin, longestLine))).trimmed();
    if (text.contains(QLatin1Char('$'))) {
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
    m_section = Section::Other;
}

void MeshHeader::takeGroupName(const QString& line)
{
    const int quote = line.indexOf(QLatin1Char('"'));
    const QStringList fields = line.left(quote).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (quote > 0 && line.endsWith(QLatin1Char('"')) && fields.value(0) == QLatin1String("3")) {
        m_groupNames.insert(fields.value(1).toInt(), line.mid(quote + 1, line.size() - quote - 2));
    }
}

bool MeshHeader::isReadable() const
{
    bool isNumber = false;
    const double version = m_version.toDouble(&isNumber);
    return isNumber && version >= 2.0 && version < 3.0 && m_fileType == QLatin1String("0");
}

QString MeshHeader::formatText() const
{
    if (m_version.isEmpty()) {
        return QStringLiteral("a file without $MeshFormat");
    }
    const QString kind = m_fileType == QLatin1String("1") ? QStringLiteral(" binary") : QStringLiteral(" ASCII");
    return QStringLiteral("MSH %1%2").arg(m_version.left(20), kind);
}

} // namespace DataManager
