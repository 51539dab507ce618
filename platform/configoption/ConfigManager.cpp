// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <configoption/ConfigManager.h>

namespace ConfigOption {

ConfigManager* ConfigManager::getInstance()
{
    static ConfigManager* const instance = new ConfigManager;
    return instance;
}

QString ConfigManager::getLanguage() const
{
    return m_language;
}

void ConfigManager::setLanguage(const QString& language)
{
    m_language = language;
}

} // namespace ConfigOption
