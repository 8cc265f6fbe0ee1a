// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_PROFILES_SHOWNNUMBER_H
#define TESTS_PROFILES_SHOWNNUMBER_H

#include <QString>

#include <limits>

/// The number that a field shows. Any other text gives NaN, which equals nothing.
inline double shownNumber(const QString &text)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok ? value : std::numeric_limits<double>::quiet_NaN();
}

#endif
