// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QList>

#include <array>
#include <functional>
#include <map>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace DataManager {

class RelativeCoordinateSystem;
class RelativeCoordinateSystemDate;

/// Turns `vector` about one axis for each entry of `rotations` in order, each entry being angles about x, y and z in
/// radians; an entry of zeros is passed over. When an entry has more than one angle, `vector` stays as it was.
/// The axes are fixed and right-handed, vectors are columns: a positive angle about z turns x towards y.
void turnAboutSingleAxes(const QList<QList<double>>& rotations, double* vector);

/// The rotations of a system's chain levels, each carried through the rotations of its owner's basic system, and so on
/// up to the global system.
///
/// Every system that takes part is evaluated once, without recursion, and so is every vector carried through it. The
/// cost grows with the square of the chain's depth while systems hold their inherited levels as they were, because
/// those are the same vectors; with the cube when each system's inherited levels were modified. It is used for one call
/// only: nothing outlives it.
class RotationComposition
{
public:
    using Rotations = QList<QList<double>>;
    /// Receives the rotations of each system that takes part, the basic systems first.
    using Store = std::function<void(RelativeCoordinateSystem&, const Rotations&)>;

    explicit RotationComposition(RelativeCoordinateSystemDate& registry);

    /// Evaluates `system` and all systems it depends on; the latter have their type refreshed.
    void compose(RelativeCoordinateSystem& system, const Store& store);

private:
    struct Visit
    {
        RelativeCoordinateSystem* system;
        int nextLevel;
    };
    /// The basic system and the bits of the three angles that it turns.
    using TurnKey = std::pair<const RelativeCoordinateSystem*, std::array<quint64, 3>>;

    RelativeCoordinateSystem* systemOfID(int id) const;
    RelativeCoordinateSystem* basicSystemOf(int ownerID) const;
    void enter(RelativeCoordinateSystem& system);
    bool enterNextBasicSystem(Visit& visit);
    Rotations evaluate(const RelativeCoordinateSystem& system);
    QList<double> turned(const QList<double>& angles, const RelativeCoordinateSystem* basic);

    std::unordered_map<int, RelativeCoordinateSystem*> m_systemOfID;
    std::vector<Visit> m_visits;
    /// Empty while a system is being visited, its rotations afterwards.
    std::unordered_map<const RelativeCoordinateSystem*, std::optional<Rotations>> m_rotations;
    std::map<TurnKey, QList<double>> m_turned;
};

} // namespace DataManager
