// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basewidget/basewidget_export.h>

#include <vtkAxesActor.h>

class vtkRenderer;

namespace BaseWidget {

/// Three labelled axes whose length on the screen does not change with the camera. `SetVisibility` switches them off,
/// `SetUserMatrix` places and turns them; a scale in that matrix has no influence on their size.
///
/// They are hidden by what stands in front of them: to see them always, add them to a renderer of a layer of its own
/// that shares the camera.
class BASEWIDGET_EXPORT FixedPixelSizeAxesActor : public vtkAxesActor
{
public:
    /// A new actor with one reference, to be given back by `Delete`.
    static FixedPixelSizeAxesActor* New();
    // clang-format off
    vtkTypeMacro(FixedPixelSizeAxesActor, vtkAxesActor)
        // clang-format on
        /// Writes the size after what the base class writes.
        void PrintSelf(ostream& os, vtkIndent indent) override;

    FixedPixelSizeAxesActor(const FixedPixelSizeAxesActor&) = delete;
    FixedPixelSizeAxesActor& operator=(const FixedPixelSizeAxesActor&) = delete;

    /// Sets the length on the screen, in pixels, of an axis that is parallel to it; 80 by default, at least 1.
    vtkSetClampMacro(PixelSize, double, 1.0, VTK_DOUBLE_MAX);
    /// The length on the screen, in pixels.
    vtkGetMacro(PixelSize, double);

    /// The texts at the ends of the axes; "X", "Y" and "Z" by default.
    void SetLabels(const char* x, const char* y, const char* z);

    /// Gives the axes the length that shows them in their size where the camera of this renderer stands now. Every
    /// drawing begins with it. Axes whose origin is not before the camera keep their length, and so do all of them
    /// while the renderer has no area.
    void Rescale(vtkRenderer* renderer);

    /// Rescales the axes and draws them. The number of parts drawn, 0 when none was.
    int RenderOpaqueGeometry(vtkViewport* viewport) override;

    /// The box around the axes as they were drawn last, in world coordinates.
    double* GetBounds() override;

    /// Copies the size too.
    void ShallowCopy(vtkProp* prop) override;

protected:
    FixedPixelSizeAxesActor();
    ~FixedPixelSizeAxesActor() override;

private:
    double PixelSize = 80.0;
};

} // namespace BaseWidget
