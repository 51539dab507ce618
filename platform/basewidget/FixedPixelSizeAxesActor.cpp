// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basewidget/FixedPixelSizeAxesActor.h>

#include <vtkBoundingBox.h>
#include <vtkCamera.h>
#include <vtkCaptionActor2D.h>
#include <vtkMath.h>
#include <vtkMatrix4x4.h>
#include <vtkObjectFactory.h>
#include <vtkRenderer.h>
#include <vtkTextActor.h>
#include <vtkTextProperty.h>

#include <algorithm>
#include <cmath>

namespace BaseWidget {

namespace {

constexpr int labelFontSize = 14;

/// Labels keep their size in points instead of growing with the view.
void fixLabel(vtkCaptionActor2D* label)
{
    label->GetTextActor()->SetTextScaleModeToNone();
    vtkTextProperty* const property = label->GetCaptionTextProperty();
    property->SetFontSize(labelFontSize);
    property->ItalicOff();
    property->ShadowOff();
}

/// The world length of one pixel at a point given in view coordinates; 0 when the point is not before the camera or
/// the renderer has no area.
double worldLengthOfPixel(vtkRenderer* renderer, double depth)
{
    vtkCamera* const camera = renderer->GetActiveCamera();
    const int* const size = renderer->GetSize();
    const int pixels = camera->GetUseHorizontalViewAngle() ? size[0] : size[1];
    if (pixels <= 0) {
        return 0;
    }
    if (camera->GetParallelProjection()) {
        // The parallel scale is half of the height, whatever the view angle means.
        return size[1] > 0 ? 2.0 * camera->GetParallelScale() / size[1] : 0;
    }
    return std::max(0.0, 2.0 * depth * std::tan(vtkMath::RadiansFromDegrees(camera->GetViewAngle()) / 2.0) / pixels);
}

/// How many times longer the matrix makes an axis.
double scaleOfAxis(vtkMatrix4x4* matrix, int axis)
{
    const double column[3] = {matrix->GetElement(0, axis), matrix->GetElement(1, axis), matrix->GetElement(2, axis)};
    return vtkMath::Norm(column);
}

} // namespace

vtkStandardNewMacro(FixedPixelSizeAxesActor);

FixedPixelSizeAxesActor::FixedPixelSizeAxesActor()
{
    fixLabel(this->GetXAxisCaptionActor2D());
    fixLabel(this->GetYAxisCaptionActor2D());
    fixLabel(this->GetZAxisCaptionActor2D());
}

FixedPixelSizeAxesActor::~FixedPixelSizeAxesActor() = default;

void FixedPixelSizeAxesActor::PrintSelf(ostream& os, vtkIndent indent)
{
    this->Superclass::PrintSelf(os, indent);
    os << indent << "PixelSize: " << this->PixelSize << "\n";
}

void FixedPixelSizeAxesActor::SetLabels(const char* x, const char* y, const char* z)
{
    this->SetXAxisLabelText(x);
    this->SetYAxisLabelText(y);
    this->SetZAxisLabelText(z);
}

void FixedPixelSizeAxesActor::Rescale(vtkRenderer* renderer)
{
    if (renderer == nullptr) {
        return;
    }
    vtkMatrix4x4* const placement = this->GetUserMatrix();
    double origin[4] = {0, 0, 0, 1};
    double scale[3] = {1, 1, 1};
    if (placement != nullptr) {
        placement->MultiplyPoint(origin, origin);
        for (int axis = 0; axis < 3; ++axis) {
            scale[axis] = scaleOfAxis(placement, axis);
        }
    }
    double seen[4];
    renderer->GetActiveCamera()->GetModelViewTransformMatrix()->MultiplyPoint(origin, seen);
    // Cameras look along the negative z axis.
    const double length = this->PixelSize * worldLengthOfPixel(renderer, -seen[2]);
    double total[3];
    for (int axis = 0; axis < 3; ++axis) {
        total[axis] = length / scale[axis];
        if (!(std::isfinite(total[axis]) && total[axis] > 0)) {
            return;
        }
    }
    this->SetTotalLength(total);
}

int FixedPixelSizeAxesActor::RenderOpaqueGeometry(vtkViewport* viewport)
{
    this->Rescale(vtkRenderer::SafeDownCast(viewport));
    return this->Superclass::RenderOpaqueGeometry(viewport);
}

double* FixedPixelSizeAxesActor::GetBounds()
{
    double low[3];
    const double* const high = this->GetTotalLength();
    for (int axis = 0; axis < 3; ++axis) {
        // As wide as the cones at the tips of the other axes.
        low[axis] = -high[axis] * this->GetNormalizedTipLength()[axis] * this->GetConeRadius();
    }
    vtkBoundingBox box;
    vtkMatrix4x4* const placement = this->GetUserMatrix();
    for (int corner = 0; corner < 8; ++corner) {
        double point[4] = {corner & 1 ? high[0] : low[0], corner & 2 ? high[1] : low[1], corner & 4 ? high[2] : low[2],
                           1};
        if (placement != nullptr) {
            placement->MultiplyPoint(point, point);
        }
        box.AddPoint(point);
    }
    box.GetBounds(this->Bounds);
    return this->Bounds;
}

void FixedPixelSizeAxesActor::ShallowCopy(vtkProp* prop)
{
    if (const auto* const other = FixedPixelSizeAxesActor::SafeDownCast(prop)) {
        this->SetPixelSize(other->PixelSize);
    }
    this->Superclass::ShallowCopy(prop);
}

} // namespace BaseWidget
