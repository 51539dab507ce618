// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/Language.h>

#include <QSettings>

namespace Workbench {
namespace {

QString key()
{
    return QStringLiteral("language");
}

} // namespace

Language::Language()
    : m_translations({QStringLiteral("datamanager"), QStringLiteral("tools"), QStringLiteral("workbench")})
{
}

Language* Language::instance()
{
    static auto* const language = new Language;
    return language;
}

bool Language::restore(QStringList& arguments)
{
    m_translations.setLanguage(QSettings().value(key()).toString());
    return m_translations.choose(arguments);
}

void Language::choose(const QString& word)
{
    if (m_translations.setLanguage(word)) {
        QSettings().setValue(key(), word);
    }
}

} // namespace Workbench
