// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

namespace ConfigOption {

class ConfigManager
{
public:
    static ConfigManager* getInstance()
    {
        static ConfigManager settings;
        return &settings;
    }
    QString getLanguage() const { return QStringLiteral("English"); }
};

} // namespace ConfigOption
