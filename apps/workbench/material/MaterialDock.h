// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QSplitter;

namespace Workbench {

class LibraryPane;

/// Both material libraries side by side, and the assignment of project materials to the selected volumes. It follows
/// every change made through the workbench, and reads both libraries again whenever it is shown or its window becomes
/// active, because the libraries tell of few changes by others.
class MaterialDock : public QWidget
{
    Q_OBJECT

public:
    explicit MaterialDock(QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void layOut();
    void retranslate();
    void read();
    void updateAssignment();
    void assign();
    void unassign();

    LibraryPane* m_software;
    LibraryPane* m_project;
    QLabel* m_selection;
    QPushButton* m_assign;
    QPushButton* m_unassign;
};

} // namespace Workbench
