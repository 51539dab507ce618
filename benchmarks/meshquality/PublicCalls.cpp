// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Contender.h"

#include <datamanager/meshquality/MeshQualityPredict.h>

#include <numeric>

double publicCalls(const std::string& path)
{
    DataManager::MeshQualityPredict predict;
    QVector<QVector<double>> nodes;
    QVector<QVector<int>> elements;
    predict.get_Nodes_Elements(QString::fromStdString(path), nodes, elements);
    const auto corners = predict.get_ElementsNodes(nodes, elements);
    const auto lengths = predict.get_ElementsLinesLength(corners);
    const auto edges = predict.get_vectorLs(corners);
    QVector<double> As, Lmaxs, Lmins, Rs, rs, Vs;
    predict.get_As_Lmaxs_Lmins_Rs_rs_Vs(edges, lengths, As, Lmaxs, Lmins, Rs, rs, Vs);
    const QVector<double> edgeRatios = predict.get_EdgeRatio(Lmaxs, Lmins);
    const QVector<double> aspectRatios = predict.get_AspectRatio(Lmaxs, rs);
    const QVector<double> aspectGammas = predict.get_AspectGamma(edges, Vs);
    const QVector<double> conditions = predict.get_Condition(edges, As);
    const QVector<double> jacobians = predict.get_Jacobian(edges);
    const QVector<double> radiusRatios = predict.get_RadiusRatio(Rs, rs);
    const QVector<double> sizes = predict.get_RelativeSizeSquared(Vs);
    const QVector<double> scaledJacobians = predict.get_ScaledJacobian(edges, jacobians);
    const QVector<double> shapes = predict.get_Shape(edges, jacobians);
    const QVector<double> shapesAndSizes = predict.get_ShapeAndSize(shapes, sizes);
    double sum = 0.0;
    for (const QVector<double>* values :
         {&std::as_const(Vs), &edgeRatios, &aspectRatios, &aspectGammas, &conditions, &jacobians, &radiusRatios, &sizes,
          &scaledJacobians, &shapes, &shapesAndSizes}) {
        const double total = std::accumulate(values->begin(), values->end(), 0.0);
        sum += static_cast<double>(static_cast<float>(total / static_cast<double>(values->size())));
    }
    return sum;
}
