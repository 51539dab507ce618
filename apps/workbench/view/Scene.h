// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/view/MeasuringLine.h>
#include <workbench/view/MetricScale.h>
#include <workbench/view/Picking.h>

#include <QList>

#include <vtkSmartPointer.h>

#include <map>
#include <memory>

class vtkActor;
class vtkOrientationMarkerWidget;
class vtkProp;
class vtkRenderWindow;
class vtkRenderWindowInteractor;
class vtkRenderer;

namespace Workbench {

class HighlightActor;
class HighlightState;

/// What the 3-D view draws: the skins of the meshes, what is highlighted, the axes of coordinate systems, the legend.
class Scene
{
public:
    Scene();
    ~Scene();
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    void addTo(vtkRenderWindow& window);
    /// The small axes in the corner, which need the window's interactor.
    void addMarker(vtkRenderWindowInteractor* interactor);
    vtkRenderer& renderer();
    const Picking::Skins& skins() const { return m_skins; }
    MeasuringLine& measuringLine() { return m_measuringLine; }

    /// How many triangles and points are drawn.
    long long cellCount() const;

    /// Draws these kernels and no others.
    void setKernels(const QList<int>& kernelIDList);
    /// The following read from the managers what they draw.
    void updateVisibility();
    void updateColours();
    void updateLook();
    void updateHighlight(const HighlightState& state);
    void updateCoordinateAxes();
    /// Marks an element and makes the camera look at it; false when there is no such element.
    bool focusElement(int kernelID, int elementID);
    void dropFocus();

private:
    void addKernel(int kernelID);
    void removeKernel(int kernelID);
    void colour(int kernelID);

    vtkSmartPointer<vtkRenderer> m_renderer; ///< the model
    vtkSmartPointer<vtkRenderer> m_front;    ///< drawn over it: elements and nodes that may lie inside
    vtkSmartPointer<vtkRenderer> m_axes;     ///< drawn over all: axes of coordinate systems
    vtkSmartPointer<vtkOrientationMarkerWidget> m_marker;
    Picking::Skins m_skins;
    std::map<int, std::unique_ptr<HighlightActor>> m_highlights;
    std::vector<vtkSmartPointer<vtkProp>> m_shownAxes;
    vtkSmartPointer<vtkActor> m_focus;
    MetricScale m_scale;
    MeasuringLine m_measuringLine;
};

} // namespace Workbench
