// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/MeshQualityReport.h>

#include <vtkSmartPointer.h>

class vtkLookupTable;
class vtkScalarBarActor;

namespace Workbench {

/// The colours of a metric's values: blue where elements are good, red where they are bad; grey where a value is no
/// number. The legend goes with them.
class MetricScale
{
public:
    MetricScale();
    ~MetricScale();

    /// Spreads the colours over the metric's finite values of the mesh.
    void setMetric(const DataManager::MeshQualityReport& report, DataManager::MeshQualityReport::Metric metric);
    vtkLookupTable* table() const;
    vtkScalarBarActor* legend() const;
    void showLegend(bool isShown);

private:
    vtkSmartPointer<vtkLookupTable> m_table;
    vtkSmartPointer<vtkScalarBarActor> m_legend;
};

} // namespace Workbench
