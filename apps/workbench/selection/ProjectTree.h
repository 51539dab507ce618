// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/selection/ProjectTreeContent.h>

#include <QMap>
#include <QPair>
#include <QTimer>
#include <QWidget>

class QMenu;
class QTreeWidget;
class QTreeWidgetItem;

namespace Workbench {

/// The project as a tree: volumes with their faces, named sets of them, meshes with their groups, materials, coordinate
/// systems. Lines are selected through the selection store, and follow it; marks show and hide.
class ProjectTree : public QWidget
{
    Q_OBJECT

public:
    explicit ProjectTree(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    using Item = QPair<int, int>;

    void listen();
    void retranslate();
    void rebuild();
    QTreeWidgetItem* makeItem(const ProjectTreeLine& line, const QString& path);
    void restoreExpansion(QTreeWidgetItem* item);
    QList<QTreeWidgetItem*> allItems() const;

    void select();
    void followSelection();
    QMap<int, QList<Item>> selectedLines() const;
    void showOrHide(QTreeWidgetItem* item);
    void selectSet(const QTreeWidgetItem* item);

    /// What a menu was opened for; the lines themselves may be made anew while it is open.
    struct Target
    {
        ProjectTreeLine::Kind kind;
        Item pair;
        QString text;
        bool isOwn;
    };

    void openMenu(const QPoint& position);
    void fillMenu(QMenu& menu, const Target& target);
    void fillVolumeMenu(QMenu& menu, const Target& target);
    void fillSetMenu(QMenu& menu, const Target& target);
    void rename(const Target& target);

    QTreeWidget* m_tree;
    QTimer m_rebuild;
    QTimer m_follow;
    QMap<QString, bool> m_isExpanded;
    bool m_isUpdating = false;
};

} // namespace Workbench
