// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/frame/IdaIGeometryManager.h>

#include <datamanager/frame/private/NextIdentifier.h>

namespace DataManager {

IdaIGeometryManager::IdaIGeometryManager() : m_setMaxID(0), m_componentMaxID(0) {}

IdaIGeometryManager::~IdaIGeometryManager() = default;

int IdaIGeometryManager::generateComponentID()
{
    return m_componentMaxID = nextIdentifier(m_componentMaxID);
}

int IdaIGeometryManager::generateSetID()
{
    return m_setMaxID = nextIdentifier(m_setMaxID);
}

int IdaIGeometryManager::getComponentMaxID()
{
    return m_componentMaxID;
}

int IdaIGeometryManager::getSetMaxID()
{
    return m_setMaxID;
}

void IdaIGeometryManager::resetComponentMaxID()
{
    m_componentMaxID = 0;
}

void IdaIGeometryManager::resetSetMaxID(int value)
{
    m_setMaxID = value;
}

} // namespace DataManager
