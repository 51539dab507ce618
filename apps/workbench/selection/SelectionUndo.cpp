// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/selection/SelectionUndo.h>

#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/project/Project.h>

#include <basemodule/IBaseSignal.h>
#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>
#include <datamodel/SelectedDataBase.h>

#include <QScopedValueRollback>
#include <QUndoStack>

using BaseModule::IBaseSignal;
using DataManager::SelectedDataManager;

namespace Workbench {
namespace {

constexpr int mostSteps = 100;

SelectionUndo::Selection currentSelection()
{
    SelectionUndo::Selection selection;
    for (const DataModel::SelectedDataBase* item : SelectedDataManager::getInstance()->getSelectedDataList()) {
        selection[item->getSelectModel()].append({item->getFirstID(), item->getSecondID()});
    }
    return selection;
}

// What of `pairs` the other list does not hold.
QList<QPair<int, int>> without(const QList<QPair<int, int>>& pairs, const QList<QPair<int, int>>& other)
{
    const QSet<QPair<int, int>> known(other.begin(), other.end());
    QList<QPair<int, int>> rest;
    for (const QPair<int, int>& pair : pairs) {
        if (!known.contains(pair)) {
            rest.append(pair);
        }
    }
    return rest;
}

// What may not be picked, because it is hidden or gone, does not come back either.
QList<QPair<int, int>> allowed(int selectModel, const QList<QPair<int, int>>& pairs)
{
    QList<QPair<int, int>> rest;
    for (const QPair<int, int>& pair : pairs) {
        bool isAllowed = true;
        Q_EMIT IBaseSignal::getInstance()->signal_checkHighLight(isAllowed, selectModel, pair.first, pair.second);
        if (isAllowed) {
            rest.append(pair);
        }
    }
    return rest;
}

class SelectionStep : public QUndoCommand
{
public:
    SelectionStep(SelectionUndo* undo, const SelectionUndo::Selection& before, const SelectionUndo::Selection& after)
        : QUndoCommand(SelectionUndo::tr("selection")), m_undo(undo), m_before(before), m_after(after)
    {
    }

    void undo() override { m_undo->restore(m_before); }
    // Called when the step is pushed, too, and what it describes is done already.
    void redo() override
    {
        if (m_isDone) {
            m_undo->restore(m_after);
        }
        m_isDone = true;
    }

private:
    SelectionUndo* m_undo;
    bool m_isDone = false;
    SelectionUndo::Selection m_before;
    SelectionUndo::Selection m_after;
};

} // namespace

SelectionUndo* SelectionUndo::instance()
{
    static auto* const undo = new SelectionUndo;
    return undo;
}

SelectionUndo::SelectionUndo() : m_stack(new QUndoStack(this)), m_known(currentSelection())
{
    m_stack->setUndoLimit(mostSteps);
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_refreshActionOnSelectDataChanged, this,
            &SelectionUndo::noteChange);
    connect(Project::instance(), &Project::signal_opened, this, &SelectionUndo::forget);
    connect(MeshManager::instance(), &MeshManager::signal_kernalDataListDeleted, this, &SelectionUndo::forget);
}

SelectionUndo::Burst::~Burst()
{
    --instance()->m_bursts;
    instance()->noteChange();
}

void SelectionUndo::noteChange()
{
    if (m_bursts > 0) {
        return;
    }
    const Selection now = currentSelection();
    if (!m_isRestoring && now != m_known) {
        m_stack->push(new SelectionStep(this, m_known, now));
    }
    m_known = now;
}

void SelectionUndo::select(const Selection& selection)
{
    const Selection before = currentSelection();
    restore(selection);
    const Selection now = currentSelection();
    if (now != before) {
        m_stack->push(new SelectionStep(this, before, now));
    }
}

void SelectionUndo::restore(const Selection& selection)
{
    const QScopedValueRollback<bool> restoring(m_isRestoring, true);
    SelectedDataManager* store = SelectedDataManager::getInstance();
    const Selection now = currentSelection();
    if (!selection.isEmpty() && !selection.contains(store->getSelectModel())) {
        store->setSelectModelInMainWindow(static_cast<BaseModule::SelectModel>(selection.firstKey()));
    }
    for (auto it = now.cbegin(); it != now.cend(); ++it) {
        const QList<QPair<int, int>> removed = without(it.value(), selection.value(it.key()));
        if (!removed.isEmpty()) {
            store->removeSelectedTargetList(static_cast<BaseModule::SelectModel>(it.key()), removed);
        }
    }
    for (auto it = selection.cbegin(); it != selection.cend(); ++it) {
        const QList<QPair<int, int>> added = allowed(it.key(), without(it.value(), now.value(it.key())));
        if (!added.isEmpty()) {
            store->addSelectedTargetList(static_cast<BaseModule::SelectModel>(it.key()), added);
        }
    }
    m_known = currentSelection();
}

void SelectionUndo::forget()
{
    m_stack->clear();
    m_known = currentSelection();
}

} // namespace Workbench
