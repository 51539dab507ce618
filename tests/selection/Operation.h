// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/SelectModel.h>

#include <QList>
#include <QPair>
#include <QString>

#include <array>
#include <vector>

/// A quick generator whose whole state is one number, so that each operation can be drawn again from its own.
class Dice
{
public:
    explicit Dice(quint64 seed) : m_state(seed) {}

    quint64 next()
    {
        quint64 value = m_state += 0x9e3779b97f4a7c15U;
        value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9U;
        value = (value ^ (value >> 27)) * 0x94d049bb133111ebU;
        return value ^ (value >> 31);
    }

    /// From `low` to `high`, both included.
    int roll(int low, int high) { return low + int(next() % quint64(high - low + 1)); }

private:
    quint64 m_state;
};

/// How long the lists of the operations are, and from which identifiers they draw.
struct Scale
{
    int shortList;
    int longList;
    int identifiers;
    int wildcardPerMille;
};

/// One call on a selection store, with its arguments.
struct Operation
{
    enum Kind
    {
        Click,
        AddList,
        RemoveList,
        AddByTree,
        RemoveByTree,
        RemoveTargets,
        DeleteModel,
        DeleteFirst,
        Clear,
        MainWindow,
        Dialog,
        Enable,
        Check,
        KindCount
    };

    static Operation draw(Dice& dice, const Scale& scale)
    {
        // The frequent operations stand several times; clearing is rare, so that selections grow.
        static constexpr std::array<Kind, 32> weights{
            Click,         Click,       Click,       Click,       Click,      Click,      Click,        Click,
            AddList,       AddList,     AddList,     AddList,     AddList,    AddList,    AddList,      AddByTree,
            AddByTree,     RemoveList,  RemoveList,  RemoveList,  RemoveList, RemoveList, RemoveByTree, RemoveTargets,
            RemoveTargets, DeleteFirst, DeleteFirst, DeleteModel, Clear,      MainWindow, Dialog,       Enable};
        Operation operation;
        operation.kind = dice.roll(0, 63) == 0 ? Check : weights[std::size_t(dice.roll(0, 31))];
        static constexpr std::array<int, 6> models{2, 2, 2, 7, 10, 8};
        operation.model = BaseModule::SelectModel(models[std::size_t(dice.roll(0, 5))]);
        operation.isEnable = dice.roll(0, 2) != 0;
        operation.pair = drawPair(dice, scale);
        const int count = dice.roll(0, 3) == 0 ? dice.roll(0, scale.longList) : dice.roll(0, scale.shortList);
        if (operation.hasPairs()) {
            for (int i = 0; i < count; ++i) {
                operation.pairs.append(drawPair(dice, scale));
            }
        } else if (operation.kind == RemoveTargets) {
            for (int i = 0; i < count; ++i) {
                operation.ids.append(drawPair(dice, scale).first);
            }
        }
        return operation;
    }

    template <class Store>
    void applyTo(Store& store) const
    {
        switch (kind) {
        case Click:
            return store.clickViewObject(pair.first, pair.second);
        case AddList:
            return store.addSelectedTargetList(model, pairs);
        case RemoveList:
            return store.removeSelectedTargetList(model, pairs);
        case AddByTree:
            return store.addSelectedTargetListByProjectTree(model, pairs);
        case RemoveByTree:
            return store.removeSelectedTargetListByProjectTree(model, pairs);
        case RemoveTargets:
            return store.removeSelectedTargets(model, ids);
        case DeleteModel:
            return store.deleteSelectedData(model);
        case DeleteFirst:
            return store.deleteSelectedData(model, pair.first);
        case Clear:
            return store.clearAllSelectedTarget();
        case MainWindow:
            return store.setSelectModelInMainWindow(model);
        case Dialog:
            return store.setSelectModelInDialog(model);
        case Enable:
            return store.setSwitchSelectModelEnable(isEnable);
        default:
            return store.setHighLightCheckEnable(isEnable);
        }
    }

    Kind kind = Click;
    BaseModule::SelectModel model = BaseModule::SelectModel(0);
    QPair<int, int> pair;
    QList<QPair<int, int>> pairs;
    QList<int> ids;
    bool isEnable = false;

private:
    bool hasPairs() const { return kind == AddList || kind == RemoveList || kind == AddByTree || kind == RemoveByTree; }

    static int drawIdentifier(Dice& dice, const Scale& scale, int highest)
    {
        return dice.roll(0, 999) < scale.wildcardPerMille ? dice.roll(-2, -1) : dice.roll(0, highest);
    }

    static QPair<int, int> drawPair(Dice& dice, const Scale& scale)
    {
        const int first = drawIdentifier(dice, scale, scale.identifiers);
        return {first, drawIdentifier(dice, scale, 3)};
    }
};
