// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QList>
#include <QMap>
#include <QPair>
#include <QString>

#include <functional>

class QJsonArray;

namespace Workbench {

/// Named lists of members, each a pair of identifiers, under identifiers of their own. No name is used twice.
class NamedSets
{
public:
    struct Set
    {
        QString name;
        QList<QPair<int, int>> memberList;
    };

    int count() const { return m_sets.size(); }
    /// The identifiers of the sets of this name in ascending order; an empty name finds all.
    QList<int> find(const QString& name) const;
    /// 0 without sets.
    int largestID() const { return m_sets.isEmpty() ? 0 : m_sets.lastKey(); }
    /// The set; one without name and members when there is none.
    Set set(int setID) const { return m_sets.value(setID); }

    /// Whether a set other than `setID` has the name, or the name is empty.
    bool isTaken(const QString& name, int setID) const;
    void add(int setID, const Set& set) { m_sets.insert(setID, set); }
    /// False when there is no such set, or the name is empty or taken.
    bool rename(int setID, const QString& name);
    /// Removes those that exist, and returns them.
    QList<int> remove(const QList<int>& setIDList);
    /// Removes the members that are told so, and returns the sets that had some.
    QList<int> removeMembers(const std::function<bool(const QPair<int, int>& member)>& isRemoved);
    void clear() { m_sets.clear(); }

    QJsonArray toJson() const;
    /// Null, empty or repeated names and identifiers below 1 or above a million are passed over.
    static NamedSets fromJson(const QJsonArray& array);

private:
    QMap<int, Set> m_sets;
};

} // namespace Workbench
