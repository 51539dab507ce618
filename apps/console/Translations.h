// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

namespace Console {

/// The language in which a program speaks to people: "English", that of the sources, or "Chinese". JSON, CSV and log
/// lines are the same in every language. One object a program, made after its application object.
class Translations
{
public:
    /// `catalogues` are the names of the catalogues that the program needs, such as "datamanager". They are looked for
    /// below "../share/datamanager/translations" beside the program.
    explicit Translations(const QStringList& catalogues);
    /// Takes the translators out.
    ~Translations();

    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

    /// Takes "--language WORD" out of a call and speaks that language; without it the one that the environment variable
    /// DATAMANAGER_LANGUAGE names, else that of the settings. False, with the language as it was, when the option has
    /// no value or names no language; an unknown word in the variable counts as none.
    bool choose(QStringList& arguments);

    /// Speaks a language from now on and tells the settings, which libraries read. Takes "English", "Chinese" and the
    /// codes that begin with "en" and "zh", such as "zh_CN.UTF-8". False, with the language as it was, for another
    /// word.
    bool setLanguage(const QString& word);

private:
    void install(const QString& catalogue, const QString& directory);

    QStringList m_catalogues;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace Console
