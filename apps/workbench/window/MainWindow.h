// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

// Its enumeration is not declared here: lupdate takes that for a class and loses the one below.
#include <workbench/window/Icons.h>
#include <workbench/window/KeptSettings.h>

#include <QList>
#include <QMainWindow>

#include <functional>

class QAction;
class QActionGroup;
class QDockWidget;
class QMenu;
class QToolBar;

namespace Workbench {

/// The window that places the views into docks and carries menu actions to the managers. Views know nothing of it.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Opens a project, a mesh or a geometry, by the suffix of its name; a project after asking for unsaved work.
    void openFile(const QString& path);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// A text that is translated again when the language changes.
    struct Text
    {
        std::function<void(const QString& text)> set;
        const char* source;
    };

    void createDocks();
    /// Puts a view into a dock of its own, whose title follows the view's window title. It becomes a tab of the last
    /// dock of its area, or, where it `isBeside`, stands below it.
    QDockWidget* addDock(QWidget* view, Qt::DockWidgetArea area, bool isBeside = false);

    void createMenus();
    void createFileMenu();
    void createEditMenu();
    void createSelectMenu();
    void createViewMenu();
    void createDisplayActions(QMenu* menu);
    void createMeshMenu();
    void createSettingsMenu();
    void createToolBars();
    QMenu* addMenu(const char* source);
    QAction* addAction(QMenu* menu, const char* source, const std::function<void()>& run);
    QAction* addModeAction(QMenu* menu, const char* source, QActionGroup* group, int value);
    void listen();
    void updateActions();
    void updateTitle();
    void updateRecent();
    void showMessage(int type, const QString& text);
    void retranslate();

    bool mayLeave();
    bool mayDiscard();
    static QString stopsMeshing();
    /// Both return at once, save() asking for a path where there is none; false when the user gives none.
    bool save();
    bool saveAs();
    bool waitForSaving();
    /// Empty when the user gives none.
    QString askForNewFile(const QString& title, const QString& filter, const QString& suffix);
    void open();
    void openProject(const QString& path);
    void openGeometry(const QString& path);
    void mesh();
    void nameSelection();
    void saveScreenshot();
    void restoreLayout();

    const KeptSettings m_settings;
    QList<Text> m_texts;
    QMenu* m_recentMenu = nullptr;
    QMenu* m_docksMenu = nullptr;
    QDockWidget* m_messages = nullptr;
    QActionGroup* m_interactionModes = nullptr;
    QActionGroup* m_selectModels = nullptr;
    QAction* m_edges = nullptr;
    QAction* m_transparent = nullptr;
    QAction* m_mesh = nullptr;
    QAction* m_clearSelection = nullptr;
    QAction* m_nameSelection = nullptr;
    QList<QAction*> m_toolActions;
};

} // namespace Workbench
