// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QSet>

namespace Workbench {

/// What is highlighted, as the signals of the hub tell it, and nothing else.
class HighlightState : public QObject
{
    Q_OBJECT

public:
    using Item = QPair<int, int>;

    explicit HighlightState(QObject* parent = nullptr);

    /// The items of that select model.
    QSet<Item> items(int selectModel) const { return m_items.value(selectModel); }
    bool isEmpty() const;

Q_SIGNALS:
    void signal_changed();

private:
    void setList(int selectModel, const QList<Item>& objectList, bool isShow);
    void set(int selectModel, const Item& item, bool isShow);
    void clear();
    void readAgain(int selectModel);

    QMap<int, QSet<Item>> m_items;
};

} // namespace Workbench
