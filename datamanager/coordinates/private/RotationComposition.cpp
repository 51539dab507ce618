// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/coordinates/private/RotationComposition.h>

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace DataManager {

namespace {

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>;

Matrix rotationMatrix(int axis, double angle)
{
    const auto first = static_cast<std::size_t>((axis + 1) % 3);
    const auto second = static_cast<std::size_t>((axis + 2) % 3);
    const double sine = std::sin(angle);
    const double cosine = std::cos(angle);
    Matrix matrix{};
    matrix[static_cast<std::size_t>(axis)][static_cast<std::size_t>(axis)] = 1.0;
    matrix[first][first] = cosine;
    matrix[first][second] = -sine;
    matrix[second][first] = sine;
    matrix[second][second] = cosine;
    return matrix;
}

Vector product(const Matrix& matrix, const Vector& vector)
{
    Vector result;
    std::transform(matrix.begin(), matrix.end(), result.begin(), [&vector](const Vector& row) {
        return row[0] * vector[0] + row[1] * vector[1] + row[2] * vector[2];
    });
    return result;
}

std::array<quint64, 3> bitsOf(const QList<double>& angles)
{
    std::array<quint64, 3> bits{};
    for (int i = 0; i < 3; ++i) {
        const double angle = angles.at(i);
        std::memcpy(&bits[static_cast<std::size_t>(i)], &angle, sizeof angle);
    }
    return bits;
}

} // namespace

void turnAboutSingleAxes(const QList<QList<double>>& rotations, double* vector)
{
    Vector turned = {vector[0], vector[1], vector[2]};
    for (const QList<double>& angles : rotations) {
        // A not-a-number counts as an angle, both zeros as none.
        const auto isAngle = [](double angle) { return angle != 0.0; };
        const auto count = std::count_if(angles.begin(), angles.end(), isAngle);
        if (count > 1) {
            return;
        }
        if (count == 1) {
            const auto axis = std::find_if(angles.begin(), angles.end(), isAngle);
            turned = product(rotationMatrix(static_cast<int>(axis - angles.begin()), *axis), turned);
        }
    }
    std::copy(turned.begin(), turned.end(), vector);
}

RotationComposition::RotationComposition(RelativeCoordinateSystemDate& registry)
{
    const int count = registry.getRelativeCoordinateSystemDateCount();
    m_systemOfID.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        RelativeCoordinateSystem* const system = registry.getCoordinateSystemByIndex(i);
        m_systemOfID.emplace(system->getID(), system);
    }
}

RelativeCoordinateSystem* RotationComposition::systemOfID(int id) const
{
    const auto found = m_systemOfID.find(id);
    return found == m_systemOfID.end() ? nullptr : found->second;
}

/// Null for the global system, which turns nothing, and for what is not registered.
RelativeCoordinateSystem* RotationComposition::basicSystemOf(int ownerID) const
{
    const RelativeCoordinateSystem* const owner = systemOfID(ownerID);
    const int basicID = owner == nullptr ? 0 : owner->getBasicCoordinateSystemID();
    return basicID < 1 ? nullptr : systemOfID(basicID);
}

void RotationComposition::compose(RelativeCoordinateSystem& system, const Store& store)
{
    enter(system);
    while (!m_visits.empty()) {
        if (enterNextBasicSystem(m_visits.back())) {
            continue;
        }
        RelativeCoordinateSystem& visited = *m_visits.back().system;
        const Rotations rotations = evaluate(visited);
        store(visited, rotations);
        m_rotations[&visited] = rotations;
        m_visits.pop_back();
    }
}

void RotationComposition::enter(RelativeCoordinateSystem& system)
{
    m_rotations.emplace(&system, std::nullopt);
    m_visits.push_back({&system, 0});
}

/// Enters the next basic system of the visited chain that was not entered before; false when there is none left.
bool RotationComposition::enterNextBasicSystem(Visit& visit)
{
    const auto chain = visit.system->getRotateDirectionListPairList();
    while (visit.nextLevel < chain.size()) {
        RelativeCoordinateSystem* const basic = basicSystemOf(chain.at(visit.nextLevel++).first);
        if (basic != nullptr && m_rotations.find(basic) == m_rotations.end()) {
            basic->getType();
            enter(*basic);
            return true;
        }
    }
    return false;
}

RotationComposition::Rotations RotationComposition::evaluate(const RelativeCoordinateSystem& system)
{
    Rotations rotations;
    const auto chain = system.getRotateDirectionListPairList();
    rotations.reserve(chain.size());
    for (const auto& level : chain) {
        rotations.append(turned(level.second, basicSystemOf(level.first)));
    }
    return rotations;
}

/// A basic system that is still being visited closes a loop and turns nothing.
QList<double> RotationComposition::turned(const QList<double>& angles, const RelativeCoordinateSystem* basic)
{
    if (basic == nullptr || !m_rotations.at(basic)) {
        return angles;
    }
    const auto [known, isNew] = m_turned.try_emplace({basic, bitsOf(angles)});
    if (isNew) {
        Vector vector = {angles.at(0), angles.at(1), angles.at(2)};
        turnAboutSingleAxes(*m_rotations.at(basic), vector.data());
        known->second = {vector[0], vector[1], vector[2]};
    }
    return known->second;
}

} // namespace DataManager
