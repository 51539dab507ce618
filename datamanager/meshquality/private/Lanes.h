// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/private/Tetrahedron.h>

/// Several numbers that are computed side by side. Each lane goes through the operations of a lone double in the same
/// order, so it holds the same value; the loops have a fixed length, and the compiler makes vector instructions of
/// them.
namespace DataManager::Tetrahedron {

struct Lanes
{
    static constexpr std::size_t count = 4;
    double v[count] = {};
};

template <class Operation>
Lanes forEachLane(const Lanes& a, Operation operation)
{
    Lanes result;
    for (std::size_t i = 0; i < Lanes::count; ++i) {
        result.v[i] = operation(a.v[i]);
    }
    return result;
}

template <class Operation>
Lanes forEachLane(const Lanes& a, const Lanes& b, Operation operation)
{
    Lanes result;
    for (std::size_t i = 0; i < Lanes::count; ++i) {
        result.v[i] = operation(a.v[i], b.v[i]);
    }
    return result;
}

// clang-format off
inline Lanes operator+(const Lanes& a, const Lanes& b) { return forEachLane(a, b, [](double x, double y) { return x + y; }); }
inline Lanes operator-(const Lanes& a, const Lanes& b) { return forEachLane(a, b, [](double x, double y) { return x - y; }); }
inline Lanes operator*(const Lanes& a, const Lanes& b) { return forEachLane(a, b, [](double x, double y) { return x * y; }); }
inline Lanes operator/(const Lanes& a, const Lanes& b) { return forEachLane(a, b, [](double x, double y) { return x / y; }); }
inline Lanes operator*(double k, const Lanes& a) { return forEachLane(a, [k](double x) { return k * x; }); }
inline Lanes operator*(const Lanes& a, double k) { return forEachLane(a, [k](double x) { return x * k; }); }
inline Lanes operator/(const Lanes& a, double k) { return forEachLane(a, [k](double x) { return x / k; }); }

inline Lanes square(const Lanes& a) { return forEachLane(a, [](double x) { return square(x); }); }
inline Lanes squareRoot(const Lanes& a) { return forEachLane(a, [](double x) { return squareRoot(x); }); }
inline Lanes power(const Lanes& a, double exponent) { return forEachLane(a, [exponent](double x) { return power(x, exponent); }); }
inline Lanes larger(const Lanes& a, const Lanes& b) { return forEachLane(a, b, [](double x, double y) { return larger(x, y); }); }
inline Lanes smallerIfLess(const Lanes& a, const Lanes& b) { return forEachLane(a, b, [](double x, double y) { return smallerIfLess(x, y); }); }
inline Lanes largerIfGreater(const Lanes& a, const Lanes& b) { return forEachLane(a, b, [](double x, double y) { return largerIfGreater(x, y); }); }
inline Lanes inSinglePrecision(const Lanes& a) { return forEachLane(a, [](double x) { return inSinglePrecision(x); }); }
// clang-format on

} // namespace DataManager::Tetrahedron
