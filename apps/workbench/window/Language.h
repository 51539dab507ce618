// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <console/Translations.h>

#include <QString>
#include <QStringList>

namespace Workbench {

/// The language of the interface. Widgets hear of a change by QEvent::LanguageChange.
class Language
{
public:
    /// The language of the process, created by the first call, after the application object; speaks English until
    /// something else is chosen.
    static Language* instance();

    /// Speaks the language of the user's settings, or the one that the environment variable DATAMANAGER_LANGUAGE or
    /// "--language WORD" of a call name for this time; the last wins, and is taken out of the call. False when it is no
    /// language.
    bool restore(QStringList& arguments);
    /// "English" or "Chinese"; kept in the user's settings. Another word changes nothing.
    void choose(const QString& word);

private:
    Language();

    Console::Translations m_translations;
};

} // namespace Workbench
