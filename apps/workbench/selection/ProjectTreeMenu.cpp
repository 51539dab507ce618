// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/selection/ProjectTree.h>

#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/selection/NamedSelections.h>

#include <QInputDialog>
#include <QMenu>
#include <QTreeWidget>

namespace Workbench {

void ProjectTree::openMenu(const QPoint& position)
{
    const QTreeWidgetItem* item = m_tree->itemAt(position);
    if (item == nullptr) {
        return;
    }
    const QVariantList values = item->data(0, Qt::UserRole).toList();
    const Target target{static_cast<ProjectTreeLine::Kind>(values.value(0).toInt()),
                        {values.value(2).toInt(), values.value(3).toInt()},
                        item->text(0),
                        values.value(4).toBool()};
    QMenu menu(this);
    fillMenu(menu, target);
    if (!menu.isEmpty()) {
        menu.exec(m_tree->viewport()->mapToGlobal(position));
    }
}

void ProjectTree::fillMenu(QMenu& menu, const Target& target)
{
    switch (target.kind) {
    case ProjectTreeLine::Kind::Volume:
        return fillVolumeMenu(menu, target);
    case ProjectTreeLine::Kind::Set:
        return fillSetMenu(menu, target);
    case ProjectTreeLine::Kind::Group:
        menu.addAction(tr("Rename…"), this, [this, target] { rename(target); });
        if (target.isOwn) {
            menu.addAction(tr("Delete"), this, [target] {
                MeshManager::instance()->removeGroups({{target.pair.first, target.pair.second}});
            });
        }
        return;
    case ProjectTreeLine::Kind::UnreadMesh:
        menu.addAction(tr("Read"), this, [] { MeshManager::instance()->readUnread(); });
        return;
    default:
        return;
    }
}

void ProjectTree::fillVolumeMenu(QMenu& menu, const Target& target)
{
    GeometryManager* geometry = GeometryManager::instance();
    const int componentID = target.pair.first;
    menu.addAction(tr("Show only this"), this, [geometry, componentID] {
        QList<int> others = geometry->findComponents(QString());
        others.removeAll(componentID);
        geometry->showComponents(others, false);
        geometry->showComponents({componentID}, true);
    });
    menu.addAction(tr("Show all"), this,
                   [geometry] { geometry->showComponents(geometry->findComponents(QString()), true); });
    menu.addAction(tr("Hide"), this, [geometry, componentID] { geometry->showComponents({componentID}, false); });
    menu.addAction(tr("Rename…"), this, [this, target] { rename(target); });
}

void ProjectTree::fillSetMenu(QMenu& menu, const Target& target)
{
    GeometryManager* geometry = GeometryManager::instance();
    const int setID = target.pair.first;
    menu.addAction(tr("Select"), this, [setID] { NamedSelections::selectSet(setID); });
    menu.addAction(tr("Show"), this, [geometry, setID] { geometry->showSets({setID}, true); });
    menu.addAction(tr("Hide"), this, [geometry, setID] { geometry->showSets({setID}, false); });
    menu.addAction(tr("Rename…"), this, [this, target] { rename(target); });
    menu.addAction(tr("Delete"), this, [geometry, setID] { geometry->removeSets({setID}); });
}

void ProjectTree::rename(const Target& target)
{
    bool isConfirmed = false;
    const QString text =
        QInputDialog::getText(this, tr("Rename"), tr("New name:"), QLineEdit::Normal, target.text, &isConfirmed);
    const QString name = text.trimmed();
    if (!isConfirmed) {
        return;
    }
    if (target.kind == ProjectTreeLine::Kind::Volume) {
        NamedSelections::renameVolume(target.pair.first, name);
    } else if (target.kind == ProjectTreeLine::Kind::Set) {
        NamedSelections::renameSet(target.pair.first, name);
    } else {
        NamedSelections::renameGroup(target.pair.first, target.pair.second, name);
    }
}

} // namespace Workbench
