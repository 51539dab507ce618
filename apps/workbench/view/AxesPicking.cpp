// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/AxesPicking.h>

#include <basewidget/FixedPixelSizeAxesActor.h>
#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>

#include <vtkCamera.h>
#include <vtkMatrix4x4.h>
#include <vtkRenderer.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

using DataManager::RelativeCoordinateSystemDate;

namespace Workbench {
namespace {

constexpr double reach = 7; // pixels, about the head of an arrow

using Pixel = std::array<double, 2>;

/// Where the axes of one system are seen.
struct SeenAxes
{
    int id;
    Pixel origin;
    std::array<Pixel, 3> ends;
};

Pixel pixelOf(vtkRenderer& renderer, const std::array<double, 3>& position)
{
    renderer.SetWorldPoint(position[0], position[1], position[2], 1);
    renderer.WorldToDisplay();
    return {renderer.GetDisplayPoint()[0], renderer.GetDisplayPoint()[1]};
}

std::array<double, 3> column(const vtkMatrix4x4& matrix, int number)
{
    return {matrix.GetElement(0, number), matrix.GetElement(1, number), matrix.GetElement(2, number)};
}

SeenAxes seenAxes(vtkRenderer& renderer, int id, BaseWidget::FixedPixelSizeAxesActor& actor)
{
    const vtkMatrix4x4& matrix = *actor.GetUserMatrix();
    const std::array<double, 3> origin = column(matrix, 3);
    const double pixel = 2 * renderer.GetActiveCamera()->GetParallelScale() / std::max(renderer.GetSize()[1], 1);
    SeenAxes seen{id, pixelOf(renderer, origin), {}};
    for (int axis = 0; axis < 3; ++axis) {
        const std::array<double, 3> direction = column(matrix, axis);
        const double length = std::hypot(direction[0], direction[1], direction[2]);
        std::array<double, 3> end = origin;
        for (std::size_t i = 0; i < end.size() && length > 0; ++i) {
            end[i] += direction[i] / length * actor.GetPixelSize() * pixel;
        }
        seen.ends[static_cast<std::size_t>(axis)] = pixelOf(renderer, end);
    }
    return seen;
}

std::vector<SeenAxes> allSeenAxes(vtkRenderer& renderer)
{
    std::vector<SeenAxes> all;
    const RelativeCoordinateSystemDate* systems = RelativeCoordinateSystemDate::getInstance();
    for (int i = 0; i < systems->getRelativeCoordinateSystemDateCount(); ++i) {
        DataManager::RelativeCoordinateSystem* system = systems->getCoordinateSystemByIndex(i);
        BaseWidget::FixedPixelSizeAxesActor* actor = system->getActor();
        if (actor != nullptr && actor->GetVisibility() != 0 && actor->GetUserMatrix() != nullptr) {
            all.push_back(seenAxes(renderer, system->getID(), *actor));
        }
    }
    return all;
}

double distanceToSegment(const Pixel& point, const Pixel& from, const Pixel& to)
{
    const Pixel along = {to[0] - from[0], to[1] - from[1]};
    const double square = along[0] * along[0] + along[1] * along[1];
    const double share = ((point[0] - from[0]) * along[0] + (point[1] - from[1]) * along[1]) / square;
    const double place = square > 0 ? std::clamp(share, 0.0, 1.0) : 0;
    return std::hypot(point[0] - from[0] - place * along[0], point[1] - from[1] - place * along[1]);
}

} // namespace

int axesAt(vtkRenderer& renderer, int x, int y)
{
    int nearest = -1;
    double least = reach;
    for (const SeenAxes& axes : allSeenAxes(renderer)) {
        for (const Pixel& end : axes.ends) {
            const double distance =
                distanceToSegment({static_cast<double>(x), static_cast<double>(y)}, axes.origin, end);
            if (distance < least) {
                least = distance;
                nearest = axes.id;
            }
        }
    }
    return nearest;
}

QList<int> axesIn(vtkRenderer& renderer, const int area[4])
{
    QList<int> found;
    for (const SeenAxes& axes : allSeenAxes(renderer)) {
        const Pixel& origin = axes.origin;
        if (origin[0] >= area[0] && origin[0] <= area[2] && origin[1] >= area[1] && origin[1] <= area[3]) {
            found.append(axes.id);
        }
    }
    return found;
}

} // namespace Workbench
