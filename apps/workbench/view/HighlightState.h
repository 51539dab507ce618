// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/view/ItemSet.h>

#include <QList>
#include <QObject>

#include <map>

namespace Workbench {

/// What is highlighted, as the signals of the hub tell it, and nothing else.
class HighlightState : public QObject
{
    Q_OBJECT

public:
    using Item = ItemSet::Item;

    explicit HighlightState(QObject* parent = nullptr);

    /// The items of that select model. Valid until the next signal of the hub.
    const ItemSet& items(int selectModel) const;
    bool isEmpty() const;

Q_SIGNALS:
    /// Something came or went.
    void signal_changed();

private:
    void setList(int selectModel, const QList<Item>& objectList, bool isShow);
    void setOne(int selectModel, const Item& item, bool isShow);
    bool set(int selectModel, const Item& item, bool isShow);
    void clear();
    void readAgain(int selectModel);

    std::map<int, ItemSet> m_items;
};

} // namespace Workbench
