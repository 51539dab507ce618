// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/frame/CaseData.h>

#include <datamanager/frame/Singleton.h>

namespace DataManager {

CaseData* CaseData::m_instance = nullptr;

CaseData* CaseData::getinstance()
{
    return singleton(m_instance, [] { return new CaseData; });
}

} // namespace DataManager
