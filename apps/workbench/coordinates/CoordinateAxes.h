// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QObject>
#include <QSet>
#include <QTimer>

#include <map>
#include <memory>
#include <vector>

namespace DataManager {
class RelativeCoordinateSystem;
}

namespace Workbench {

struct Placement;

/// Owns the axes actors and matrices that the registered coordinate systems refer to, and keeps them at their places.
/// Records that are taken out of the registry by their identifier belong to nobody: those are destroyed here, when the
/// call that took them out has ended.
class CoordinateAxes : public QObject
{
    Q_OBJECT

public:
    explicit CoordinateAxes(QObject* parent);
    ~CoordinateAxes() override;

    bool areShown() const;
    bool areShown(int id) const;
    void show(bool isShown);
    void show(int id, bool isShown);
    /// The systems whose axes are hidden, in ascending order.
    QList<int> hidden() const;
    /// Hides the axes of these systems, and of no other.
    void hide(const QList<int>& ids);

private:
    struct Axes;

    void place();
    void placeOne(DataManager::RelativeCoordinateSystem& system, const Placement& placement);
    void updateVisibility();
    void retire(const QList<int>& ids);
    void destroyRetired();
    void tellOfForeign();

    std::map<DataManager::RelativeCoordinateSystem*, std::unique_ptr<Axes>> m_axes;
    std::vector<std::unique_ptr<Axes>> m_retired;
    QTimer m_destruction;
    QTimer m_search;
    QSet<int> m_hidden;
    bool m_areShown = true;
};

} // namespace Workbench
