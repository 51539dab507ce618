// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/frame/IdaIMeshManager.h>

#include <datamanager/frame/private/NextIdentifier.h>

namespace DataManager {

IdaIMeshManager::IdaIMeshManager() : m_setMaxID(0), m_kernelMaxID(0) {}

IdaIMeshManager::~IdaIMeshManager() = default;

int IdaIMeshManager::generateKernelID()
{
    return m_kernelMaxID = nextIdentifier(m_kernelMaxID);
}

int IdaIMeshManager::generateSetID()
{
    return m_setMaxID = nextIdentifier(m_setMaxID);
}

int IdaIMeshManager::getKernelMaxID()
{
    return m_kernelMaxID;
}

int IdaIMeshManager::getSetMaxID()
{
    return m_setMaxID;
}

void IdaIMeshManager::resetKernelMaxID()
{
    m_kernelMaxID = 0;
}

void IdaIMeshManager::resetSetMaxID()
{
    m_setMaxID = 0;
}

void IdaIMeshManager::setKernelMaxID(int value)
{
    m_kernelMaxID = value;
}

} // namespace DataManager
