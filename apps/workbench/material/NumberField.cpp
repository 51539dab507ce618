// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/NumberField.h>

#include <materials/NumberText.h>
#include <workbench/material/NumberReading.h>

#include <QEvent>

namespace Workbench {

NumberField::NumberField(QWidget* parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textChanged, this, &NumberField::showRefusal);
}

void NumberField::setValue(double value)
{
    m_shownText = Materials::shortestText(value);
    m_shownValue = value;
    setText(m_shownText);
    setCursorPosition(0);
}

double NumberField::value() const
{
    return isEdited() ? readNumber(text()).value : m_shownValue;
}

bool NumberField::isEdited() const
{
    return text() != m_shownText;
}

QString NumberField::refusal() const
{
    if (!isEdited() && !m_shownText.isEmpty()) {
        return {};
    }
    switch (readNumber(text()).fault) {
    case NumberReading::None:
        break;
    case NumberReading::Empty:
        return tr("A number is missing.");
    case NumberReading::HasComma:
        return tr("'%1' has a comma. Write the decimal mark as a point, and thousands without a mark.").arg(text());
    case NumberReading::NotANumber:
        return tr("'%1' is not a decimal number such as 0.5 or 1e-12.").arg(text());
    case NumberReading::NotFinite:
        return tr("'%1' is not a finite number.").arg(text());
    case NumberReading::TooLarge:
        return tr("'%1' is too large: the largest number is about 1.8e308.").arg(text());
    case NumberReading::TooSmall:
        return tr("'%1' would become 0: the smallest number above it is about 5e-324.").arg(text());
    }
    return {};
}

void NumberField::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && !toolTip().isEmpty()) {
        setToolTip(refusal());
    }
    QLineEdit::changeEvent(event);
}

void NumberField::showRefusal()
{
    const QString reason = refusal();
    setToolTip(reason);
    setStyleSheet(reason.isEmpty() ? QString() : QStringLiteral("QLineEdit { color: #c00000; }"));
}

} // namespace Workbench
