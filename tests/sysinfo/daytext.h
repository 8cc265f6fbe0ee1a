// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SYSINFO_DAYTEXT_H
#define TESTS_SYSINFO_DAYTEXT_H

#include <QString>

/// A day of a month as the C library writes it. A day below ten follows a blank on Unix and a zero
/// on Windows.
inline QString dayText(int day)
{
#ifdef Q_OS_WIN
    const QChar filler = QLatin1Char('0');
#else
    const QChar filler = QLatin1Char(' ');
#endif
    return QString::number(day).rightJustified(2, filler);
}

#endif
