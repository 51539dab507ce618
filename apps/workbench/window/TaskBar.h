// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QToolButton;

namespace Workbench {

/// Shows what works in the background, how far it is, and a button that cancels it.
class TaskBar : public QWidget
{
    Q_OBJECT

public:
    explicit TaskBar(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void begin(const QString& text);
    void end();
    static void cancel();

    QLabel* m_label;
    QProgressBar* m_bar;
    QToolButton* m_cancel;
};

} // namespace Workbench
