// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QTimer>
#include <QWidget>

class QTableWidget;

namespace Workbench {

/// Shows the properties of what is selected.
class PropertyTable : public QWidget
{
    Q_OBJECT

public:
    explicit PropertyTable(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void listen();
    void retranslate();
    void fill();

    QTableWidget* m_table;
    QTimer m_timer;
};

} // namespace Workbench
