// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>
#include <QStringList>

/// Pieces of a web page. Texts are escaped here, and nowhere else.
namespace MeshQuality::Html {

/// Text between tags or inside of a quoted attribute.
QString escaped(const QString& text);
/// Six significant digits.
QString number(double value);
/// `<TAG>text</TAG>`.
QString element(const char* tag, const QString& text);

/// A table with a head, whose first column holds names and the others numbers.
class Table
{
public:
    explicit Table(const QStringList& head);
    void addRow(const QStringList& cells);
    QString text() const;

private:
    QString m_text;
};

} // namespace MeshQuality::Html
