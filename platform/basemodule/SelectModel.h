// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace BaseModule {

/// What a click in the 3-D view selects. 0 to 5 are geometry models, 7, 9 and 10 mesh models (10 the mesh group
/// model), 6 selects nothing, 8 is neither geometry nor mesh. Other values may occur and must be tolerated.
enum SelectModel : int
{
    GeometryComponent = 0,
    GeometryBody = 1,
    GeometryFace = 2,
    GeometryEdge = 3,
    GeometryVertex = 4,
    GeometrySet = 5,
    NoSelection = 6,
    MeshNode = 7,
    CoordinateAxes = 8,
    MeshElement = 9,
    MeshGroup = 10
};

} // namespace BaseModule
