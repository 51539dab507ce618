// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QTableWidget;

namespace Workbench {

/// What the thresholds of the profile find in the mesh, a row a threshold, with where it comes from.
class CheckTable : public QWidget
{
    Q_OBJECT

public:
    explicit CheckTable(QWidget* parent = nullptr);

    /// The worst verdict in one word; empty without a mesh.
    static QString verdictText();

protected:
    void changeEvent(QEvent* event) override;

private:
    void arrange();
    void retranslate();
    void fill();
    void fillRow(int row);
    void openProfile();
    void select();

    QLabel* m_profile;
    QPushButton* m_open;
    QPushButton* m_builtIn;
    QPushButton* m_select;
    QTableWidget* m_table;
};

} // namespace Workbench
