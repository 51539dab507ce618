// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QList>
#include <QStringList>

class QFormLayout;
class QLabel;
class QLayout;
class QWidget;

namespace Workbench {

/// The labels of the rows of a form, whose texts can be written again when the language changes. A label belongs to its
/// field: the field takes its accessible name from it, and the focus by its mnemonic.
class FieldLabels
{
public:
    explicit FieldLabels(QFormLayout* form) : m_form(form) {}

    QFormLayout* form() const { return m_form; }

    /// A row of one field, or of a layout whose label belongs to its `first` field.
    void addRow(QWidget* field);
    void addRow(QLayout* fields, QWidget* first);
    /// Texts by row.
    void setTexts(const QStringList& texts);

private:
    QLabel* newLabel(QWidget* field);

    QFormLayout* m_form;
    QList<QLabel*> m_labels;
};

} // namespace Workbench
