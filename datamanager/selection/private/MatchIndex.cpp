// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/selection/private/MatchIndex.h>

#include <datamanager/selection/private/KeyTable.h>

#include <datamodel/SelectedDataBase.h>

namespace DataManager {

/// The items of one key, linked by their positions.
struct MatchIndex::Family
{
    explicit Family(int capacity)
        : heads(static_cast<std::size_t>(capacity)), next(new int[static_cast<std::size_t>(capacity)])
    {
    }

    int after(int position) const { return next[static_cast<std::size_t>(position)]; }

    KeyTable heads;
    /// Set for the positions that are filed, and read for no other.
    std::unique_ptr<int[]> next;
};

MatchIndex::MatchIndex(const RecordList& items, BaseModule::SelectModel model, Order order, int additionCount)
    : m_items(items), m_model(model), m_order(order), m_capacity(items.size() + additionCount)
{
}

MatchIndex::~MatchIndex() = default;

int MatchIndex::find(int firstID, int secondID)
{
    const Shape shape = shapeOf(firstID, secondID);
    Family& chains = family(shape);
    int* const head = chains.heads.find(keyOf(shape, firstID, secondID));
    if (head == nullptr) {
        return -1;
    }
    // Whatever is skipped here is gone from the chain, so all calls together walk each chain once.
    while (*head >= 0 && m_items.at(*head) == nullptr) {
        *head = chains.after(*head);
    }
    return *head;
}

void MatchIndex::expect(const PairList& pairs, int position) const
{
    const Family* const chains = m_families[Exact].get();
    if (chains != nullptr && position + lookahead < pairs.size()) {
        const QPair<int, int>& later = pairs.at(position + lookahead);
        chains->heads.prefetch(keyOf(Exact, later.first, later.second));
    }
}

void MatchIndex::append()
{
    for (int shape = 0; shape < ShapeCount; ++shape) {
        if (m_families[static_cast<std::size_t>(shape)]) {
            file(Shape(shape), *m_families[static_cast<std::size_t>(shape)], m_items.size() - 1);
        }
    }
}

void MatchIndex::collectByFirstID(int firstID, PairList& pairs)
{
    Family& chains = family(FirstOnly);
    const int* const head = chains.heads.find(keyOf(FirstOnly, firstID, -1));
    for (int position = head == nullptr ? -1 : *head; position >= 0; position = chains.after(position)) {
        pairs.append(identifiers(*m_items.at(position)));
    }
}

MatchIndex::Shape MatchIndex::shapeOf(int firstID, int secondID)
{
    if (firstID >= 0) {
        return secondID >= 0 ? Exact : FirstOnly;
    }
    return secondID >= 0 ? SecondOnly : Any;
}

quint64 MatchIndex::keyOf(Shape shape, int firstID, int secondID)
{
    const quint64 high = shape == Exact || shape == FirstOnly ? static_cast<quint32>(firstID) : 0U;
    const quint64 low = shape == Exact || shape == SecondOnly ? static_cast<quint32>(secondID) : 0U;
    return high << 32 | low;
}

MatchIndex::Family& MatchIndex::family(Shape shape)
{
    std::unique_ptr<Family>& chains = m_families[shape];
    if (chains == nullptr) {
        chains = std::make_unique<Family>(m_capacity);
        // The item filed last becomes the head of its chain.
        const int size = m_items.size();
        const auto positionAt = [&](int step) { return m_order == Order::LastToFirst ? step : size - 1 - step; };
        for (int step = 0; step < size; ++step) {
            if (step + 2 * lookahead < size) {
                prefetchMemory(m_items.at(positionAt(step + 2 * lookahead)));
            }
            if (const auto* const later =
                    step + lookahead < size ? m_items.at(positionAt(step + lookahead)) : nullptr) {
                chains->heads.prefetch(keyOf(shape, later->getFirstID(), later->getSecondID()));
            }
            file(shape, *chains, positionAt(step));
        }
    }
    return *chains;
}

void MatchIndex::file(Shape shape, Family& chains, int position) const
{
    const DataModel::SelectedDataBase* const item = m_items.at(position);
    if (item == nullptr || item->getSelectModel() != m_model) {
        return;
    }
    int& head = chains.heads[keyOf(shape, item->getFirstID(), item->getSecondID())];
    chains.next[static_cast<std::size_t>(position)] = head;
    head = position;
}

} // namespace DataManager
