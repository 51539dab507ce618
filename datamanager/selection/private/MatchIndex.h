// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/selection/private/Matching.h>

#include <array>
#include <memory>

namespace DataManager {

/// Up to so many scans of the list cost less than an index, and they allocate nothing.
constexpr int mostScans = 8;

/// Finds the items of one model that match, in constant time each, for the length of one bulk call. It is exact because
/// nobody else touches the records before the call's first signal. A null entry of the list is an item that the call
/// has taken out. Four families of chains answer the four shapes of a query, each built when its shape first occurs.
class MatchIndex
{
public:
    enum class Order
    {
        FirstToLast,
        LastToFirst
    };

    /// `items` must outlive the index; `additionCount` is how many items append() may announce at most.
    MatchIndex(const RecordList& items, BaseModule::SelectModel model, Order order, int additionCount = 0);
    ~MatchIndex();

    /// The position of the matching item that comes first in the index's order; -1 when there is none.
    int find(int firstID, int secondID);
    /// The call is about to ask for the pair at `position`, and then for the following ones. Fetches what later ones
    /// will need. Changes nothing.
    void expect(const PairList& pairs, int position) const;
    /// The last item of the list is new. Only for an index from last to first.
    void append();
    /// The pairs of the items whose first identifier equals the given one, without wildcards, in the index's order.
    void collectByFirstID(int firstID, PairList& pairs);

private:
    struct Family;
    enum Shape
    {
        Exact,
        FirstOnly,
        SecondOnly,
        Any,
        ShapeCount
    };

    static Shape shapeOf(int firstID, int secondID);
    static quint64 keyOf(Shape shape, int firstID, int secondID);
    Family& family(Shape shape);
    void file(Shape shape, Family& chains, int position) const;

    const RecordList& m_items;
    const BaseModule::SelectModel m_model;
    const Order m_order;
    const int m_capacity;
    std::array<std::unique_ptr<Family>, ShapeCount> m_families;
};

} // namespace DataManager
