// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/selection/ProjectTree.h>

#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/selection/NamedSelections.h>
#include <workbench/selection/SelectionUndo.h>

#include <datamanager/selection/SelectedDataManager.h>

#include <QScopedValueRollback>
#include <QSet>
#include <QTreeWidget>

using DataManager::SelectedDataManager;

namespace Workbench {
namespace {

int value(const QTreeWidgetItem* item, int place)
{
    return item->data(0, Qt::UserRole).toList().value(place).toInt();
}

ProjectTreeLine::Kind kindOf(const QTreeWidgetItem* item)
{
    return static_cast<ProjectTreeLine::Kind>(value(item, 0));
}

int modelOf(const QTreeWidgetItem* item)
{
    return value(item, 1);
}

QPair<int, int> pairOf(const QTreeWidgetItem* item)
{
    return {value(item, 2), value(item, 3)};
}

} // namespace

QMap<int, QList<ProjectTree::Item>> ProjectTree::selectedLines() const
{
    QMap<int, QList<Item>> lines;
    for (const QTreeWidgetItem* item : m_tree->selectedItems()) {
        if (modelOf(item) >= 0) {
            lines[modelOf(item)].append(pairOf(item));
        }
    }
    return lines;
}

// What was chosen last says what is being selected: lines of other kinds are deselected, as in the view.
void ProjectTree::select()
{
    const QTreeWidgetItem* current = m_tree->currentItem();
    if (m_isUpdating || current == nullptr || modelOf(current) < 0) {
        return;
    }
    const QScopedValueRollback<bool> updating(m_isUpdating, true);
    const SelectionUndo::Burst oneStep;
    const auto model = static_cast<BaseModule::SelectModel>(modelOf(current));
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    if (selection->getSelectModel() != model) {
        selection->setSelectModelInMainWindow(model);
    }
    const QList<Item> wanted = selectedLines().value(model);
    const QList<Item> present = selection->getSelectedDataBySelectedModel(model);
    QList<Item> gone;
    for (const Item& item : present) {
        if (!wanted.contains(item)) {
            gone.append(item);
        }
    }
    if (!gone.isEmpty()) {
        selection->removeSelectedTargetListByProjectTree(model, gone);
    }
    selection->addSelectedTargetListByProjectTree(model, wanted);
}

void ProjectTree::followSelection()
{
    const QScopedValueRollback<bool> updating(m_isUpdating, true);
    QMap<int, QSet<Item>> selected;
    const SelectedDataManager* selection = SelectedDataManager::getInstance();
    for (QTreeWidgetItem* item : allItems()) {
        const int model = modelOf(item);
        if (model >= 0 && !selected.contains(model)) {
            const QList<Item> pairs =
                selection->getSelectedDataBySelectedModel(static_cast<BaseModule::SelectModel>(model));
            selected.insert(model, QSet<Item>(pairs.begin(), pairs.end()));
        }
        if (model >= 0) {
            item->setSelected(selected[model].contains(pairOf(item)));
        }
    }
    const QList<QTreeWidgetItem*> items = m_tree->selectedItems();
    if (!items.isEmpty()) {
        m_tree->scrollToItem(items.last());
    }
}

void ProjectTree::showOrHide(QTreeWidgetItem* item)
{
    if (m_isUpdating) {
        return;
    }
    const bool isShown = item->checkState(0) == Qt::Checked;
    if (kindOf(item) == ProjectTreeLine::Kind::Volume) {
        GeometryManager::instance()->showComponents({pairOf(item).first}, isShown);
    } else if (kindOf(item) == ProjectTreeLine::Kind::Group) {
        MeshManager::instance()->showGroups({{pairOf(item).first, pairOf(item).second}}, isShown);
    }
}

void ProjectTree::selectSet(const QTreeWidgetItem* item)
{
    if (kindOf(item) == ProjectTreeLine::Kind::Set) {
        NamedSelections::selectSet(pairOf(item).first);
    }
}

} // namespace Workbench
