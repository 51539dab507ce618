// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/dialog/FieldLabels.h>

#include <QFormLayout>
#include <QLabel>

namespace Workbench {

QLabel* FieldLabels::newLabel(QWidget* field)
{
    m_labels.append(new QLabel);
    m_labels.last()->setBuddy(field);
    return m_labels.last();
}

void FieldLabels::addRow(QWidget* field)
{
    m_form->addRow(newLabel(field), field);
}

void FieldLabels::addRow(QLayout* fields, QWidget* first)
{
    m_form->addRow(newLabel(first), fields);
}

void FieldLabels::setTexts(const QStringList& texts)
{
    for (int row = 0; row < m_labels.size(); ++row) {
        m_labels.at(row)->setText(texts.value(row));
    }
}

} // namespace Workbench
