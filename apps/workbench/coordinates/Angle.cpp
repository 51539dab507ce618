// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/coordinates/Angle.h>

#include <QString>
#include <QtMath>

#include <cmath>
#include <limits>

namespace Workbench {

double radiansOf(double degrees)
{
    return degrees / 180 * M_PI;
}

double degreesOf(double radians)
{
    if (radians == 0) {
        return radians; // with its sign, which texts do not carry
    }
    const double nearest = radians / M_PI * 180;
    for (int digits = 1; digits <= std::numeric_limits<double>::max_digits10; ++digits) {
        const double rounded = QString::number(nearest, 'g', digits).toDouble();
        if (radiansOf(rounded) == radians) {
            return rounded;
        }
    }
    // The neighbours, because the division above rounds, too.
    for (const double end : {-std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()}) {
        const double neighbour = std::nextafter(nearest, end);
        if (radiansOf(neighbour) == radians) {
            return neighbour;
        }
    }
    return nearest;
}

} // namespace Workbench
