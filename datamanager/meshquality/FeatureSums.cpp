// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/private/FeatureSums.h>

#include <datamanager/meshquality/private/LargePages.h>

namespace DataManager {

void FeatureSums::reserve(std::size_t elements)
{
    reserveInLargePages(m_volumes, elements);
    reserveInLargePages(m_shapes, elements);
}

void FeatureSums::add(const Tetrahedron::Measures& element)
{
    m_sums.volume += element.volume;
    m_sums.edgeRatio += element.edgeRatio;
    m_sums.aspectRatio += element.aspectRatio;
    m_sums.aspectGamma += element.aspectGamma;
    m_sums.condition += element.condition;
    m_sums.jacobian += element.jacobian;
    m_sums.radiusRatio += element.radiusRatio;
    m_sums.scaledJacobian += element.scaledJacobian;
    m_sums.shape += element.shape;
    m_volumes.push_back(element.volume);
    m_shapes.push_back(element.shape);
}

double FeatureSums::meanVolume() const
{
    return m_sums.volume / static_cast<double>(m_volumes.size());
}

FeatureMeans FeatureSums::means() const
{
    const double mean = meanVolume();
    double relativeSizes = 0.0;
    double shapesAndSizes = 0.0;
    for (std::size_t i = 0; i < m_volumes.size(); ++i) {
        const double relativeSize = Tetrahedron::relativeSize(m_volumes[i], mean);
        relativeSizes += relativeSize;
        shapesAndSizes += Tetrahedron::shapeAndSize(m_shapes[i], relativeSize);
    }
    const double count = static_cast<double>(m_volumes.size());
    const std::array<double, 11> sums{m_sums.volume,         m_sums.edgeRatio, m_sums.aspectRatio, m_sums.aspectGamma,
                                      m_sums.condition,      m_sums.jacobian,  m_sums.radiusRatio, relativeSizes,
                                      m_sums.scaledJacobian, m_sums.shape,     shapesAndSizes};
    FeatureMeans means{};
    std::transform(sums.begin(), sums.end(), means.begin(),
                   [count](double sum) { return static_cast<float>(sum / count); });
    return means;
}

} // namespace DataManager
