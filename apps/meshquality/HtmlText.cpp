// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/HtmlText.h>

#include <meshquality/NumberText.h>

namespace MeshQuality::Html {

namespace {

QString row(const char* cellTag, const QStringList& cells)
{
    QString text;
    for (const QString& cell : cells) {
        text += element(cellTag, cell);
    }
    return QStringLiteral("<tr>") + text + QStringLiteral("</tr>\n");
}

} // namespace

QString escaped(const QString& text)
{
    return text.toHtmlEscaped().replace(QLatin1Char('\''), QLatin1String("&#39;"));
}

QString number(double value)
{
    return QString::fromLatin1(sixDigits(value));
}

QString element(const char* tag, const QString& text)
{
    const QString name = QString::fromLatin1(tag);
    return QLatin1Char('<') + name + QLatin1Char('>') + escaped(text) + QStringLiteral("</") + name + QLatin1Char('>');
}

Table::Table(const QStringList& head)
    : m_text(QStringLiteral("<table><thead>") + row("th", head) + QStringLiteral("</thead><tbody>\n"))
{
}

void Table::addRow(const QStringList& cells)
{
    m_text += row("td", cells);
}

QString Table::text() const
{
    return m_text + QStringLiteral("</tbody></table>\n");
}

} // namespace MeshQuality::Html
