// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <console/Translations.h>

#include <configoption/ConfigManager.h>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace Console {

namespace {

const QString english = QStringLiteral("English");
const QString chinese = QStringLiteral("Chinese");

/// Empty when there is no such language.
QString languageOf(const QString& word)
{
    const QString code = word.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('_'), 0, 0).toLower();
    if (word == english || code == QLatin1String("en")) {
        return english;
    }
    return word == chinese || code == QLatin1String("zh") ? chinese : QString();
}

/// Where the option stands; the number of arguments when it is not there. What is behind "--" is no option.
int placeOfOption(const QStringList& arguments)
{
    int place = 1;
    while (place < arguments.size() && arguments.at(place) != QLatin1String("--language") &&
           !arguments.at(place).startsWith(QLatin1String("--language="))) {
        place = arguments.at(place) == QLatin1String("--") ? arguments.size() : place + 1;
    }
    return qMin(place, arguments.size());
}

} // namespace

Translations::Translations(const QStringList& catalogues) : m_catalogues(catalogues) {}

Translations::~Translations() = default;

bool Translations::choose(QStringList& arguments)
{
    const int place = placeOfOption(arguments);
    if (place < arguments.size()) {
        const QString option = arguments.takeAt(place);
        const bool hasValue = option.contains(QLatin1Char('='));
        const bool isFollowed = !hasValue && place < arguments.size();
        return setLanguage(isFollowed ? arguments.takeAt(place) : option.section(QLatin1Char('='), 1));
    }
    if (!setLanguage(qEnvironmentVariable("DATAMANAGER_LANGUAGE"))) {
        setLanguage(ConfigOption::ConfigManager::getInstance()->getLanguage());
    }
    return true;
}

bool Translations::setLanguage(const QString& word)
{
    const QString language = languageOf(word);
    if (language.isEmpty()) {
        return false;
    }
    m_translators.clear();
    if (language == chinese) {
        install(QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
        for (const QString& catalogue : qAsConst(m_catalogues)) {
            install(catalogue, QCoreApplication::applicationDirPath() + QStringLiteral("/" TRANSLATIONS_DIRECTORY));
        }
    }
    ConfigOption::ConfigManager::getInstance()->setLanguage(language);
    return true;
}

void Translations::install(const QString& catalogue, const QString& directory)
{
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(catalogue + QStringLiteral("_zh_CN"), directory)) {
        QCoreApplication::installTranslator(translator.get());
        m_translators.push_back(std::move(translator));
    }
}

} // namespace Console
