// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/CsvText.h>

namespace Materials {

namespace {

QString quoted(const QString& cell)
{
    const bool isPlain = !cell.contains(QLatin1Char(',')) && !cell.contains(QLatin1Char('"')) &&
                         !cell.contains(QLatin1Char('\n')) && !cell.contains(QLatin1Char('\r'));
    return isPlain
               ? cell
               : QLatin1Char('"') + QString(cell).replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
}

/// Takes one character after the other.
class CsvParser
{
public:
    void take(QChar character, QChar next)
    {
        m_line += character == QLatin1Char('\n') ? 1 : 0;
        if (m_isSkipping) {
            m_isSkipping = false;
        } else if (m_isQuoted) {
            takeQuoted(character, next);
        } else if (character == QLatin1Char('"')) {
            m_isQuoted = true;
            m_hasCell = true;
        } else if (character == QLatin1Char(',')) {
            endCell();
            m_hasCell = true;
        } else if (character == QLatin1Char('\n')) {
            endRow();
        } else if (character != QLatin1Char('\r') || next != QLatin1Char('\n')) {
            m_cell += character;
            m_hasCell = true;
        }
    }

    QList<CsvRow> finish()
    {
        endRow();
        return m_rows;
    }

private:
    void takeQuoted(QChar character, QChar next)
    {
        if (character != QLatin1Char('"')) {
            m_cell += character;
        } else if (next == QLatin1Char('"')) {
            m_cell += character;
            m_isSkipping = true;
        } else {
            m_isQuoted = false;
        }
    }

    void endCell()
    {
        m_cells.append(m_cell);
        m_cell.clear();
    }

    void endRow()
    {
        if (m_hasCell) {
            endCell();
            m_rows.append({m_firstLine, m_cells});
        }
        m_cells.clear();
        m_cell.clear();
        m_hasCell = false;
        m_firstLine = m_line;
    }

    QList<CsvRow> m_rows;
    QStringList m_cells;
    QString m_cell;
    int m_line = 1;
    int m_firstLine = 1;
    bool m_hasCell = false;
    bool m_isQuoted = false;
    bool m_isSkipping = false; ///< the second of two quotes
};

} // namespace

QString csvLine(const QStringList& cells)
{
    QStringList texts;
    for (const QString& cell : cells) {
        texts.append(quoted(cell));
    }
    return texts.join(QLatin1Char(',')) + QLatin1Char('\n');
}

QList<CsvRow> parseCsv(const QString& text)
{
    CsvParser parser;
    for (int i = 0; i < text.size(); ++i) {
        parser.take(text.at(i), i + 1 < text.size() ? text.at(i + 1) : QChar());
    }
    return parser.finish();
}

} // namespace Materials
