// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/quality/QualityFigures.h>

#include <algorithm>
#include <cmath>
#include <numeric>

using DataManager::MeshQualityReport;

namespace Workbench {
namespace {

double valueOfRank(std::vector<double>& values, int rank)
{
    std::nth_element(values.begin(), values.begin() + rank, values.end());
    return values[static_cast<std::size_t>(rank)];
}

std::vector<MeshQuality::Threshold> thresholdsOf(const FiguresRequest& request)
{
    return request.profile ? request.profile->thresholds : std::vector<MeshQuality::Threshold>();
}

} // namespace

QualityFigures measureFigures(const FiguresRequest& request, const QualityFigures& known)
{
    QualityFigures figures;
    figures.request = request;
    if (request.mesh) {
        const MeshQualityReport& report = request.mesh->report;
        figures.summary = report.summary(request.metric);
        figures.histogram = report.histogram(request.metric, QualityFigures::bins);
        figures.worst = report.worst(request.metric, request.worstCount);
        figures.regions = known.request.mesh == request.mesh
                              ? known.regions
                              : QSharedPointer<const QualityFigures::Regions>::create(report.regions());
        for (const MeshQuality::Threshold& threshold : thresholdsOf(request)) {
            figures.findings.push_back(MeshQuality::check(report, threshold));
        }
    }
    return figures;
}

// A greater value is never in an earlier bin and equal values are in the same one. So the counts tell how many of the
// values by size are in the bins before and up to the end of these, and with that between which values all of theirs
// lie, without a bound of a bin being computed a second time and rounded otherwise.
std::vector<int> elementsInBins(const QualityFigures& figures, int first, int last)
{
    const std::vector<int>& counts = figures.histogram.counts;
    const int before = std::accumulate(counts.begin(), counts.begin() + first, 0);
    const int count = std::accumulate(counts.begin() + first, counts.begin() + last + 1, 0);
    if (count == 0) {
        return {};
    }
    const std::vector<double>& values = figures.request.mesh->report.values(figures.request.metric);
    std::vector<double> finite;
    std::copy_if(values.begin(), values.end(), std::back_inserter(finite), [](double v) { return std::isfinite(v); });
    const double lowest = valueOfRank(finite, before);
    const double highest = valueOfRank(finite, before + count - 1);
    std::vector<int> places;
    for (std::size_t place = 0; place < values.size(); ++place) {
        if (values[place] >= lowest && values[place] <= highest) {
            places.push_back(static_cast<int>(place));
        }
    }
    return places;
}

std::vector<int> elementsOutside(const QualityFigures& figures, const std::vector<int>& thresholds)
{
    const std::vector<MeshQuality::Threshold> all = thresholdsOf(figures.request);
    const MeshQualityReport& report = figures.request.mesh->report;
    std::vector<char> isFailing(static_cast<std::size_t>(report.elementCount()), 0);
    for (std::size_t i = 0; i < all.size(); ++i) {
        const bool isMeant =
            thresholds.empty() || std::count(thresholds.begin(), thresholds.end(), static_cast<int>(i)) > 0;
        const std::vector<double>& values = report.values(all[i].metric);
        for (std::size_t place = 0; isMeant && place < values.size(); ++place) {
            isFailing[place] = isFailing[place] != 0 || isOutside(values[place], all[i]) ? 1 : 0;
        }
    }
    std::vector<int> places;
    for (std::size_t place = 0; place < isFailing.size(); ++place) {
        if (isFailing[place] != 0) {
            places.push_back(static_cast<int>(place));
        }
    }
    return places;
}

QString regionText(int physicalTag, const QString& name)
{
    return name.isEmpty() ? QString::number(physicalTag) : name;
}

} // namespace Workbench
