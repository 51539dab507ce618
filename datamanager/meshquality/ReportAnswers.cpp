// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/MeshQualityReport.h>

#include <datamanager/meshquality/private/Distribution.h>

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

std::vector<int> MeshQualityReport::worst(Metric metric, int count) const
{
    std::vector<int> elements(static_cast<std::size_t>(elementCount()));
    std::iota(elements.begin(), elements.end(), 0);
    const auto kept = elements.begin() + std::clamp(count, 0, elementCount());
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
    QMap<int, std::vector<std::size_t>> elements;
    for (std::size_t i = 0; i < m_physicalTags.size(); ++i) {
        elements[m_physicalTags[i]].push_back(i);
    }
    std::vector<Region> result;
    for (auto group = elements.cbegin(); group != elements.cend(); ++group) {
        Region region{group.key(), m_groupNames.value(group.key()), static_cast<int>(group->size()), 0, 0, {}};
        for (std::size_t metric = 0; metric < metricCount; ++metric) {
            std::vector<double> list;
            list.reserve(group->size());
            for (const std::size_t element : *group) {
                list.push_back(m_values[metric][element]);
            }
            region.summaries[metric] = Distribution::summary(std::move(list));
        }
        const std::vector<double>& volumes = values(Metric::Volume);
        for (const std::size_t element : *group) {
            region.invertedCount += volumes[element] < 0.0 ? 1 : 0;
            region.flatCount += volumes[element] == 0.0 ? 1 : 0;
        }
        result.push_back(region);
    }
    return result;
}

} // namespace DataManager
