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

/// `Real` is a double, or several that are computed side by side (Lanes).
template <class Real>
struct VectorOf
{
    Real x{};
    Real y{};
    Real z{};
};

/// The corners P0 to P3.
template <class Real>
using CornersOf = std::array<VectorOf<Real>, 4>;
/// P0P1, P1P2, P2P0, P0P3, P1P3, P2P3: L0 to L2 run around the base, L3 to L5 from the base to the apex.
template <class Real>
using EdgesOf = std::array<VectorOf<Real>, 6>;
/// |L0| to |L5|.
template <class Real>
using LengthsOf = std::array<Real, 6>;

using Vector = VectorOf<double>;
using Corners = CornersOf<double>;
using Edges = EdgesOf<double>;

inline double squareRoot(double value)
{
    return std::sqrt(value);
}
inline double power(double value, double exponent)
{
    return std::pow(value, exponent);
}
inline double larger(double a, double b)
{
    return std::max(a, b);
}
inline double smallerIfLess(double candidate, double kept)
{
    return candidate < kept ? candidate : kept;
}
inline double largerIfGreater(double candidate, double kept)
{
    return candidate > kept ? candidate : kept;
}
inline double inSinglePrecision(double value)
{
    return static_cast<double>(static_cast<float>(value));
}

template <class Real>
Real dot(const VectorOf<Real>& a, const VectorOf<Real>& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
template <class Factor, class Real>
VectorOf<Real> scaled(const Factor& k, const VectorOf<Real>& v)
{
    return {k * v.x, k * v.y, k * v.z};
}
template <class Real>
VectorOf<Real> minus(const VectorOf<Real>& a, const VectorOf<Real>& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
template <class Real>
VectorOf<Real> plus(const VectorOf<Real>& a, const VectorOf<Real>& b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

template <class Real>
VectorOf<Real> cross(const VectorOf<Real>& a, const VectorOf<Real>& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

/// Optimised builds make one multiplication of the call; it is written as a power because the power function of the C
/// library, which other builds call, rounds about one square in a thousand differently.
inline double square(double value)
{
    return std::pow(value, 2.0);
}

template <class Real>
Real length(const VectorOf<Real>& v)
{
    return squareRoot(square(v.x) + square(v.y) + square(v.z));
}

template <class Real>
EdgesOf<Real> edges(const CornersOf<Real>& p)
{
    return {minus(p[1], p[0]), minus(p[2], p[1]), minus(p[0], p[2]),
            minus(p[3], p[0]), minus(p[3], p[1]), minus(p[3], p[2])};
}

/// The lengths |L0| to |L5|.
template <class Real>
LengthsOf<Real> lengths(const EdgesOf<Real>& l)
{
    return {length(l[0]), length(l[1]), length(l[2]), length(l[3]), length(l[4]), length(l[5])};
}

/// The area of all four faces.
template <class Real>
Real area(const EdgesOf<Real>& l)
{
    return 0.5 * (length(cross(l[2], l[0])) + length(cross(l[3], l[0])) + length(cross(l[4], l[1])) +
                  length(cross(l[3], l[2])));
}

/// Six times the signed volume; positive when P3 lies where (P1 - P0) x (P2 - P0) points.
template <class Real>
Real jacobian(const EdgesOf<Real>& l)
{
    return dot(cross(l[2], l[0]), l[3]);
}

template <class Real>
Real volume(const EdgesOf<Real>& l)
{
    return jacobian(l) / 6.0;
}

template <class Real>
Real inradius(Real volume, Real area)
{
    return volume * 3.0 / area;
}

/// |L3|^2 |L2 x L0| / (12 V), the first of the three terms in the circumradius formula. The quality model was fitted
/// to this figure; it is the circumradius of a regular tetrahedron and of few others.
template <class Real>
Real circumradiusFigure(const EdgesOf<Real>& l, Real volume)
{
    return length(scaled(square(length(l[3])), cross(l[2], l[0]))) / (volume * 12.0);
}

template <class Real>
Real aspectRatio(Real longestEdge, Real inradius)
{
    return longestEdge / ((std::sqrt(6.0) + std::sqrt(6.0)) * inradius);
}

template <class Real>
Real edgeRatio(Real longestEdge, Real shortestEdge)
{
    return longestEdge / shortestEdge;
}

template <class Real>
Real radiusRatio(Real circumradius, Real inradius)
{
    return circumradius / (3.0 * inradius);
}

/// `lengths` are |L0| to |L5|.
template <class Real>
Real aspectGamma(const LengthsOf<Real>& lengths, Real volume)
{
    const Real squares = square(lengths[0]) + square(lengths[1]) + square(lengths[2]) + square(lengths[3]) +
                         square(lengths[4]) + square(lengths[5]);
    return std::sqrt(2.0) * power(squareRoot(squares / 6.0), 3.0) / (volume * 12.0);
}

/// The condition number with its third column not divided by sqrt(6); a regular tetrahedron has sqrt(52/27).
template <class Real>
Real condition(const EdgesOf<Real>& l)
{
    const VectorOf<Real> c1 = l[0];
    const VectorOf<Real> c2 = scaled(1.0 / std::sqrt(3.0), minus(scaled(-2.0, l[2]), l[0]));
    const VectorOf<Real> c3 = minus(plus(scaled(3.0, l[3]), l[2]), l[0]);
    const VectorOf<Real> c12 = cross(c1, c2);
    const VectorOf<Real> c23 = cross(c2, c3);
    const VectorOf<Real> c13 = cross(c1, c3);
    const Real term1 = dot(c1, c1) + dot(c2, c2) + dot(c3, c3);
    const Real term2 = dot(c12, c12) + dot(c23, c23) + dot(c13, c13);
    return squareRoot(term1 * term2) / (dot(c23, c1) * 3.0);
}

/// min(x, 1/x) of the volume in units of the mean volume; not squared.
inline double relativeSize(double volume, double meanVolume)
{
    const double size = volume / meanVolume;
    const double inverse = 1.0 / size;
    return inverse > size ? size : inverse;
}

/// `lengths` are |L0| to |L5|.
template <class Real>
Real scaledJacobian(const LengthsOf<Real>& lengths, Real jacobian)
{
    const Real corner0 = lengths[0] * lengths[2] * lengths[3];
    const Real corner1 = lengths[0] * lengths[1] * lengths[4];
    const Real corner2 = lengths[1] * lengths[2] * lengths[5];
    const Real corner3 = lengths[3] * lengths[4] * lengths[5];
    Real largest = larger(corner3, larger(corner2, larger(corner1, corner0)));
    largest = largerIfGreater(jacobian, largest);
    return std::sqrt(2.0) * jacobian / largest;
}

/// The Jacobian passes through single precision on purpose: the quality model was fitted to the figure so rounded.
template <class Real>
Real shape(const EdgesOf<Real>& l, Real jacobian)
{
    const Real rounded = inSinglePrecision(jacobian);
    const VectorOf<Real> reversed = scaled(-1.0, l[2]);
    const Real numerator = 3.0 * power(std::sqrt(2.0) * rounded, 0.6666666666666666);
    const Real denominator = 1.5 * (dot(l[0], l[0]) + dot(l[2], l[2]) + dot(l[3], l[3])) -
                             (dot(l[0], reversed) + dot(l[3], l[0]) + dot(reversed, l[3]));
    return numerator / denominator;
}

inline double shapeAndSize(double shape, double relativeSize)
{
    return shape * relativeSize;
}

/// What one element contributes on its own, before its volume is compared with the mean.
template <class Real>
struct MeasuresOf
{
    Real volume{};
    Real edgeRatio{};
    Real aspectRatio{};
    Real aspectGamma{};
    Real condition{};
    Real jacobian{};
    Real radiusRatio{};
    Real scaledJacobian{};
    Real shape{};
};

/// The longest and the shortest of the lengths |L0| to |L5|. They are scanned in the order P0P1, P0P2, P0P3, P1P2,
/// P1P3, P2P3, which decides the outcome when some are no numbers.
template <class Real>
struct EdgeRange
{
    Real longest;
    Real shortest;
};

template <class Real>
EdgeRange<Real> edgeRange(const LengthsOf<Real>& lengths)
{
    EdgeRange<Real> range{lengths[0], lengths[0]};
    for (const Real& candidate : {lengths[2], lengths[3], lengths[1], lengths[4], lengths[5]}) {
        range.longest = largerIfGreater(candidate, range.longest);
        range.shortest = smallerIfLess(candidate, range.shortest);
    }
    return range;
}

template <class Real>
MeasuresOf<Real> measures(const CornersOf<Real>& corners)
{
    const EdgesOf<Real> l = edges(corners);
    const LengthsOf<Real> edgeLengths = lengths(l);
    const EdgeRange<Real> range = edgeRange(edgeLengths);
    MeasuresOf<Real> result;
    result.jacobian = jacobian(l);
    result.volume = result.jacobian / 6.0;
    const Real radius = inradius(result.volume, area(l));
    result.edgeRatio = edgeRatio(range.longest, range.shortest);
    result.aspectRatio = aspectRatio(range.longest, radius);
    result.aspectGamma = aspectGamma(edgeLengths, result.volume);
    result.condition = condition(l);
    result.radiusRatio = radiusRatio(circumradiusFigure(l, result.volume), radius);
    result.scaledJacobian = scaledJacobian(edgeLengths, result.jacobian);
    result.shape = shape(l, result.jacobian);
    return result;
}

using Measures = MeasuresOf<double>;

} // namespace DataManager::Tetrahedron
