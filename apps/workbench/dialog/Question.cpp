// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/dialog/Question.h>

#include <QEvent>
#include <QLabel>

namespace Workbench {

Question::Question(const QString& name, const std::function<Texts()>& texts, const std::function<void()>& onYes,
                   QWidget* parent)
    : QMessageBox(QMessageBox::Question, {}, {}, Yes | Cancel, parent), m_texts(texts)
{
    setObjectName(name);
    setAttribute(Qt::WA_DeleteOnClose);
    setDefaultButton(Cancel);
    write();
    connect(this, &QMessageBox::finished, this, [onYes](int answer) {
        if (answer == Yes) {
            onYes();
        }
    });
}

void Question::write()
{
    const Texts texts = m_texts();
    setWindowTitle(texts.title);
    setText(texts.question);
    setInformativeText(texts.information);
    setTextFormat(Qt::PlainText);
    findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"))->setTextFormat(Qt::PlainText);
}

void Question::changeEvent(QEvent* event)
{
    QMessageBox::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        write();
    }
}

} // namespace Workbench
