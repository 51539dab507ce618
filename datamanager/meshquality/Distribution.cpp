// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/private/Distribution.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace DataManager::Distribution {

namespace {

constexpr double none = std::numeric_limits<double>::quiet_NaN();

/// Between the two nearest values in order. Reorders them, but needs not sort them.
double percentile(std::vector<double>& values, double percent)
{
    const double place = percent / 100.0 * static_cast<double>(values.size() - 1);
    const auto below = values.begin() + static_cast<std::ptrdiff_t>(place);
    const double share = place - std::floor(place);
    std::nth_element(values.begin(), below, values.end());
    if (share == 0.0) {
        return *below;
    }
    return *below * (1.0 - share) + *std::min_element(below + 1, values.end()) * share;
}

double standardDeviation(const std::vector<double>& values, double mean)
{
    double squares = 0.0;
    for (const double value : values) {
        squares += (value - mean) * (value - mean);
    }
    return std::sqrt(squares / static_cast<double>(values.size()));
}

void removeNonFinite(std::vector<double>& values)
{
    values.erase(std::remove_if(values.begin(), values.end(), [](double value) { return !std::isfinite(value); }),
                 values.end());
}

} // namespace

MeshQualityReport::Summary summary(std::vector<double> values)
{
    const std::size_t all = values.size();
    removeNonFinite(values);
    const int nonFinite = static_cast<int>(all - values.size());
    if (values.empty()) {
        return {none, none, none, none, none, none, none, none, none, nonFinite};
    }
    const double mean = std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
    const double deviation = standardDeviation(values, mean);
    const auto [minimum, maximum] = std::minmax_element(values.begin(), values.end());
    const std::pair<double, double> range(*minimum, *maximum);
    return {range.first,
            percentile(values, 1.0),
            percentile(values, 5.0),
            percentile(values, 50.0),
            percentile(values, 95.0),
            percentile(values, 99.0),
            range.second,
            mean,
            deviation,
            nonFinite};
}

MeshQualityReport::Histogram histogram(const std::vector<double>& values, int bins)
{
    std::vector<double> finite = values;
    removeNonFinite(finite);
    if (finite.empty()) {
        return {none, none, {}};
    }
    const std::size_t count = static_cast<std::size_t>(std::max(bins, 1));
    const auto [lower, upper] = std::minmax_element(finite.begin(), finite.end());
    MeshQualityReport::Histogram result{*lower, *upper, std::vector<int>(count)};
    for (const double value : finite) {
        // Halves keep the width of the range finite.
        const double width = result.upper / 2.0 - result.lower / 2.0;
        const double share = width > 0.0 ? (value / 2.0 - result.lower / 2.0) / width : 0.0;
        ++result.counts[std::min(static_cast<std::size_t>(share * static_cast<double>(count)), count - 1)];
    }
    return result;
}

} // namespace DataManager::Distribution
