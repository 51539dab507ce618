// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QMessageBox>

#include <functional>

namespace Workbench {

/// A question that is answered with yes or, as by Escape and Enter, with cancel. It destroys itself when it is
/// answered. Its texts are plain, because names are no markup.
class Question : public QMessageBox
{
    Q_OBJECT

public:
    struct Texts
    {
        QString title;
        QString question;
        QString information;
    };

    /// `texts` is asked again when the language changes, `onYes` called when the answer is yes.
    Question(const QString& name, const std::function<Texts()>& texts, const std::function<void()>& onYes,
             QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void write();

    std::function<Texts()> m_texts;
};

} // namespace Workbench
