// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/mesh/KernelMesh.h>

#include <datamanager/meshquality/MeshQualityReport.h>
#include <meshquality/Check.h>

#include <QSharedPointer>
#include <QString>

#include <vector>

namespace Workbench {

/// Which figures are wanted.
struct FiguresRequest
{
    int kernelID = 0;
    /// Null where there is no mesh; there are no figures then.
    QSharedPointer<const KernelMesh> mesh;
    DataManager::MeshQualityReport::Metric metric = DataManager::MeshQualityReport::Metric::ScaledJacobian;
    int worstCount = 0;
    /// Null for no checks.
    QSharedPointer<const MeshQuality::Profile> profile;

    bool operator==(const FiguresRequest& other) const
    {
        return kernelID == other.kernelID && mesh == other.mesh && metric == other.metric &&
               worstCount == other.worstCount && profile == other.profile;
    }
};

/// What the quality panel shows of one mesh by one metric.
struct QualityFigures
{
    using Regions = std::vector<DataManager::MeshQualityReport::Region>;

    FiguresRequest request;
    DataManager::MeshQualityReport::Summary summary{};
    DataManager::MeshQualityReport::Histogram histogram{};
    /// Places of the worst elements, the worst first.
    std::vector<int> worst;
    /// Of all metrics; null without a mesh.
    QSharedPointer<const Regions> regions;
    /// Of the thresholds of the profile, in their order.
    std::vector<MeshQuality::Finding> findings;

    static constexpr int bins = 30;
};

/// Computes the figures. `known` may be earlier ones, whose regions are taken over when they are of the same mesh. Uses
/// nothing that is shared and changes, so it may run in any thread.
QualityFigures measureFigures(const FiguresRequest& request, const QualityFigures& known = {});

/// Places of the elements whose values lie in the bins of the histogram from `first` to `last`, both within it,
/// ascending.
std::vector<int> elementsInBins(const QualityFigures& figures, int first, int last);

/// Places of the elements that lie outside of one of these thresholds, by their places in the profile, or of any where
/// none is given; ascending.
std::vector<int> elementsOutside(const QualityFigures& figures, const std::vector<int>& thresholds);

/// A physical group for people: its name, or its tag where it has none.
QString regionText(int physicalTag, const QString& name);

} // namespace Workbench
