// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// Comma-separated values as in RFC 4180: cells with a comma, a quote or a line end stand in quotes.
namespace Materials {

struct CsvRow
{
    int line; ///< where the row begins, counted from 1
    QStringList cells;
};

/// One line, with its end.
QString csvLine(const QStringList& cells);

/// Lines without any cell are passed over. A quote that is never closed ends with the text.
QList<CsvRow> parseCsv(const QString& text);

} // namespace Materials
