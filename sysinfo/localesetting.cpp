// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "localesetting.h"

#include <QLocale>

#include <algorithm>

namespace {

/// No system has a longer name.
constexpr int kLongestName = 64;

/// In the order in which the C library asks for them.
constexpr const char *kVariables[] = {"LC_ALL", "LC_NUMERIC", "LANG"};

bool isLocaleName(const QByteArray &name)
{
    return name.size() <= kLongestName &&
           std::all_of(name.begin(), name.end(), [](char c) { return c > ' ' && c <= '~'; });
}

QString languageName(const QString &code)
{
    const QLocale::Language language = QLocale(code).language();
    return language == QLocale::C ? QString() : QLocale::languageToString(language);
}

/// Qt knows no unusual pair such as "de_US" and would answer with the language's own country. So
/// this looks for the country's code in every locale that Qt knows.
QString countryName(const QString &code)
{
    const QString ending = QLatin1Char('_') + code;
    const QList<QLocale> locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
    const auto found = std::find_if(locales.begin(), locales.end(), [&](const QLocale &locale) {
        return locale.name().endsWith(ending);
    });
    return found == locales.end() ? QString() : QLocale::countryToString(found->country());
}

} // namespace

LocaleSetting LocaleSetting::parsed(const QByteArray &name)
{
    LocaleSetting setting;
    if (!isLocaleName(name))
        return setting;
    setting.name = QString::fromLatin1(name);
    // Encoding and variant follow language and country: language_COUNTRY.encoding@variant.
    const QString codes =
        setting.name.section(QLatin1Char('@'), 0, 0).section(QLatin1Char('.'), 0, 0);
    const QString country = codes.section(QLatin1Char('_'), 1);
    setting.language = languageName(codes.section(QLatin1Char('_'), 0, 0));
    if (!country.isEmpty())
        setting.country = countryName(country);
    return setting;
}

LocaleSetting LocaleSetting::ofUser()
{
    for (const char *variable : kVariables) {
        const QByteArray name = qgetenv(variable);
        if (!name.isEmpty())
            return parsed(name);
    }
    return LocaleSetting();
}
