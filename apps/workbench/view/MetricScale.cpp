// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/MetricScale.h>

#include <vtkLookupTable.h>
#include <vtkScalarBarActor.h>
#include <vtkTextProperty.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

using DataManager::MeshQualityReport;

namespace Workbench {
namespace {

constexpr int shades = 256;

// Stations of a colour-blind-safe range from bad (red) over neutral (pale yellow) to good (blue).
constexpr std::array<std::array<double, 3>, 5> stations = {{{0.843, 0.098, 0.110},
                                                            {0.992, 0.682, 0.380},
                                                            {1.000, 1.000, 0.749},
                                                            {0.569, 0.749, 0.859},
                                                            {0.173, 0.482, 0.714}}};

std::array<double, 3> shadeAt(double goodness)
{
    const double place = goodness * (stations.size() - 1);
    const auto low = std::min(static_cast<std::size_t>(place), stations.size() - 2);
    const double share = place - static_cast<double>(low);
    std::array<double, 3> shade{};
    for (std::size_t i = 0; i < 3; ++i) {
        shade[i] = (1 - share) * stations[low][i] + share * stations[low + 1][i];
    }
    return shade;
}

std::array<double, 2> finiteRange(const std::vector<double>& values)
{
    std::array<double, 2> range = {std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest()};
    for (double value : values) {
        if (std::isfinite(value)) {
            range = {std::min(range[0], value), std::max(range[1], value)};
        }
    }
    return range[0] <= range[1] ? range : std::array<double, 2>{0, 1};
}

} // namespace

MetricScale::MetricScale()
    : m_table(vtkSmartPointer<vtkLookupTable>::New()), m_legend(vtkSmartPointer<vtkScalarBarActor>::New())
{
    m_table->SetNumberOfTableValues(shades);
    m_table->SetNanColor(0.45, 0.45, 0.45, 1);
    m_legend->SetLookupTable(m_table);
    m_legend->SetNumberOfLabels(6);
    m_legend->SetMaximumWidthInPixels(90);
    m_legend->SetPosition(0.9, 0.3);
    m_legend->SetHeight(0.55);
    m_legend->SetWidth(0.09);
    m_legend->UnconstrainedFontSizeOn();
    m_legend->SetVerticalTitleSeparation(8);
    m_legend->SetVisibility(false);
    for (vtkTextProperty* text : {m_legend->GetTitleTextProperty(), m_legend->GetLabelTextProperty()}) {
        text->SetColor(0.1, 0.1, 0.1);
        text->SetFontSize(14);
        text->ItalicOff();
        text->BoldOff();
        text->ShadowOff();
    }
}

MetricScale::~MetricScale() = default;

vtkLookupTable* MetricScale::table() const
{
    return m_table;
}

vtkScalarBarActor* MetricScale::legend() const
{
    return m_legend;
}

void MetricScale::setMetric(const MeshQualityReport& report, MeshQualityReport::Metric metric)
{
    const std::array<double, 2> range = finiteRange(report.values(metric));
    const bool isTurned = MeshQualityReport::isWorseWhenLarger(metric);
    for (int i = 0; i < shades; ++i) {
        const double height = static_cast<double>(i) / (shades - 1);
        const std::array<double, 3> shade = shadeAt(isTurned ? 1 - height : height);
        m_table->SetTableValue(i, shade[0], shade[1], shade[2], 1);
    }
    m_table->SetTableRange(range.data());
    m_table->Modified();
    m_legend->SetTitle(MeshQualityReport::metricName(metric).toUtf8().constData());
}

void MetricScale::showLegend(bool isShown)
{
    m_legend->SetVisibility(isShown);
}

} // namespace Workbench
