// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/MeshQualityPredict.h>

#include <datamanager/meshquality/private/VectorTable.h>

#include <numeric>

namespace DataManager {

namespace {

using EdgeVectors = QVector<QVector<QVector<double>>>;

template <class Formula>
QVector<double> forEachPair(const QVector<double>& first, const QVector<double>& second, Formula formula)
{
    QVector<double> result;
    result.reserve(first.size());
    for (int i = 0; i < first.size(); ++i) {
        result.append(formula(first.at(i), VectorTable::valueAt(second, i)));
    }
    return result;
}

/// `formula` takes the edges of an element and its index.
template <class Formula>
QVector<double> forEachElement(const EdgeVectors& edgeVectors, Formula formula)
{
    QVector<double> result;
    result.reserve(edgeVectors.size());
    for (int i = 0; i < edgeVectors.size(); ++i) {
        const QVector<QVector<double>>& vectors = edgeVectors.at(i);
        result.append(vectors.size() == 6 ? formula(VectorTable::edges(vectors), i) : VectorTable::missing);
    }
    return result;
}

} // namespace

QVector<double> MeshQualityPredict::get_AspectRatio(QVector<double> Lmaxs, QVector<double> rs)
{
    return forEachPair(Lmaxs, rs, Tetrahedron::aspectRatio<double>);
}

QVector<double> MeshQualityPredict::get_AspectGamma(EdgeVectors edgeVectors, QVector<double> Vs)
{
    return forEachElement(edgeVectors, [&Vs](const Tetrahedron::Edges& edges, int i) {
        return Tetrahedron::aspectGamma(Tetrahedron::lengths(edges), VectorTable::valueAt(Vs, i));
    });
}

QVector<double> MeshQualityPredict::get_Condition(EdgeVectors edgeVectors, QVector<double> As)
{
    Q_UNUSED(As)
    return forEachElement(edgeVectors,
                          [](const Tetrahedron::Edges& edges, int) { return Tetrahedron::condition(edges); });
}

QVector<double> MeshQualityPredict::get_EdgeRatio(QVector<double> Lmaxs, QVector<double> Lmins)
{
    return forEachPair(Lmaxs, Lmins, Tetrahedron::edgeRatio<double>);
}

QVector<double> MeshQualityPredict::get_Jacobian(EdgeVectors edgeVectors)
{
    return forEachElement(edgeVectors,
                          [](const Tetrahedron::Edges& edges, int) { return Tetrahedron::jacobian(edges); });
}

QVector<double> MeshQualityPredict::get_RadiusRatio(QVector<double> Rs, QVector<double> rs)
{
    return forEachPair(Rs, rs, Tetrahedron::radiusRatio<double>);
}

QVector<double> MeshQualityPredict::get_RelativeSizeSquared(QVector<double> Vs)
{
    const double mean = std::accumulate(Vs.cbegin(), Vs.cend(), 0.0) / static_cast<double>(Vs.size());
    QVector<double> result;
    result.reserve(Vs.size());
    for (const double volume : std::as_const(Vs)) {
        result.append(Tetrahedron::relativeSize(volume, mean));
    }
    return result;
}

QVector<double> MeshQualityPredict::get_ScaledJacobian(EdgeVectors edgeVectors, QVector<double> Js)
{
    return forEachElement(edgeVectors, [&Js](const Tetrahedron::Edges& edges, int i) {
        return Tetrahedron::scaledJacobian(Tetrahedron::lengths(edges), VectorTable::valueAt(Js, i));
    });
}

QVector<double> MeshQualityPredict::get_Shape(EdgeVectors edgeVectors, QVector<double> Js)
{
    return forEachElement(edgeVectors, [&Js](const Tetrahedron::Edges& edges, int i) {
        return Tetrahedron::shape(edges, VectorTable::valueAt(Js, i));
    });
}

QVector<double> MeshQualityPredict::get_ShapeAndSize(QVector<double> shapes, QVector<double> relativeSizes)
{
    return forEachPair(shapes, relativeSizes, Tetrahedron::shapeAndSize);
}

} // namespace DataManager
