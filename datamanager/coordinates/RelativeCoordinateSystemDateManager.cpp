// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/coordinates/RelativeCoordinateSystemDateManager.h>

#include <utility>

namespace DataManager {

RelativeCoordinateSystemDateManager::RelativeCoordinateSystemDateManager() = default;

RelativeCoordinateSystemDateManager::~RelativeCoordinateSystemDateManager() = default;

QList<int> RelativeCoordinateSystemDateManager::getIDList() const
{
    return m_IDList;
}

void RelativeCoordinateSystemDateManager::setIDList(QList<int> list)
{
    m_IDList = std::move(list);
}

QList<int> RelativeCoordinateSystemDateManager::getBasicCoorSysIDList() const
{
    return m_basicCoorSysIDList;
}

void RelativeCoordinateSystemDateManager::setBasicCoorSysIDList(QList<int> list)
{
    m_basicCoorSysIDList = std::move(list);
}

QList<QString> RelativeCoordinateSystemDateManager::getNameList() const
{
    return m_nameList;
}

void RelativeCoordinateSystemDateManager::setNameList(QList<QString> list)
{
    m_nameList = std::move(list);
}

QList<QString> RelativeCoordinateSystemDateManager::getTypeList() const
{
    return m_typeList;
}

void RelativeCoordinateSystemDateManager::setTypeList(QList<QString> list)
{
    m_typeList = std::move(list);
}

QList<QString> RelativeCoordinateSystemDateManager::getOffsetCoordinateList() const
{
    return m_offsetCoordinateList;
}

void RelativeCoordinateSystemDateManager::setOffsetCoordinateList(QList<QString> list)
{
    m_offsetCoordinateList = std::move(list);
}

QList<QString> RelativeCoordinateSystemDateManager::getRotateDirectionList() const
{
    return m_rotateDirectionList;
}

void RelativeCoordinateSystemDateManager::setRotateDirectionList(QList<QString> list)
{
    m_rotateDirectionList = std::move(list);
}

QList<QString> RelativeCoordinateSystemDateManager::getActorRoateDirList() const
{
    return m_actorRoateDirList;
}

void RelativeCoordinateSystemDateManager::setActorRoateDirList(QList<QString> list)
{
    m_actorRoateDirList = std::move(list);
}

void RelativeCoordinateSystemDateManager::clear()
{
    m_IDList.clear();
    m_nameList.clear();
    m_typeList.clear();
    m_offsetCoordinateList.clear();
    m_rotateDirectionList.clear();
    m_actorRoateDirList.clear();
}

} // namespace DataManager
