// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QMainWindow>

class QMenu;

namespace Workbench {

/// The window that places the views into docks and carries menu actions to the managers. Views know nothing of it.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

private:
    void createDocks();
    /// Puts a view into a dock of its own, whose title follows the view's window title. Docks of one area are tabs.
    void addDock(QWidget* view, Qt::DockWidgetArea area);

    QMenu* m_viewMenu = nullptr;
};

} // namespace Workbench
