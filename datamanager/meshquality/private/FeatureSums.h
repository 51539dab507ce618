// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/private/MeshTables.h>

#include <array>
#include <vector>

namespace DataManager {

/// The eleven means in the order in which the quality model takes them: Volume, EdgeRatio, AspectRatio, AspectGamma,
/// Condition, Jacobian, RadiusRatio, RelativeSizeSquared, ScaledJacobian, Shape, ShapeAndSize.
using FeatureMeans = std::array<float, 11>;

/// Adds up the eleven features, element by element, and keeps of each element only what the comparison with the mean
/// volume needs in the end.
class FeatureSums
{
public:
    void reserve(std::size_t elements);
    void add(const Tetrahedron::Measures& element);
    /// The means of what was added; all are no numbers when that was nothing.
    FeatureMeans means() const;
    /// The mean volume, or no number.
    double meanVolume() const;

private:
    Tetrahedron::Measures m_sums;
    std::vector<double> m_volumes;
    std::vector<double> m_shapes;
};

} // namespace DataManager
