// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>

#include <QList>
#include <QMap>

#include <cmath>

/// The composition of rotations written down as its rule reads, with one recursion for each level at each level and
/// caches of its own: what the library must give to the last bit. For trees without loops or gaps.
class LiteralRotation
{
public:
    using System = DataManager::RelativeCoordinateSystem;
    using Rotations = QList<QList<double>>;

    /// What evaluation left behind, by system.
    QMap<const System*, Rotations> rotationCache;
    QMap<const System*, int> typeCache;

    Rotations rotationsOf(System& system)
    {
        rotationCache[&system].clear();
        for (const auto& level : system.getRotateDirectionListPairList()) {
            double w[3] = {level.second.at(0), level.second.at(1), level.second.at(2)};
            turn(w, registered(level.first)->getBasicCoordinateSystemID());
            rotationCache[&system].append({w[0], w[1], w[2]});
        }
        return rotationCache[&system];
    }

    void turn(double* v, int id)
    {
        if (id < 1) {
            return;
        }
        System* const system = registered(id);
        typeCache[system] = system->getTypePairList().last().second;
        double w[3] = {v[0], v[1], v[2]};
        const Rotations rotations = rotationsOf(*system);
        for (const QList<double>& r : rotations) {
            if (r.at(0) == 0.0 && r.at(1) == 0.0 && r.at(2) == 0.0) {
                continue;
            }
            if (r.at(1) == 0.0 && r.at(2) == 0.0) {
                turnAboutX(w, r.at(0));
            } else if (r.at(0) == 0.0 && r.at(2) == 0.0) {
                turnAboutY(w, r.at(1));
            } else if (r.at(0) == 0.0 && r.at(1) == 0.0) {
                turnAboutZ(w, r.at(2));
            } else {
                return;
            }
        }
        v[0] = w[0];
        v[1] = w[1];
        v[2] = w[2];
    }

private:
    static System* registered(int id)
    {
        return DataManager::RelativeCoordinateSystemDate::getInstance()->getCoordinateSystemByID(id);
    }

    static void multiply(double* w, const double (&m)[3][3])
    {
        const double x = m[0][0] * w[0] + m[0][1] * w[1] + m[0][2] * w[2];
        const double y = m[1][0] * w[0] + m[1][1] * w[1] + m[1][2] * w[2];
        const double z = m[2][0] * w[0] + m[2][1] * w[1] + m[2][2] * w[2];
        w[0] = x;
        w[1] = y;
        w[2] = z;
    }

    static void turnAboutX(double* w, double a)
    {
        const double m[3][3] = {{1, 0, 0}, {0, std::cos(a), -std::sin(a)}, {0, std::sin(a), std::cos(a)}};
        multiply(w, m);
    }

    static void turnAboutY(double* w, double a)
    {
        const double m[3][3] = {{std::cos(a), 0, std::sin(a)}, {0, 1, 0}, {-std::sin(a), 0, std::cos(a)}};
        multiply(w, m);
    }

    static void turnAboutZ(double* w, double a)
    {
        const double m[3][3] = {{std::cos(a), -std::sin(a), 0}, {std::sin(a), std::cos(a), 0}, {0, 0, 1}};
        multiply(w, m);
    }
};
