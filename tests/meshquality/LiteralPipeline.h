// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>
#include <QVector>

#include <array>

/// The way from a mesh file to the feature vector, written a second time: line by line and container by container, with
/// nothing shared with the library. Slow, and meant to be checked by reading.
namespace LiteralPipeline {

using Values = QVector<double>;
using Points = QVector<QVector<double>>;
using PointsOfElements = QVector<QVector<QVector<double>>>;
using Numbers = QVector<QVector<int>>;

struct Mesh
{
    Points nodes;
    Numbers elements;
};

Mesh read(const QString& path);
PointsOfElements elementNodes(const Mesh& mesh);
PointsOfElements edgeVectors(const PointsOfElements& elementNodes);
Points lineLengths(const PointsOfElements& elementNodes);

struct Figures
{
    Values As, Lmaxs, Lmins, Rs, rs, Vs;
};

Figures figures(const PointsOfElements& edgeVectors, const Points& lengths);

/// Volumes and the ten metrics, in the order of the feature vector.
std::array<Values, 11> metrics(const Mesh& mesh);

std::array<float, 11> features(const QString& path);

} // namespace LiteralPipeline
