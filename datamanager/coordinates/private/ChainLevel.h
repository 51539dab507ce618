// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>

#include <QList>
#include <QPair>

#include <algorithm>

namespace DataManager {

/// Which level of a chain a setter writes, as the four chain setters are told.
struct ChainLevel
{
    int ownerID;
    int basicID;
    int modifyID; ///< -1 to append
};

/// The one rule of the four chain setters. `owners` is the chain whose owner IDs decide which entries are modified, as
/// a rule `chain` itself; `chainOf` gives the same chain of another system.
template <class Value, class OwnerValue>
void setChainLevel(QList<QPair<int, Value>>& chain, const QList<QPair<int, OwnerValue>>& owners,
                   const typename QList<Value>::value_type& value, const ChainLevel& level,
                   QList<QPair<int, Value>> (RelativeCoordinateSystem::*chainOf)() const)
{
    if (level.modifyID != -1) {
        const int count = std::min(chain.size(), owners.size());
        for (int i = 0; i < count; ++i) {
            if (owners.at(i).first == level.modifyID) {
                chain[i] = {level.modifyID, value};
            }
        }
        return;
    }
    if (level.ownerID >= 1) {
        const RelativeCoordinateSystem* basic =
            RelativeCoordinateSystemDate::getInstance()->getCoordinateSystemByID(level.basicID);
        if (basic != nullptr) {
            chain = (basic->*chainOf)();
        }
    }
    chain.append({level.ownerID, value});
}

} // namespace DataManager
