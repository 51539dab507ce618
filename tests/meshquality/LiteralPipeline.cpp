// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "LiteralPipeline.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace LiteralPipeline {

namespace {

void readLines(const QString& path, QStringList& nodeLines, QStringList& elementLines)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return;
    }
    bool inNodes = false;
    bool inElements = false;
    while (!file.atEnd()) {
        const QByteArray bytes = file.readLine();
        const QString line = QString::fromUtf8(bytes.constData(), bytes.size());
        if (line.contains(QStringLiteral("$Nodes"))) {
            inNodes = true;
        } else if (line.contains(QStringLiteral("$EndNodes"))) {
            inNodes = false;
        } else if (line.contains(QStringLiteral("$Elements"))) {
            inElements = true;
        } else if (line.contains(QStringLiteral("$EndElements"))) {
            inElements = false;
        } else if (inNodes) {
            nodeLines.append(line);
        } else if (inElements) {
            elementLines.append(line);
        }
    }
}

bool namesNodes(const QVector<int>& element, int nodeCount)
{
    for (int number : element) {
        if (number < 1 || number > nodeCount) {
            return false;
        }
    }
    return true;
}

double dot(const Values& a, const Values& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Values cross(const Values& a, const Values& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Values times(double k, const Values& v)
{
    return {k * v[0], k * v[1], k * v[2]};
}
Values sum(const Values& a, const Values& b)
{
    return {a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}
Values difference(const Values& a, const Values& b)
{
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

double length(const Values& v)
{
    return std::sqrt(std::pow(v[0], 2.0) + std::pow(v[1], 2.0) + std::pow(v[2], 2.0));
}

} // namespace

Mesh read(const QString& path)
{
    QStringList nodeLines;
    QStringList elementLines;
    readLines(path, nodeLines, elementLines);

    Mesh mesh;
    for (const QString& line : nodeLines.mid(1)) {
        const QStringList parts = line.split(QStringLiteral(" "));
        if (parts.size() >= 4) {
            mesh.nodes.append({parts[1].toDouble(), parts[2].toDouble(), parts[3].toDouble()});
        }
    }
    for (const QString& line : elementLines.mid(1)) {
        const QStringList parts = line.split(QStringLiteral(" "));
        if (parts.size() >= 9 && parts[1] == QStringLiteral("4")) {
            const QVector<int> element{parts[5].toInt(), parts[6].toInt(), parts[7].toInt(), parts[8].toInt()};
            if (namesNodes(element, mesh.nodes.size())) {
                mesh.elements.append(element);
            }
        }
    }
    return mesh;
}

PointsOfElements elementNodes(const Mesh& mesh)
{
    PointsOfElements result;
    for (const QVector<int>& element : mesh.elements) {
        Points points;
        for (int number : element) {
            points.append(mesh.nodes[number - 1]);
        }
        result.append(points);
    }
    return result;
}

PointsOfElements edgeVectors(const PointsOfElements& elementNodes)
{
    PointsOfElements result;
    for (const Points& p : elementNodes) {
        result.append({difference(p[1], p[0]), difference(p[2], p[1]), difference(p[0], p[2]), difference(p[3], p[0]),
                       difference(p[3], p[1]), difference(p[3], p[2])});
    }
    return result;
}

Points lineLengths(const PointsOfElements& elementNodes)
{
    Points result;
    for (const Points& p : elementNodes) {
        Values lengths;
        for (int i = 0; i < p.size() - 1; ++i) {
            for (int j = i + 1; j < p.size(); ++j) {
                lengths.append(std::sqrt(std::pow(p[i][0] - p[j][0], 2.0) + std::pow(p[i][1] - p[j][1], 2.0) +
                                         std::pow(p[i][2] - p[j][2], 2.0)));
            }
        }
        result.append(lengths);
    }
    return result;
}

Figures figures(const PointsOfElements& edgeVectors, const Points& lengths)
{
    Figures f;
    for (int i = 0; i < edgeVectors.size(); ++i) {
        const Points& L = edgeVectors[i];
        const double A = 0.5 * (length(cross(L[2], L[0])) + length(cross(L[3], L[0])) + length(cross(L[4], L[1])) +
                                length(cross(L[3], L[2])));
        f.As.append(A);
        double longest = lengths[i][0];
        double shortest = lengths[i][0];
        for (double candidate : lengths[i]) {
            if (candidate > longest) {
                longest = candidate;
            }
            if (candidate < shortest) {
                shortest = candidate;
            }
        }
        f.Lmaxs.append(longest);
        f.Lmins.append(shortest);
        f.Vs.append(dot(cross(L[2], L[0]), L[3]) / 6.0);
        f.rs.append(f.Vs[i] * 3.0 / A);
        Values joined = times(std::pow(length(L[3]), 2.0), cross(L[2], L[0]));
        joined += times(std::pow(length(L[2]), 2.0), cross(L[3], L[0]));
        joined += times(std::pow(length(L[0]), 2.0), cross(L[3], L[2]));
        f.Rs.append(length(joined) / (f.Vs[i] * 12.0));
    }
    return f;
}

namespace {

double aspectGamma(const Points& L, double V)
{
    double squares = std::pow(length(L[0]), 2.0);
    for (int edge = 1; edge < 6; ++edge) {
        squares = squares + std::pow(length(L[edge]), 2.0);
    }
    const double s = std::sqrt(squares / 6.0);
    return std::sqrt(2.0) * std::pow(s, 3.0) / (V * 12.0);
}

double condition(const Points& L)
{
    const Values c1 = L[0];
    const Values c2 = times(1.0 / std::sqrt(3.0), difference(times(-2.0, L[2]), L[0]));
    const Values c3 = difference(sum(times(3.0, L[3]), L[2]), L[0]);
    const double term1 = dot(c1, c1) + dot(c2, c2) + dot(c3, c3);
    const double term2 =
        dot(cross(c1, c2), cross(c1, c2)) + dot(cross(c2, c3), cross(c2, c3)) + dot(cross(c1, c3), cross(c1, c3));
    const double det = dot(cross(c2, c3), c1);
    return std::sqrt(term1 * term2) / (det * 3.0);
}

double scaledJacobian(const Points& L, double J)
{
    const double corner0 = length(L[0]) * length(L[2]) * length(L[3]);
    const double corner1 = length(L[0]) * length(L[1]) * length(L[4]);
    const double corner2 = length(L[1]) * length(L[2]) * length(L[5]);
    const double corner3 = length(L[3]) * length(L[4]) * length(L[5]);
    double m = std::max(corner3, std::max(corner2, std::max(corner1, corner0)));
    if (J > m) {
        m = J;
    }
    return std::sqrt(2.0) * J / m;
}

double shape(const Points& L, double J)
{
    const double j = static_cast<double>(static_cast<float>(J));
    const Values minusL2 = times(-1.0, L[2]);
    const double numerator = 3.0 * std::pow(std::sqrt(2.0) * j, 0.6666666666666666);
    const double denominator = 1.5 * (dot(L[0], L[0]) + dot(L[2], L[2]) + dot(L[3], L[3])) -
                               (dot(L[0], minusL2) + dot(L[3], L[0]) + dot(minusL2, L[3]));
    return numerator / denominator;
}

} // namespace

std::array<Values, 11> metrics(const Mesh& mesh)
{
    const PointsOfElements nodes = elementNodes(mesh);
    const PointsOfElements vectors = edgeVectors(nodes);
    const Figures f = figures(vectors, lineLengths(nodes));
    double volumeSum = 0.0;
    for (double V : f.Vs) {
        volumeSum += V;
    }
    const double meanVolume = volumeSum / static_cast<double>(f.Vs.size());

    std::array<Values, 11> result;
    result[0] = f.Vs;
    for (int i = 0; i < vectors.size(); ++i) {
        const Points& L = vectors[i];
        const double J = dot(cross(L[2], L[0]), L[3]);
        result[1].append(f.Lmaxs[i] / f.Lmins[i]);
        result[2].append(f.Lmaxs[i] / ((std::sqrt(6.0) + std::sqrt(6.0)) * f.rs[i]));
        result[3].append(aspectGamma(L, f.Vs[i]));
        result[4].append(condition(L));
        result[5].append(J);
        result[6].append(f.Rs[i] / (3.0 * f.rs[i]));
        const double x = f.Vs[i] / meanVolume;
        const double y = 1.0 / x;
        result[7].append(y > x ? x : y);
        result[8].append(scaledJacobian(L, J));
        result[9].append(shape(L, J));
        result[10].append(result[9][i] * result[7][i]);
    }
    return result;
}

std::array<float, 11> features(const QString& path)
{
    const std::array<Values, 11> values = metrics(read(path));
    std::array<float, 11> means{};
    for (std::size_t metric = 0; metric < values.size(); ++metric) {
        double total = 0.0;
        for (double value : values[metric]) {
            total += value;
        }
        means[metric] = static_cast<float>(total / static_cast<double>(values[metric].size()));
    }
    return means;
}

} // namespace LiteralPipeline
