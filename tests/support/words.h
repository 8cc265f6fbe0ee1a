// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SUPPORT_WORDS_H
#define TESTS_SUPPORT_WORDS_H

#include <QStringList>

/// The words of @p line, which blanks part: an expected list of names as one literal.
inline QStringList words(const char *line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

#endif
