// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QList>
#include <QString>

namespace DataManager {

class RelativeCoordinateSystem;
class RelativeCoordinateSystemDateManager;

/// Puts every system but the first into the seven lists of the record.
void storeSystems(const QList<RelativeCoordinateSystem*>& systems, RelativeCoordinateSystemDateManager& record);

/// The content of a record, from which systems are rebuilt one by one.
class StoredSystems
{
public:
    explicit StoredSystems(const RelativeCoordinateSystemDateManager& record);

    int count() const;
    /// A new system as element `index` describes it, owned by the caller. Its basic system must be registered before
    /// it, otherwise its chains are those that were stored. A list that ends early counts as continued with 0 or an
    /// empty text, and a level with fewer than three doubles is left out.
    RelativeCoordinateSystem* rebuild(int index) const;

private:
    void rebuildTypes(RelativeCoordinateSystem& system, int index) const;
    void rebuildOffsets(RelativeCoordinateSystem& system, int index) const;
    void rebuildRotations(RelativeCoordinateSystem& system, int index) const;
    void rebuildActorRotations(RelativeCoordinateSystem& system, int index) const;

    QList<int> m_ids;
    QList<int> m_basicIDs;
    QList<QString> m_names;
    QList<QString> m_types;
    QList<QString> m_offsets;
    QList<QString> m_rotations;
    QList<QString> m_actorRotations;
};

} // namespace DataManager
