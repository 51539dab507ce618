// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QSpinBox;
class QTableWidget;

namespace Workbench {

/// The worst elements by the metric, the worst first. A double click or Enter makes the 3-D view look at one.
class WorstList : public QWidget
{
    Q_OBJECT

public:
    explicit WorstList(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void fill();
    void fillRow(int row);
    void focus(int row);
    void select();
    void openSaving();
    void save(const QString& path) const;

    QLabel* m_label;
    QSpinBox* m_count;
    QPushButton* m_select;
    QPushButton* m_save;
    QTableWidget* m_table;
};

} // namespace Workbench
