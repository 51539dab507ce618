// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/private/Tetrahedron.h>

#include <QVector>

#include <limits>

/// Between the nested tables of the public operations and plain values. Nothing is read out of range.
namespace DataManager::VectorTable {

constexpr double missing = std::numeric_limits<double>::quiet_NaN();

inline double component(const QVector<double>& v, int index)
{
    return v.value(index);
}

inline Tetrahedron::Vector plain(const QVector<double>& v)
{
    return {component(v, 0), component(v, 1), component(v, 2)};
}

/// Throws std::bad_alloc where the memory ends, which a vector made of a list of values would not.
inline QVector<double> table(const Tetrahedron::Vector& v)
{
    QVector<double> values(3);
    double* const place = values.data();
    place[0] = v.x;
    place[1] = v.y;
    place[2] = v.z;
    return values;
}

inline double valueAt(const QVector<double>& values, int index)
{
    return values.value(index, missing);
}

/// The six edge vectors of an element that has exactly six.
inline Tetrahedron::Edges edges(const QVector<QVector<double>>& l)
{
    return {plain(l.at(0)), plain(l.at(1)), plain(l.at(2)), plain(l.at(3)), plain(l.at(4)), plain(l.at(5))};
}

} // namespace DataManager::VectorTable
