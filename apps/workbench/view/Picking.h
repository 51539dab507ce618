// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/SelectModel.h>

#include <QList>
#include <QPair>

#include <map>
#include <memory>
#include <set>
#include <utility>

class vtkRenderer;

namespace Workbench {

class SkinActor;

/// Finds what lies under a point or in a rectangle of the view. Coordinates are pixels of the window, from its lower
/// left corner. Only what is seen is found, not what lies behind.
class Picking
{
public:
    using Item = QPair<int, int>;
    /// By kernel.
    using Skins = std::map<int, std::unique_ptr<SkinActor>>;

    Picking(vtkRenderer& renderer, const Skins& skins) : m_renderer(renderer), m_skins(skins) {}

    /// The item of that model under the point; false when there is none.
    bool itemAt(int x, int y, BaseModule::SelectModel model, Item& item) const;
    /// The items of that model in the rectangle, in ascending order.
    QList<Item> itemsIn(int x0, int y0, int x1, int y1, BaseModule::SelectModel model) const;
    /// The point of the skin under a point of the window; false when there is none.
    bool positionAt(int x, int y, double position[3]) const;

private:
    struct Hit;

    std::set<std::pair<int, int>> skinItemsIn(const int area[4], BaseModule::SelectModel model) const;
    bool hitAt(int x, int y, Hit& hit) const;
    int nearestNode(const SkinActor& skin, long long cell, int x, int y) const;
    bool isNodeIn(const SkinActor& skin, int node, const int area[4]) const;

    vtkRenderer& m_renderer;
    const Skins& m_skins;
};

} // namespace Workbench
