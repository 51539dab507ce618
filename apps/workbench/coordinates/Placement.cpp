// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/coordinates/Placement.h>

#include <cmath>

namespace Workbench {

namespace {

using Rows = std::array<Vector3, 3>;

double dot(const Vector3& a, const Vector3& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Rows product(const Rows& left, const Rows& right)
{
    Rows result;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            result[row][column] = dot(left[row], {right[0][column], right[1][column], right[2][column]});
        }
    }
    return result;
}

Rows aboutX(double angle)
{
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return {{{1, 0, 0}, {0, c, -s}, {0, s, c}}};
}

Rows aboutY(double angle)
{
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return {{{c, 0, s}, {0, 1, 0}, {-s, 0, c}}};
}

Rows aboutZ(double angle)
{
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return {{{c, -s, 0}, {s, c, 0}, {0, 0, 1}}};
}

} // namespace

Placement placed(const Vector3& origin, const Vector3& angles)
{
    return {origin, product(aboutZ(angles[2]), product(aboutY(angles[1]), aboutX(angles[0])))};
}

Placement carried(const Placement& basic, const Placement& local)
{
    return {carriedPoint(basic, local.origin), product(basic.rows, local.rows)};
}

Placement seenFrom(const Placement& basic, const Placement& placement)
{
    Placement back; // the inverse of a rotation is its transpose
    Vector3 way;
    for (std::size_t row = 0; row < 3; ++row) {
        back.rows[row] = {basic.rows[0][row], basic.rows[1][row], basic.rows[2][row]};
        way[row] = placement.origin[row] - basic.origin[row];
    }
    return carried(back, {way, placement.rows});
}

Vector3 carriedPoint(const Placement& placement, const Vector3& point)
{
    Vector3 result;
    for (std::size_t i = 0; i < 3; ++i) {
        result[i] = dot(placement.rows[i], point) + placement.origin[i];
    }
    return result;
}

Vector3 anglesOf(const Placement& placement)
{
    // The matrix is Rz Ry Rx, whose last row is (-sin y, cos y sin x, cos y cos x).
    const Rows& m = placement.rows;
    const double cosineY = std::hypot(m[0][0], m[1][0]);
    // Subtracted from and added to 0, so that no angle is -0.
    const double y = std::atan2(0 - m[2][0], cosineY);
    // Below this the sines and cosines of x and z are rounding errors.
    constexpr double smallestCosine = 1e-12;
    if (cosineY < smallestCosine) {
        return {std::atan2(0 - m[1][2], m[1][1]), y, 0};
    }
    return {std::atan2(0 + m[2][1], m[2][2]), y, std::atan2(0 + m[1][0], m[0][0])};
}

std::array<double, 4> quaternionOf(const Placement& placement)
{
    // m holds the products of the components two by two. Those with the largest component give the others without loss
    // (S. W. Shepperd, Journal of Guidance and Control 1 (1978) 223).
    const Rows& m = placement.rows;
    const double trace = m[0][0] + m[1][1] + m[2][2];
    const std::array<std::array<double, 4>, 4> products = {
        {{1 + trace, m[2][1] - m[1][2], m[0][2] - m[2][0], m[1][0] - m[0][1]},
         {m[2][1] - m[1][2], 1 - trace + 2 * m[0][0], m[0][1] + m[1][0], m[0][2] + m[2][0]},
         {m[0][2] - m[2][0], m[0][1] + m[1][0], 1 - trace + 2 * m[1][1], m[1][2] + m[2][1]},
         {m[1][0] - m[0][1], m[0][2] + m[2][0], m[1][2] + m[2][1], 1 - trace + 2 * m[2][2]}}};
    std::size_t largest = 0;
    for (std::size_t i = 1; i < 4; ++i) {
        largest = products[i][i] > products[largest][largest] ? i : largest;
    }
    std::array<double, 4> quaternion = products[largest];
    const double length = std::sqrt(products[largest][largest]) * 2;
    const double sign = quaternion[0] < 0 ? -1 : 1;
    for (double& component : quaternion) {
        component *= sign / length;
    }
    return quaternion;
}

} // namespace Workbench
