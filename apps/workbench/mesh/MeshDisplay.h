// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/MeshQualityReport.h>

#include <QObject>

namespace Workbench {

/// How the mesh is shown, apart from the selection: by what it is coloured, which element the view looks at, how
/// transparent unselected parts are. Views set it and listen to it, and so need not know one another.
class MeshDisplay : public QObject
{
    Q_OBJECT

public:
    /// The state of the process, created by the first call and never destroyed.
    static MeshDisplay* instance();

    /// Whether elements are coloured by a metric instead of by face; false at first.
    bool isColouredByMetric() const { return m_isColouredByMetric; }
    /// The metric chosen last; ScaledJacobian at first.
    DataManager::MeshQualityReport::Metric metric() const { return m_metric; }
    void colourByMetric(DataManager::MeshQualityReport::Metric metric);
    void colourByFace();

    /// Makes the view look at one element, by its number, and mark it; an element that does not exist is passed over.
    void focusElement(int kernelID, int elementID);

    /// How much of what is behind shows through what is not selected, from 0 (nothing) to 0.9; 0 at first.
    double transparency() const { return m_transparency; }
    void setTransparency(double transparency);

    /// Whether the edges of the mesh are drawn; true at first.
    bool areEdgesShown() const { return m_areEdgesShown; }
    void showEdges(bool areShown);

Q_SIGNALS:
    void signal_colouringChanged();
    void signal_focusElement(int kernelID, int elementID);
    void signal_transparencyChanged();
    void signal_edgesChanged();

private:
    MeshDisplay() = default;
    ~MeshDisplay() override = default;

    bool m_isColouredByMetric = false;
    DataManager::MeshQualityReport::Metric m_metric = DataManager::MeshQualityReport::Metric::ScaledJacobian;
    double m_transparency = 0;
    bool m_areEdgesShown = true;
};

} // namespace Workbench
