// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <vtkSmartPointer.h>

class vtkActor;
class vtkBillboardTextActor3D;
class vtkLineSource;
class vtkRenderer;

namespace Workbench {

/// A line between two points of the model, with its length written beside it.
class MeasuringLine
{
public:
    MeasuringLine();
    ~MeasuringLine();

    void addTo(vtkRenderer& renderer);
    void set(const double from[3], const double to[3]);
    void hide();
    double length() const;

private:
    vtkSmartPointer<vtkLineSource> m_line;
    vtkSmartPointer<vtkActor> m_actor;
    vtkSmartPointer<vtkBillboardTextActor3D> m_label;
};

} // namespace Workbench
