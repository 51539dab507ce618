// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDateManager.h>
#include <datamanager/coordinates/private/RotationComposition.h>
#include <datamanager/frame/Singleton.h>

#include <QPointer>
#include <QSet>

#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>

namespace DataManager {

namespace {

QList<int> idsOf(const QList<RelativeCoordinateSystem*>& systems)
{
    QList<int> ids;
    ids.reserve(systems.size());
    std::transform(systems.begin(), systems.end(), std::back_inserter(ids),
                   [](const RelativeCoordinateSystem* system) { return system->getID(); });
    return ids;
}

auto hasID(int id)
{
    return [id](const RelativeCoordinateSystem* system) { return system->getID() == id; };
}

} // namespace

RelativeCoordinateSystemDate* RelativeCoordinateSystemDate::_instance = nullptr;

RelativeCoordinateSystemDate::RelativeCoordinateSystemDate() = default;

RelativeCoordinateSystemDate::~RelativeCoordinateSystemDate()
{
    const QList<RelativeCoordinateSystem*> systems = std::exchange(m_coordinateSystemList, {});
    qDeleteAll(systems);
}

RelativeCoordinateSystemDate* RelativeCoordinateSystemDate::getInstance()
{
    return singleton(_instance, [] { return new RelativeCoordinateSystemDate; });
}

void RelativeCoordinateSystemDate::appendCoordinateSystem(RelativeCoordinateSystem* cs)
{
    if (cs != nullptr && !m_coordinateSystemList.contains(cs)) {
        m_coordinateSystemList.append(cs);
    }
    writeConfig();
}

int RelativeCoordinateSystemDate::getRelativeCoordinateSystemDateCount() const
{
    return m_coordinateSystemList.size();
}

RelativeCoordinateSystem* RelativeCoordinateSystemDate::getCoordinateSystemByID(int id) const
{
    const auto found = std::find_if(m_coordinateSystemList.begin(), m_coordinateSystemList.end(), hasID(id));
    return found == m_coordinateSystemList.end() ? nullptr : *found;
}

RelativeCoordinateSystem* RelativeCoordinateSystemDate::getCoordinateSystemByIndex(int index) const
{
    return m_coordinateSystemList.value(index, nullptr);
}

int RelativeCoordinateSystemDate::getCoordinateSystemIndexByID(int id) const
{
    const auto found = std::find_if(m_coordinateSystemList.begin(), m_coordinateSystemList.end(), hasID(id));
    return found == m_coordinateSystemList.end() ? 0 : static_cast<int>(found - m_coordinateSystemList.begin());
}

int RelativeCoordinateSystemDate::getIndexByCoordinateSystem(RelativeCoordinateSystem* cs) const
{
    return m_coordinateSystemList.indexOf(cs);
}

void RelativeCoordinateSystemDate::removeCoordinateSystemByID(QList<int> ids)
{
    ids.removeAll(0);
    if (ids.isEmpty()) {
        return;
    }
    Q_EMIT signal_dataDeleted(ids);
    const QSet<int> removed(ids.begin(), ids.end());
    const auto isRemoved = [&removed](const RelativeCoordinateSystem* system) {
        return removed.contains(system->getID());
    };
    QList<RelativeCoordinateSystem*>& systems = m_coordinateSystemList;
    systems.erase(std::remove_if(systems.begin(), systems.end(), isRemoved), systems.end());
    writeConfig();
}

void RelativeCoordinateSystemDate::removeCoordinateSystemByIndex(int index)
{
    const QPointer<RelativeCoordinateSystem> system = getCoordinateSystemByIndex(index);
    if (system.isNull()) {
        return;
    }
    Q_EMIT signal_dataDeleted({system->getID()});
    // A listener may have destroyed the system, or taken it out and so away from this registry. Here and below, a
    // system leaves the list before it is destroyed: receivers of its `destroyed` that look systems up, or write the
    // file, must not meet one that is half gone.
    if (!system.isNull() && m_coordinateSystemList.removeOne(system)) {
        delete system.data();
    }
}

void RelativeCoordinateSystemDate::clear()
{
    QList<int> ids = idsOf(m_coordinateSystemList);
    ids.removeOne(0);
    Q_EMIT signal_dataDeleted(ids);
    while (m_coordinateSystemList.size() > 1) {
        delete m_coordinateSystemList.takeLast();
    }
}

void RelativeCoordinateSystemDate::resetData()
{
    clear();
    setCurrentCoordinateSystemID(0);
    RelativeCoordinateSystem::resetMaxID();
    if (m_dataManager.isNull()) {
        m_dataManager.reset(new RelativeCoordinateSystemDateManager);
    } else {
        m_dataManager->clear();
    }
}

void RelativeCoordinateSystemDate::sort()
{
    std::sort(m_coordinateSystemList.begin(), m_coordinateSystemList.end(), std::less<RelativeCoordinateSystem*>());
}

void RelativeCoordinateSystemDate::setCurrentCoordinateSystemID(int id)
{
    m_currentCoordinateSystemID = id;
    Q_EMIT signal_dataChanged(idsOf(m_coordinateSystemList));
}

int RelativeCoordinateSystemDate::getCurrentCoordinateSystemID() const
{
    return m_currentCoordinateSystemID;
}

void RelativeCoordinateSystemDate::setNeWCoordinateSystemSign(bool sign)
{
    m_newCoordinateSystemSign = sign;
}

bool RelativeCoordinateSystemDate::getNeWCoordinateSystemSign() const
{
    return m_newCoordinateSystemSign;
}

void RelativeCoordinateSystemDate::setSwitchCoordinateSystemSign(bool sign)
{
    m_switchCoordinateSystemSign = sign;
}

bool RelativeCoordinateSystemDate::getSwitchCoordinateSystemSign() const
{
    return m_switchCoordinateSystemSign;
}

void RelativeCoordinateSystemDate::getCSRotateDirection(double* v, int id)
{
    RelativeCoordinateSystem* const system = id < 1 ? nullptr : getCoordinateSystemByID(id);
    if (v == nullptr || system == nullptr) {
        return;
    }
    system->getType();
    turnAboutSingleAxes(system->getRotateDirection(), v);
}

} // namespace DataManager
