// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/frame/GeometryData.h>

#include <datamanager/frame/Singleton.h>

namespace DataManager {

GeometryData* GeometryData::m_instance = nullptr;

GeometryData* GeometryData::getinstance()
{
    return singleton(m_instance, [] { return new GeometryData; });
}

} // namespace DataManager
