// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef SYSINFO_LOCALESETTING_H
#define SYSINFO_LOCALESETTING_H

#include <QString>

/**
 * The user's regional settings, which a Unix system keeps in environment variables as the name of a
 * locale, for example "de_AT.UTF-8" or "sr_RS@latin". The program's own default locale says nothing
 * about them, because it is English everywhere.
 */
struct LocaleSetting
{
    /// The locale's whole name.
    QString name;
    /// English names. Empty if the locale's name has no such part, as "C", or an unknown one.
    QString language;
    QString country;

    /// Takes the name apart. All three texts are empty if it cannot be a locale's name.
    static LocaleSetting parsed(const QByteArray &name);
    /// The locale in which the user's programs write numbers.
    static LocaleSetting ofUser();
};

#endif
