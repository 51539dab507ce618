// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/coordinates/CoordinateSystems.h>

#include <workbench/coordinates/CoordinateAxes.h>
#include <workbench/coordinates/CoordinateRecord.h>

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>

#include <basemodule/GlobalHelper.h>

#include <QTemporaryDir>

#include <algorithm>

namespace Workbench {

using DataManager::RelativeCoordinateSystem;
using DataManager::RelativeCoordinateSystemDate;

namespace {

RelativeCoordinateSystemDate& registry()
{
    return *RelativeCoordinateSystemDate::getInstance();
}

/// The registry tells of a change in this way only.
void tellChange()
{
    registry().setCurrentCoordinateSystemID(registry().getCurrentCoordinateSystemID());
}

/// Appending writes the project's file, which may hold systems that are still to be read: so it is done in another
/// directory.
void appendGlobalSystem()
{
    const QTemporaryDir elsewhere;
    const QString directory = BaseModule::GlobalHelper::getProjectTempIODir();
    BaseModule::GlobalHelper::setProjectTempIODir(elsewhere.path());
    registry().appendCoordinateSystem(newCoordinateRecord(0, 0, {QStringLiteral("Global")}));
    BaseModule::GlobalHelper::setProjectTempIODir(directory);
}

int nextID()
{
    int highest = 0;
    for (int i = 0; i < registry().getRelativeCoordinateSystemDateCount(); ++i) {
        highest = std::max(highest, registry().getCoordinateSystemByIndex(i)->getID());
    }
    return highest + 1;
}

} // namespace

CoordinateSystems* CoordinateSystems::instance()
{
    static CoordinateSystems* const systems = new CoordinateSystems;
    return systems;
}

CoordinateSystems::CoordinateSystems() : m_axes(new CoordinateAxes(this))
{
    if (registry().getRelativeCoordinateSystemDateCount() == 0) {
        appendGlobalSystem();
    }
    tellChange();
}

CoordinateTree CoordinateSystems::tree()
{
    QVector<QPair<int, int>> systems;
    for (int i = 0; i < registry().getRelativeCoordinateSystemDateCount(); ++i) {
        const RelativeCoordinateSystem& system = *registry().getCoordinateSystemByIndex(i);
        systems.append({system.getID(), system.getBasicCoordinateSystemID()});
    }
    return makeCoordinateTree(systems);
}

CoordinateDefinition CoordinateSystems::definition(int id)
{
    const RelativeCoordinateSystem* const system = registry().getCoordinateSystemByID(id);
    return system == nullptr ? CoordinateDefinition() : coordinateDefinition(*system);
}

int CoordinateSystems::create(int basicID, const CoordinateDefinition& definition)
{
    if (registry().getCoordinateSystemByID(basicID) == nullptr) {
        return 0;
    }
    const int id = nextID();
    registry().appendCoordinateSystem(newCoordinateRecord(id, basicID, definition));
    tellChange();
    return id;
}

void CoordinateSystems::change(int id, const CoordinateDefinition& definition)
{
    RelativeCoordinateSystem* const system = registry().getCoordinateSystemByID(id);
    if (system == nullptr || id == 0) {
        return;
    }
    system->setName(definition.name);
    // The systems below hold copies of this level.
    for (int i = 0; i < registry().getRelativeCoordinateSystemDateCount(); ++i) {
        changeCoordinateLevel(*registry().getCoordinateSystemByIndex(i), id, definition);
    }
    registry().writeConfig();
    tellChange();
}

void CoordinateSystems::remove(const QList<int>& ids)
{
    const CoordinateTree systems = tree();
    QList<int> all;
    for (const int id : ids) {
        if (id != 0 && registry().getCoordinateSystemByID(id) != nullptr) {
            all += QList<int>{id} + systems.below(id).toList();
        }
    }
    if (all.isEmpty()) {
        return;
    }
    // What two of the given ones share stands once.
    std::sort(all.begin(), all.end());
    all.erase(std::unique(all.begin(), all.end()), all.end());
    registry().removeCoordinateSystemByID(all);
    const int current = registry().getCurrentCoordinateSystemID();
    registry().setCurrentCoordinateSystemID(all.contains(current) ? 0 : current);
}

void CoordinateSystems::setCurrent(int id)
{
    registry().setSwitchCoordinateSystemSign(true);
    registry().setCurrentCoordinateSystemID(id);
    registry().setSwitchCoordinateSystemSign(false);
}

bool CoordinateSystems::areAxesShown() const
{
    return m_axes->areShown();
}

void CoordinateSystems::showAxes(bool isShown)
{
    m_axes->show(isShown);
    tellChange();
}

bool CoordinateSystems::areAxesShown(int id) const
{
    return m_axes->areShown(id);
}

void CoordinateSystems::showAxes(int id, bool isShown)
{
    m_axes->show(id, isShown);
    tellChange();
}

void CoordinateSystems::loadProject()
{
    registry().resetData();
    registry().readConfig();
    tellChange();
}

void CoordinateSystems::clearProject()
{
    registry().resetData();
}

} // namespace Workbench
