// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QList>
#include <QString>
#include <QWidget>

class QLabel;
class QProgressBar;
class QToolButton;

namespace Workbench {

/// Shows what works in the background, how far it is, and a button that cancels it. Of several it shows the one that
/// began last.
class TaskBar : public QWidget
{
    Q_OBJECT

public:
    explicit TaskBar(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    enum class Kind : int
    {
        Meshing,
        Reading,
        Transfer
    };

    struct Task
    {
        Kind kind;
        QString text;
        int percent;
    };

    void listen();
    void retranslate();
    void begin(Kind kind, const QString& text);
    void setPercent(Kind kind, int percent);
    void end(Kind kind);
    void showLatest();
    void cancel();

    QList<Task> m_tasks;
    QLabel* m_label;
    QProgressBar* m_bar;
    QToolButton* m_cancel;
};

} // namespace Workbench
