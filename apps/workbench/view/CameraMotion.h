// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/view/CameraAim.h>
#include <workbench/view/ViewCommands.h>

#include <array>

class vtkRenderer;

namespace Workbench {

/// Moves the camera of a renderer. Distances on the screen are in pixels of the window, upwards positive.
class CameraMotion
{
public:
    explicit CameraMotion(vtkRenderer& renderer) : m_renderer(renderer) {}

    /// Turns about the point looked at.
    void rotate(double right, double up);
    /// Moves the model along with the mouse.
    void translate(double right, double up);
    /// A factor above 1 comes nearer; the point of the model at (x, y) stays where it is.
    void zoom(double factor, double x, double y);
    /// Shows everything.
    void fit();
    /// Looks from that side, and shows everything.
    void lookFrom(ViewCommands::Direction direction);
    /// Looks at a sphere, from where it looks now.
    void lookAt(const double centre[3], double radius);

    /// How much of a box is seen, were nothing before it.
    Seen seen(const Box& box) const;

private:
    std::array<std::array<double, 2>, 8> cornersAsSeen(const double box[6]) const;
    double aspect() const;
    double halfHeight(const double box[6]) const;
    void worldOfDisplay(double x, double y, double world[3]) const;

    vtkRenderer& m_renderer;
};

} // namespace Workbench
