// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <algorithm>
#include <array>
#include <cmath>

/// The arithmetic of one linear tetrahedron, on plain values. Every stage and every table operation uses these
/// functions, so that a value is the same, to the last bit, by whatever way it is computed; the order of the
/// operations is part of that.
namespace DataManager::Tetrahedron {

struct Vector
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

/// The corners P0 to P3.
using Corners = std::array<Vector, 4>;
/// P0P1, P1P2, P2P0, P0P3, P1P3, P2P3: L0 to L2 run around the base, L3 to L5 from the base to the apex.
using Edges = std::array<Vector, 6>;

inline double dot(const Vector& a, const Vector& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline Vector scaled(double k, const Vector& v)
{
    return {k * v.x, k * v.y, k * v.z};
}
inline Vector minus(const Vector& a, const Vector& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Vector plus(const Vector& a, const Vector& b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

inline Vector cross(const Vector& a, const Vector& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

/// Optimised builds make one multiplication of the call; it is written as a power because the power function of the C
/// library, which other builds call, rounds about one square in a thousand differently.
inline double square(double value)
{
    return std::pow(value, 2.0);
}

inline double length(const Vector& v)
{
    return std::sqrt(square(v.x) + square(v.y) + square(v.z));
}

inline Edges edges(const Corners& p)
{
    return {minus(p[1], p[0]), minus(p[2], p[1]), minus(p[0], p[2]),
            minus(p[3], p[0]), minus(p[3], p[1]), minus(p[3], p[2])};
}

/// The lengths |L0| to |L5|.
inline std::array<double, 6> lengths(const Edges& l)
{
    return {length(l[0]), length(l[1]), length(l[2]), length(l[3]), length(l[4]), length(l[5])};
}

/// The area of all four faces.
inline double area(const Edges& l)
{
    return 0.5 * (length(cross(l[2], l[0])) + length(cross(l[3], l[0])) + length(cross(l[4], l[1])) +
                  length(cross(l[3], l[2])));
}

/// Six times the signed volume; positive when P3 lies where (P1 - P0) x (P2 - P0) points.
inline double jacobian(const Edges& l)
{
    return dot(cross(l[2], l[0]), l[3]);
}

inline double volume(const Edges& l)
{
    return jacobian(l) / 6.0;
}

inline double inradius(double volume, double area)
{
    return volume * 3.0 / area;
}

/// |L3|^2 |L2 x L0| / (12 V), the first of the three terms in the circumradius formula. The quality model was fitted
/// to this figure; it is the circumradius of a regular tetrahedron and of few others.
inline double circumradiusFigure(const Edges& l, double volume)
{
    return length(scaled(square(length(l[3])), cross(l[2], l[0]))) / (volume * 12.0);
}

inline double aspectRatio(double longestEdge, double inradius)
{
    return longestEdge / ((std::sqrt(6.0) + std::sqrt(6.0)) * inradius);
}

inline double edgeRatio(double longestEdge, double shortestEdge)
{
    return longestEdge / shortestEdge;
}

inline double radiusRatio(double circumradius, double inradius)
{
    return circumradius / (3.0 * inradius);
}

/// `lengths` are |L0| to |L5|.
inline double aspectGamma(const std::array<double, 6>& lengths, double volume)
{
    const double squares = square(lengths[0]) + square(lengths[1]) + square(lengths[2]) + square(lengths[3]) +
                           square(lengths[4]) + square(lengths[5]);
    return std::sqrt(2.0) * std::pow(std::sqrt(squares / 6.0), 3.0) / (volume * 12.0);
}

/// The condition number with its third column not divided by sqrt(6); a regular tetrahedron has sqrt(52/27).
inline double condition(const Edges& l)
{
    const Vector c1 = l[0];
    const Vector c2 = scaled(1.0 / std::sqrt(3.0), minus(scaled(-2.0, l[2]), l[0]));
    const Vector c3 = minus(plus(scaled(3.0, l[3]), l[2]), l[0]);
    const Vector c12 = cross(c1, c2);
    const Vector c23 = cross(c2, c3);
    const Vector c13 = cross(c1, c3);
    const double term1 = dot(c1, c1) + dot(c2, c2) + dot(c3, c3);
    const double term2 = dot(c12, c12) + dot(c23, c23) + dot(c13, c13);
    return std::sqrt(term1 * term2) / (dot(c23, c1) * 3.0);
}

/// min(x, 1/x) of the volume in units of the mean volume; not squared.
inline double relativeSize(double volume, double meanVolume)
{
    const double size = volume / meanVolume;
    const double inverse = 1.0 / size;
    return inverse > size ? size : inverse;
}

/// `lengths` are |L0| to |L5|.
inline double scaledJacobian(const std::array<double, 6>& lengths, double jacobian)
{
    const double corner0 = lengths[0] * lengths[2] * lengths[3];
    const double corner1 = lengths[0] * lengths[1] * lengths[4];
    const double corner2 = lengths[1] * lengths[2] * lengths[5];
    const double corner3 = lengths[3] * lengths[4] * lengths[5];
    double largest = std::max(corner3, std::max(corner2, std::max(corner1, corner0)));
    if (jacobian > largest) {
        largest = jacobian;
    }
    return std::sqrt(2.0) * jacobian / largest;
}

/// The Jacobian passes through single precision on purpose: the quality model was fitted to the figure so rounded.
inline double shape(const Edges& l, double jacobian)
{
    const double rounded = static_cast<double>(static_cast<float>(jacobian));
    const Vector reversed = scaled(-1.0, l[2]);
    const double numerator = 3.0 * std::pow(std::sqrt(2.0) * rounded, 0.6666666666666666);
    const double denominator = 1.5 * (dot(l[0], l[0]) + dot(l[2], l[2]) + dot(l[3], l[3])) -
                               (dot(l[0], reversed) + dot(l[3], l[0]) + dot(reversed, l[3]));
    return numerator / denominator;
}

inline double shapeAndSize(double shape, double relativeSize)
{
    return shape * relativeSize;
}

/// What one element contributes on its own, before its volume is compared with the mean.
struct Measures
{
    double volume = 0.0;
    double edgeRatio = 0.0;
    double aspectRatio = 0.0;
    double aspectGamma = 0.0;
    double condition = 0.0;
    double jacobian = 0.0;
    double radiusRatio = 0.0;
    double scaledJacobian = 0.0;
    double shape = 0.0;
};

/// The longest and the shortest of the lengths |L0| to |L5|. They are scanned in the order P0P1, P0P2, P0P3, P1P2,
/// P1P3, P2P3, which decides the outcome when some are no numbers.
struct EdgeRange
{
    double longest;
    double shortest;
};

inline EdgeRange edgeRange(const std::array<double, 6>& lengths)
{
    EdgeRange range{lengths[0], lengths[0]};
    for (const double candidate : {lengths[2], lengths[3], lengths[1], lengths[4], lengths[5]}) {
        range.longest = candidate > range.longest ? candidate : range.longest;
        range.shortest = candidate < range.shortest ? candidate : range.shortest;
    }
    return range;
}

inline Measures measures(const Corners& corners)
{
    const Edges l = edges(corners);
    const std::array<double, 6> edgeLengths = lengths(l);
    const EdgeRange range = edgeRange(edgeLengths);
    Measures result;
    result.jacobian = jacobian(l);
    result.volume = result.jacobian / 6.0;
    const double radius = inradius(result.volume, area(l));
    result.edgeRatio = edgeRatio(range.longest, range.shortest);
    result.aspectRatio = aspectRatio(range.longest, radius);
    result.aspectGamma = aspectGamma(edgeLengths, result.volume);
    result.condition = condition(l);
    result.radiusRatio = radiusRatio(circumradiusFigure(l, result.volume), radius);
    result.scaledJacobian = scaledJacobian(edgeLengths, result.jacobian);
    result.shape = shape(l, result.jacobian);
    return result;
}

} // namespace DataManager::Tetrahedron
