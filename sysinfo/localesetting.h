// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef SYSINFO_LOCALESETTING_H
#define SYSINFO_LOCALESETTING_H

#include <QString>

/**
 * The regional settings of the user as a Unix system keeps them: a locale's name in environment
 * variables, for example "de_AT.UTF-8" or "sr_RS@latin". The program's own default locale, which is
 * English everywhere, says nothing about them.
 */
struct LocaleSetting
{
    /// The locale's whole name.
    QString name;
    /// English names, empty if the locale's name has none (as "C" has not) or an unknown one.
    QString language;
    QString country;

    /// Takes the name apart. What cannot be a locale's name gives three empty texts.
    static LocaleSetting parsed(const QByteArray &name);
    /// The locale in which the user's programs write numbers.
    static LocaleSetting ofUser();
};

#endif
