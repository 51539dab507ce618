// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <configoption/configoption_export.h>

#include <QString>

namespace ConfigOption {

/// The application's settings, as far as libraries read them.
class CONFIGOPTION_EXPORT ConfigManager
{
public:
    /// The settings, created on first use and never destroyed.
    static ConfigManager* getInstance();

    /// The interface language as a word, such as "English" or "Chinese"; "English" before the first `setLanguage`.
    QString getLanguage() const;
    /// Chooses the interface language; libraries read it each time they need it.
    void setLanguage(const QString& language);

private:
    ConfigManager() = default;
    ~ConfigManager() = default;

    QString m_language = QStringLiteral("English");
};

} // namespace ConfigOption
