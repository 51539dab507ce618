// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QWidget>

class QPlainTextEdit;
class QTabWidget;
class QTreeWidget;

namespace Workbench {

/// The messages that managers and the library have for the user, with their time, the latest last; and what the mesher
/// prints.
class MessagePanel : public QWidget
{
    Q_OBJECT

public:
    explicit MessagePanel(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void add(int type, const QString& text);

    QTabWidget* m_tabs;
    QTreeWidget* m_messages;
    QPlainTextEdit* m_output;
};

} // namespace Workbench
