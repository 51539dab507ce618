// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/datamanager_export.h>

#include <basemodule/SelectModel.h>

#include <QList>
#include <QObject>
#include <QPair>

#include <deque>

namespace DataModel {
class SelectedDataBase;
}

namespace DataManager {

/// What the user has selected in the 3-D view or the project tree, and what a click selects (the select model). Every
/// change is told on the signal hub; docs/selection.md lists the signals of each call in their order.
///
/// An item is a pair of identifiers under a select model. It matches (model, a, b) when its model equals `model`, and
/// a is negative or its first identifier, and b is negative or its second one: a negative identifier is a wildcard.
///
/// Signals are delivered synchronously. A call changes the store first and tells of it then, so each of its signals
/// shows the store as the call left it, unless an earlier listener has called back and changed it again; lists of items
/// in signals are those of that moment. Two kinds of call do it step by step: the switches of the select model deselect
/// the items of one model after the other, and clearAllSelectedTarget one item after the other. A listener may call
/// back into the store from any signal; its call takes full effect before it returns. User-interface thread only.
class DATAMANAGER_EXPORT SelectedDataManager : public QObject
{
    Q_OBJECT

public:
    /// The store, created by the first call and never destroyed. Call init() once before using it.
    static SelectedDataManager* getInstance();
    /// Fills the pool of records, allows switching the select model and turns the highlight check off.
    void init();

    // "Emits" names the hub's signals in their order, without "signal_".

    /// Selects the pairs that match no item yet, in their order; later pairs of the list see the earlier ones. Emits,
    /// if anything was added, setViewObjectListState, updateGeomrtryActorTransparency, and updateViewObjectState for
    /// each pair added; always refreshActionOnSelectDataChanged.
    void addSelectedTargetList(BaseModule::SelectModel model, QList<QPair<int, int>> targetList);
    /// For each pair, deselects the first item that it matches. A pair with a wildcard removes one item, too. Emits the
    /// same as adding does, with the pairs as given.
    void removeSelectedTargetList(BaseModule::SelectModel model, QList<QPair<int, int>> targetList);
    /// `addSelectedTargetList` for the project tree: ignored while a dialog has fixed the current select model to
    /// another one than 0, 1, 7 or 10.
    void addSelectedTargetListByProjectTree(BaseModule::SelectModel model, QList<QPair<int, int>> targetList);
    /// `removeSelectedTargetList` for the project tree, under the same condition.
    void removeSelectedTargetListByProjectTree(BaseModule::SelectModel model, QList<QPair<int, int>> targetList);
    /// Deselects all items of the model whose first identifier equals one of the list, which has no wildcards. An item
    /// that itself holds a negative identifier takes along what matches it as a wildcard. The signal names an item once
    /// for each time that its identifier is in the list: k repetitions of an identifier of n items make k * n pairs.
    /// Emits setViewObjectListState only, also with an empty list.
    void removeSelectedTargets(BaseModule::SelectModel model, QList<int> firstIDList);
    /// Removes all items of the model, without a signal.
    void deleteSelectedData(BaseModule::SelectModel model);
    /// Removes all items that match (model, firstID, -1), without a signal.
    void deleteSelectedData(BaseModule::SelectModel model, int firstID);
    /// Deselects everything, item by item. Emits updateViewObjectState for each; then updateGeomrtryActorTransparency,
    /// clearAllHighLight, refreshActionOnSelectDataChanged. At the signal of an item its record is free and has
    /// identifiers -1, and the list still holds it and all others. The list is emptied after the last of these signals;
    /// if a listener calls anything that changes the list, the records that are free leave it first. Items that a
    /// listener selects meanwhile stay selected. A clearing that a listener begins meanwhile takes out all items before
    /// its first signal.
    void clearAllSelectedTarget();

    /// The pairs of the model's items, in order of selection.
    QList<QPair<int, int>> getSelectedDataBySelectedModel(BaseModule::SelectModel model) const;
    /// The items in order of selection. The records stay owned by the store, which reuses them for later items.
    QList<DataModel::SelectedDataBase*> getSelectedDataList() const;
    /// The number of items.
    int getDataCount() const;

    /// What a click selects.
    BaseModule::SelectModel getSelectModel() const;
    /// Writes what a click selects to `model`.
    void getSelectModel(BaseModule::SelectModel& model) const;
    /// Selects under another model for the lifetime of a dialog: remembers the current model as that of the main
    /// window, deselects the items of other models, and then locks the model, which is unlocked until then. A second
    /// dialog makes the first one's model the remembered one. Emits, still unlocked, the removals and
    /// updateInteraction; then, locked, updateIsCanSwitchSelectModel, updateMenuActionState.
    void setSelectModelInDialog(BaseModule::SelectModel model);
    /// Switches the model and deselects the items of other models; ignored while a dialog has locked it. This and the
    /// other switches cost in proportion to the number of items times that of the models to deselect. Emits the
    /// removals of each other model's items in ascending order of the models, updateInteraction, updateMenuActionState.
    void setSelectModelInMainWindow(BaseModule::SelectModel model);
    /// Unlocks the model and returns to that of the main window, or locks it as it is. Emits, when it unlocks, the
    /// removals and updateInteraction; then updateMenuActionState, updateIsCanSwitchSelectModel.
    void setSwitchSelectModelEnable(bool isEnable);
    /// False while a dialog has locked the model.
    bool canSwitchSelectModel() const;
    /// Whether a click first asks signal_checkHighLight if the object may be highlighted.
    void setHighLightCheckEnable(bool isEnable);
    /// Deselects the first item that matches (current model, firstID, secondID), or else selects the pair. Emits
    /// setViewObjectListState, updateViewObjectState; then, when it selects, refreshActionOnSelectDataChanged and
    /// updateGeomrtryActorTransparency, and when it deselects, these two the other way round. With the highlight check
    /// on, first checkHighLight; when a listener refuses, only updateGeomrtryActorTransparency follows.
    void clickViewObject(int firstID, int secondID);

    /// Whether an item with this first identifier is selected under a geometry model (0 to 5).
    bool getGeometryIsHighLight(int id) const;
    /// Whether one is selected under a mesh model (7, 9 or 10).
    bool getMeshIsHighLight(int id) const;
    /// Whether one is selected under the mesh group model (10).
    bool getMeshGroupIsHighLight(int id) const;

private:
    SelectedDataManager() = default;
    ~SelectedDataManager() override;

    void addSelectData(BaseModule::SelectModel model, int firstID, int secondID);
    void removeSelectData(BaseModule::SelectModel model, int firstID, int secondID);
    bool hasSameSelectedData(BaseModule::SelectModel model, int firstID, int secondID) const;
    void setSelectModel(BaseModule::SelectModel model);

    static SelectedDataManager* m_instance;

    QList<DataModel::SelectedDataBase*> m_selectedDataList;
    BaseModule::SelectModel m_selectModel = BaseModule::SelectModel(0);
    bool m_isPoolClosed = false;
    std::deque<DataModel::SelectedDataBase*> m_dataPool;
    bool m_isHighLightCheckEnable = false;
    bool m_isCanSwitchSelectModel = true;
    BaseModule::SelectModel m_mainWindowSelectModel = BaseModule::SelectModel(0);
};

} // namespace DataManager
