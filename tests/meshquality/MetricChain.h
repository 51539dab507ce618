// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "LiteralPipeline.h"

#include <datamanager/meshquality/MeshQualityPredict.h>

/// The way from a mesh file to the feature vector by the predictor's own public calls, one after another.
namespace MetricChain {

using DataManager::MeshQualityPredict;

/// Volumes and the ten metrics, in the order of the feature vector.
inline std::array<QVector<double>, 11> metrics(MeshQualityPredict& predict,
                                               const LiteralPipeline::PointsOfElements& corners)
{
    const QVector<QVector<double>> lengths = predict.get_ElementsLinesLength(corners);
    const LiteralPipeline::PointsOfElements edges = predict.get_vectorLs(corners);
    QVector<double> As, Lmaxs, Lmins, Rs, rs, Vs;
    predict.get_As_Lmaxs_Lmins_Rs_rs_Vs(edges, lengths, As, Lmaxs, Lmins, Rs, rs, Vs);
    const QVector<double> Js = predict.get_Jacobian(edges);
    const QVector<double> sizes = predict.get_RelativeSizeSquared(Vs);
    const QVector<double> shapes = predict.get_Shape(edges, Js);
    return {Vs,
            predict.get_EdgeRatio(Lmaxs, Lmins),
            predict.get_AspectRatio(Lmaxs, rs),
            predict.get_AspectGamma(edges, Vs),
            predict.get_Condition(edges, As),
            Js,
            predict.get_RadiusRatio(Rs, rs),
            sizes,
            predict.get_ScaledJacobian(edges, Js),
            shapes,
            predict.get_ShapeAndSize(shapes, sizes)};
}

inline std::array<QVector<double>, 11> metrics(MeshQualityPredict& predict, const QString& path)
{
    QVector<QVector<double>> nodes;
    QVector<QVector<int>> elements;
    predict.get_Nodes_Elements(path, nodes, elements);
    return metrics(predict, predict.get_ElementsNodes(nodes, elements));
}

inline std::array<float, 11> features(MeshQualityPredict& predict, const QString& path)
{
    const std::array<QVector<double>, 11> values = metrics(predict, path);
    std::array<float, 11> means{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        double sum = 0.0;
        for (const double value : values[i]) {
            sum += value;
        }
        means[i] = static_cast<float>(sum / static_cast<double>(values[i].size()));
    }
    return means;
}

} // namespace MetricChain
