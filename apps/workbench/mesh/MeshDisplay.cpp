// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/MeshDisplay.h>

#include <algorithm>

namespace Workbench {

MeshDisplay* MeshDisplay::instance()
{
    static auto* const display = new MeshDisplay;
    return display;
}

void MeshDisplay::colourByMetric(DataManager::MeshQualityReport::Metric metric)
{
    m_isColouredByMetric = true;
    m_metric = metric;
    Q_EMIT signal_colouringChanged();
}

void MeshDisplay::colourByFace()
{
    m_isColouredByMetric = false;
    Q_EMIT signal_colouringChanged();
}

void MeshDisplay::focusElement(int kernelID, int elementID)
{
    Q_EMIT signal_focusElement(kernelID, elementID);
}

void MeshDisplay::setTransparency(double transparency)
{
    m_transparency = std::clamp(transparency, 0.0, 0.9);
    Q_EMIT signal_transparencyChanged();
}

void MeshDisplay::showEdges(bool areShown)
{
    m_areEdgesShown = areShown;
    Q_EMIT signal_edgesChanged();
}

} // namespace Workbench
