// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/dialog/Refusal.h>

#include <QAccessible>

namespace Workbench {

Refusal::Refusal(QWidget* parent) : QLabel(parent)
{
    setObjectName(QStringLiteral("refusal"));
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setStyleSheet(QStringLiteral("color: #c00000;"));
}

void Refusal::tell(const QString& reason, QWidget* field)
{
    setText(reason);
    field->setFocus();
    QAccessibleEvent told(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

} // namespace Workbench
