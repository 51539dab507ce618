// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/geometry/NamedSets.h>

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace Workbench {

QList<int> NamedSets::find(const QString& name) const
{
    QList<int> found;
    for (auto it = m_sets.cbegin(); it != m_sets.cend(); ++it) {
        if (name.isEmpty() || it->name == name) {
            found.append(it.key());
        }
    }
    return found;
}

bool NamedSets::isTaken(const QString& name, int setID) const
{
    const QList<int> others = find(name);
    return name.isEmpty() || std::any_of(others.begin(), others.end(), [setID](int other) { return other != setID; });
}

bool NamedSets::rename(int setID, const QString& name)
{
    if (!m_sets.contains(setID) || isTaken(name, setID)) {
        return false;
    }
    m_sets[setID].name = name;
    return true;
}

QList<int> NamedSets::remove(const QList<int>& setIDList)
{
    QList<int> removed;
    for (int setID : setIDList) {
        if (m_sets.remove(setID) > 0) {
            removed.append(setID);
        }
    }
    return removed;
}

QList<int> NamedSets::removeMembers(const std::function<bool(const QPair<int, int>&)>& isRemoved)
{
    QList<int> changed;
    for (auto it = m_sets.begin(); it != m_sets.end(); ++it) {
        QList<QPair<int, int>>& members = it->memberList;
        const auto end = std::remove_if(members.begin(), members.end(), isRemoved);
        if (end != members.end()) {
            members.erase(end, members.end());
            changed.append(it.key());
        }
    }
    return changed;
}

QJsonArray NamedSets::toJson() const
{
    QJsonArray array;
    for (auto it = m_sets.cbegin(); it != m_sets.cend(); ++it) {
        QJsonArray members;
        for (const QPair<int, int>& member : it->memberList) {
            members.append(QJsonArray{member.first, member.second});
        }
        array.append(QJsonObject{{QStringLiteral("id"), it.key()},
                                 {QStringLiteral("name"), it->name},
                                 {QStringLiteral("members"), members}});
    }
    return array;
}

NamedSets NamedSets::fromJson(const QJsonArray& array)
{
    NamedSets sets;
    for (const QJsonValue& value : array) {
        const QJsonObject object = value.toObject();
        const int setID = object.value(QStringLiteral("id")).toInt();
        Set set{object.value(QStringLiteral("name")).toString(), {}};
        for (const QJsonValue& member : object.value(QStringLiteral("members")).toArray()) {
            set.memberList.append({member.toArray().at(0).toInt(), member.toArray().at(1).toInt(-1)});
        }
        if (setID > 0 && setID <= 1000000 && !sets.m_sets.contains(setID) && !sets.isTaken(set.name, setID)) {
            sets.m_sets.insert(setID, set);
        }
    }
    return sets;
}

} // namespace Workbench
