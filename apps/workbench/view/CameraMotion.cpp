// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/CameraMotion.h>

#include <vtkCamera.h>
#include <vtkMatrix4x4.h>
#include <vtkRenderer.h>

#include <algorithm>
#include <cmath>

namespace Workbench {
namespace {

constexpr double degreesAcrossWindow = 200;

struct Side
{
    double from[3];
    double up[3];
};

Side sideOf(ViewCommands::Direction direction)
{
    switch (direction) {
    case ViewCommands::Direction::Front:
        return {{0, -1, 0}, {0, 0, 1}};
    case ViewCommands::Direction::Back:
        return {{0, 1, 0}, {0, 0, 1}};
    case ViewCommands::Direction::Left:
        return {{-1, 0, 0}, {0, 0, 1}};
    case ViewCommands::Direction::Right:
        return {{1, 0, 0}, {0, 0, 1}};
    case ViewCommands::Direction::Top:
        return {{0, 0, 1}, {0, 1, 0}};
    case ViewCommands::Direction::Bottom:
        return {{0, 0, -1}, {0, 1, 0}};
    case ViewCommands::Direction::Isometric:
        break;
    }
    return {{0.55, -0.75, 0.5}, {0, 0, 1}};
}

} // namespace

void CameraMotion::rotate(double right, double up)
{
    const int* size = m_renderer.GetSize();
    vtkCamera* camera = m_renderer.GetActiveCamera();
    camera->Azimuth(-degreesAcrossWindow * right / std::max(size[0], 1));
    camera->Elevation(-degreesAcrossWindow * up / std::max(size[1], 1));
    camera->OrthogonalizeViewUp();
    m_renderer.ResetCameraClippingRange();
}

void CameraMotion::worldOfDisplay(double x, double y, double world[3]) const
{
    double focus[3];
    m_renderer.GetActiveCamera()->GetFocalPoint(focus);
    m_renderer.SetWorldPoint(focus[0], focus[1], focus[2], 1);
    m_renderer.WorldToDisplay();
    m_renderer.SetDisplayPoint(x, y, m_renderer.GetDisplayPoint()[2]);
    m_renderer.DisplayToWorld();
    const double* point = m_renderer.GetWorldPoint();
    const double weight = point[3] == 0 ? 1 : point[3];
    std::transform(point, point + 3, world, [weight](double value) { return value / weight; });
}

void CameraMotion::translate(double right, double up)
{
    double from[3];
    double to[3];
    worldOfDisplay(0, 0, from);
    worldOfDisplay(right, up, to);
    vtkCamera* camera = m_renderer.GetActiveCamera();
    double focus[3];
    double position[3];
    camera->GetFocalPoint(focus);
    camera->GetPosition(position);
    for (int i = 0; i < 3; ++i) {
        focus[i] -= to[i] - from[i];
        position[i] -= to[i] - from[i];
    }
    camera->SetFocalPoint(focus);
    camera->SetPosition(position);
    m_renderer.ResetCameraClippingRange();
}

void CameraMotion::zoom(double factor, double x, double y)
{
    double before[3];
    double after[3];
    worldOfDisplay(x, y, before);
    vtkCamera* camera = m_renderer.GetActiveCamera();
    camera->SetParallelScale(camera->GetParallelScale() / factor);
    worldOfDisplay(x, y, after);
    double focus[3];
    double position[3];
    camera->GetFocalPoint(focus);
    camera->GetPosition(position);
    for (int i = 0; i < 3; ++i) {
        focus[i] += before[i] - after[i];
        position[i] += before[i] - after[i];
    }
    camera->SetFocalPoint(focus);
    camera->SetPosition(position);
    m_renderer.ResetCameraClippingRange();
}

void CameraMotion::fit()
{
    m_renderer.ResetCamera(); // around the sphere that encloses everything
    vtkCamera* camera = m_renderer.GetActiveCamera();
    double box[6];
    m_renderer.ComputeVisiblePropBounds(box);
    if (box[0] <= box[1]) {
        camera->SetParallelScale(1.08 * halfHeight(box));
    }
    m_renderer.ResetCameraClippingRange();
}

double CameraMotion::aspect() const
{
    const int* size = m_renderer.GetSize();
    return size[1] > 0 && size[0] > 0 ? static_cast<double>(size[0]) / size[1] : 1;
}

// To the right and upwards from the middle of the window, in lengths of the model.
std::array<std::array<double, 2>, 8> CameraMotion::cornersAsSeen(const double box[6]) const
{
    std::array<std::array<double, 2>, 8> corners{};
    for (unsigned i = 0; i < corners.size(); ++i) {
        const double world[4] = {box[i & 1U], box[2 + ((i >> 1U) & 1U)], box[4 + ((i >> 2U) & 1U)], 1};
        double seen[4];
        m_renderer.GetActiveCamera()->GetViewTransformMatrix()->MultiplyPoint(world, seen);
        corners[i] = {seen[0], seen[1]};
    }
    return corners;
}

// Half the height of the window that shows the box just so.
double CameraMotion::halfHeight(const double box[6]) const
{
    double half = 0;
    for (const std::array<double, 2>& corner : cornersAsSeen(box)) {
        half = std::max({half, std::abs(corner[1]), std::abs(corner[0]) / aspect()});
    }
    return half > 0 ? half : 1;
}

Seen CameraMotion::seen(const Box& box) const
{
    const double height = m_renderer.GetActiveCamera()->GetParallelScale();
    const std::array<double, 2> ends = {height * aspect(), height};
    const auto corners = cornersAsSeen(box.data());
    bool isWhole = true;
    for (std::size_t axis = 0; axis < 2; ++axis) {
        const auto isLess = [axis](const auto& a, const auto& b) { return a[axis] < b[axis]; };
        const auto [least, most] = std::minmax_element(corners.begin(), corners.end(), isLess);
        if ((*least)[axis] > ends[axis] || (*most)[axis] < -ends[axis]) {
            return Seen::Nothing;
        }
        isWhole = isWhole && (*least)[axis] >= -ends[axis] && (*most)[axis] <= ends[axis];
    }
    return isWhole ? Seen::Whole : Seen::Part;
}

void CameraMotion::lookFrom(ViewCommands::Direction direction)
{
    const Side side = sideOf(direction);
    vtkCamera* camera = m_renderer.GetActiveCamera();
    double focus[3];
    camera->GetFocalPoint(focus);
    camera->SetPosition(focus[0] + side.from[0], focus[1] + side.from[1], focus[2] + side.from[2]);
    camera->SetViewUp(side.up);
    camera->OrthogonalizeViewUp();
    fit();
}

void CameraMotion::lookAt(const double centre[3], double radius)
{
    vtkCamera* camera = m_renderer.GetActiveCamera();
    double position[3];
    double focus[3];
    camera->GetPosition(position);
    camera->GetFocalPoint(focus);
    for (int i = 0; i < 3; ++i) {
        position[i] += centre[i] - focus[i];
    }
    camera->SetFocalPoint(centre);
    camera->SetPosition(position);
    camera->SetParallelScale(radius);
    m_renderer.ResetCameraClippingRange();
}

} // namespace Workbench
