// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>

#include <algorithm>
#include <cmath>

/// The peer: the composition of rotations as its rule reads, one recursion for each level at each level, on the same
/// systems and into the same caches. Needs private access.
class LiteralComposition
{
public:
    using System = DataManager::RelativeCoordinateSystem;
    using Registry = DataManager::RelativeCoordinateSystemDate;

    static void turn(double* v, int id)
    {
        if (id < 1) {
            return;
        }
        System* const system = Registry::getInstance()->getCoordinateSystemByID(id);
        system->getType();
        double w[3] = {v[0], v[1], v[2]};
        for (const QList<double>& angles : rotations(*system)) {
            if (!turnOnce(w, angles)) {
                return;
            }
        }
        std::copy_n(w, 3, v);
    }

private:
    static QList<QList<double>> rotations(System& system)
    {
        system.m_rotateDirection.clear();
        for (const auto& level : qAsConst(system.m_rotateDirectionPairList)) {
            double w[3] = {level.second.at(0), level.second.at(1), level.second.at(2)};
            const System* const owner = Registry::getInstance()->getCoordinateSystemByID(level.first);
            turn(w, owner->getBasicCoordinateSystemID());
            system.m_rotateDirection.append({w[0], w[1], w[2]});
        }
        return system.m_rotateDirection;
    }

    static bool turnOnce(double* w, const QList<double>& angles)
    {
        int axis = -1;
        for (int i = 0; i < 3; ++i) {
            if (angles.at(i) != 0.0) {
                if (axis != -1) {
                    return false;
                }
                axis = i;
            }
        }
        if (axis != -1) {
            const int first = (axis + 1) % 3;
            const int second = (axis + 2) % 3;
            const double c = std::cos(angles.at(axis));
            const double s = std::sin(angles.at(axis));
            const double u = c * w[first] - s * w[second];
            w[second] = s * w[first] + c * w[second];
            w[first] = u;
        }
        return true;
    }
};
