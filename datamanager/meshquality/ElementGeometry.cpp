// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/MeshQualityPredict.h>

#include <datamanager/meshquality/private/VectorTable.h>

namespace DataManager {

using VectorTable::plain;
using VectorTable::table;

namespace {

bool hasFigures(const QVector<QVector<double>>& edgeVectors, const QVector<QVector<double>>& edgeLengths, int element)
{
    return edgeVectors.size() == 6 && !edgeLengths.value(element).isEmpty();
}

QVector<QVector<double>> edgeTable(const QVector<QVector<double>>& corners)
{
    QVector<QVector<double>> vectors;
    vectors.reserve(6);
    const Tetrahedron::Corners points{plain(corners.at(0)), plain(corners.at(1)), plain(corners.at(2)),
                                      plain(corners.at(3))};
    for (const Tetrahedron::Vector& edge : Tetrahedron::edges(points)) {
        vectors.append(table(edge));
    }
    return vectors;
}

QVector<double> pairDistances(const QVector<QVector<double>>& points)
{
    QVector<double> distances;
    distances.reserve(points.size() * (points.size() - 1) / 2);
    for (int i = 0; i + 1 < points.size(); ++i) {
        for (int j = i + 1; j < points.size(); ++j) {
            distances.append(Tetrahedron::length(Tetrahedron::minus(plain(points.at(i)), plain(points.at(j)))));
        }
    }
    return distances;
}

} // namespace

QVector<double> MeshQualityPredict::ab(double k, QVector<double> v)
{
    return table(Tetrahedron::scaled(k, plain(v)));
}

double MeshQualityPredict::ab(QVector<double> a, QVector<double> b)
{
    return Tetrahedron::dot(plain(a), plain(b));
}

QVector<double> MeshQualityPredict::axb(QVector<double> a, QVector<double> b)
{
    return table(Tetrahedron::cross(plain(a), plain(b)));
}

QVector<double> MeshQualityPredict::minus(QVector<double> a, QVector<double> b)
{
    return table(Tetrahedron::minus(plain(a), plain(b)));
}

QVector<double> MeshQualityPredict::plus(QVector<double> a, QVector<double> b)
{
    return table(Tetrahedron::plus(plain(a), plain(b)));
}

QVector<double> MeshQualityPredict::calculate_vector(QVector<double> a, QVector<double> b)
{
    return table(Tetrahedron::minus(plain(b), plain(a)));
}

double MeshQualityPredict::calculate_vectorLength(QVector<double> v)
{
    return Tetrahedron::length(plain(v));
}

QVector<QVector<QVector<double>>> MeshQualityPredict::get_vectorLs(QVector<QVector<QVector<double>>> elementsNodes)
{
    QVector<QVector<QVector<double>>> edgeVectors(elementsNodes.size());
    for (int i = 0; i < elementsNodes.size(); ++i) {
        if (elementsNodes.at(i).size() == 4) {
            edgeVectors[i] = edgeTable(elementsNodes.at(i));
        }
    }
    return edgeVectors;
}

QVector<QVector<double>> MeshQualityPredict::get_ElementsLinesLength(QVector<QVector<QVector<double>>> elementsNodes)
{
    QVector<QVector<double>> lengths;
    lengths.reserve(elementsNodes.size());
    for (const QVector<QVector<double>>& points : std::as_const(elementsNodes)) {
        lengths.append(pairDistances(points));
    }
    return lengths;
}

void MeshQualityPredict::get_As_Lmaxs_Lmins_Rs_rs_Vs(QVector<QVector<QVector<double>>> edgeVectors,
                                                     QVector<QVector<double>> edgeLengths, QVector<double>& As,
                                                     QVector<double>& Lmaxs, QVector<double>& Lmins,
                                                     QVector<double>& Rs, QVector<double>& rs, QVector<double>& Vs)
{
    for (QVector<double>* list : {&As, &Lmaxs, &Lmins, &Rs, &rs, &Vs}) {
        list->reserve(list->size() + edgeVectors.size());
    }
    // Place i of Vs may belong to a later element, so all volumes come first.
    for (int i = 0; i < edgeVectors.size(); ++i) {
        if (hasFigures(edgeVectors.at(i), edgeLengths, i)) {
            Vs.append(Tetrahedron::volume(VectorTable::edges(edgeVectors.at(i))));
        }
    }
    for (int i = 0; i < edgeVectors.size(); ++i) {
        if (!hasFigures(edgeVectors.at(i), edgeLengths, i)) {
            continue;
        }
        const Tetrahedron::Edges edges = VectorTable::edges(edgeVectors.at(i));
        const QVector<double>& lengths = edgeLengths.at(i);
        const double area = Tetrahedron::area(edges);
        const double volume = VectorTable::valueAt(Vs, i);
        As.append(area);
        Lmaxs.append(*std::max_element(lengths.begin(), lengths.end()));
        Lmins.append(*std::min_element(lengths.begin(), lengths.end()));
        rs.append(Tetrahedron::inradius(volume, area));
        Rs.append(Tetrahedron::circumradiusFigure(edges, volume));
    }
}

} // namespace DataManager
