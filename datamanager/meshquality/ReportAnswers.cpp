// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/MeshQualityReport.h>

#include <datamanager/meshquality/private/Distribution.h>
#include <datamanager/meshquality/private/MeshTables.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace DataManager {

namespace {

/// Larger is worse; ordered as worst() says.
struct Badness
{
    int kind;
    double value;

    bool operator>(const Badness& other) const { return kind != other.kind ? kind > other.kind : value > other.value; }
};

Badness badness(double value, double volume, bool isWorseWhenLarger)
{
    if (std::isnan(value)) {
        return {3, 0.0};
    }
    if (std::isinf(value)) {
        return {2, 0.0};
    }
    return {volume < 0.0 ? 1 : 0, isWorseWhenLarger ? std::fabs(value) : -value};
}

} // namespace

bool MeshQualityReport::metricOfName(const QString& name, Metric& metric)
{
    for (int i = 0; i < metricCount; ++i) {
        if (metricName(static_cast<Metric>(i)).compare(name, Qt::CaseInsensitive) == 0) {
            metric = static_cast<Metric>(i);
            return true;
        }
    }
    return false;
}

bool MeshQualityReport::isWorseWhenLarger(Metric metric)
{
    switch (metric) {
    case Metric::EdgeRatio:
    case Metric::AspectRatio:
    case Metric::AspectGamma:
    case Metric::Condition:
    case Metric::RadiusRatio:
        return true;
    default:
        return false;
    }
}

MeshQualityReport::Summary MeshQualityReport::summary(Metric metric) const
{
    return Distribution::summary(values(metric));
}

MeshQualityReport::Histogram MeshQualityReport::histogram(Metric metric, int bins) const
{
    return Distribution::histogram(values(metric), bins);
}

MeshQualityReport::Histogram MeshQualityReport::histogram(Metric metric, int bins, const Region& region) const
{
    return Distribution::histogram(valuesOf(metric, region.elements), bins);
}

std::vector<int> MeshQualityReport::worst(Metric metric, int count) const
{
    std::vector<int> elements(static_cast<std::size_t>(elementCount()));
    std::iota(elements.begin(), elements.end(), 0);
    return worstOf(std::move(elements), metric, count);
}

std::vector<int> MeshQualityReport::worst(Metric metric, int count, const Region& region) const
{
    return worstOf(region.elements, metric, count);
}

std::vector<int> MeshQualityReport::worstOf(std::vector<int> elements, Metric metric, int count) const
{
    const auto kept = elements.begin() + std::clamp(count, 0, static_cast<int>(elements.size()));
    const auto badnessOf = [this, metric](int element) {
        const std::size_t place = static_cast<std::size_t>(element);
        return badness(values(metric)[place], values(Metric::Volume)[place], isWorseWhenLarger(metric));
    };
    std::partial_sort(elements.begin(), kept, elements.end(), [&badnessOf](int a, int b) {
        const Badness badnessOfA = badnessOf(a);
        const Badness badnessOfB = badnessOf(b);
        return badnessOfA > badnessOfB || (!(badnessOfB > badnessOfA) && a < b);
    });
    elements.erase(kept, elements.end());
    return elements;
}

std::vector<MeshQualityReport::Region> MeshQualityReport::regions() const
{
    QMap<int, std::vector<int>> elements;
    for (int element = 0; element < elementCount(); ++element) {
        elements[physicalTag(element)].push_back(element);
    }
    std::vector<Region> result;
    for (auto group = elements.begin(); group != elements.end(); ++group) {
        result.push_back(region(group.key(), std::move(*group)));
    }
    return result;
}

MeshQualityReport::Region MeshQualityReport::region(int physicalTag, std::vector<int> elements) const
{
    Region region{physicalTag, m_groupNames.value(physicalTag), static_cast<int>(elements.size()), 0, 0, 0, {}, {}};
    for (std::size_t metric = 0; metric < metricCount; ++metric) {
        region.summaries[metric] = Distribution::summary(valuesOf(static_cast<Metric>(metric), elements));
    }
    for (const int element : elements) {
        const double volume = values(Metric::Volume)[static_cast<std::size_t>(element)];
        region.invertedCount += volume < 0.0 ? 1 : 0;
        region.flatCount += volume == 0.0 ? 1 : 0;
        region.duplicateNodeCount += repeatsNode(corners(element)) ? 1 : 0;
    }
    region.elements = std::move(elements);
    return region;
}

std::vector<double> MeshQualityReport::valuesOf(Metric metric, const std::vector<int>& elements) const
{
    std::vector<double> result(elements.size());
    std::transform(elements.begin(), elements.end(), result.begin(),
                   [&all = values(metric)](int element) { return all[static_cast<std::size_t>(element)]; });
    return result;
}

} // namespace DataManager
