// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SUPPORT_WORDS_H
#define TESTS_SUPPORT_WORDS_H

#include <QStringList>

/// The words of @p line, which blanks part: an expected list of names as one literal.
inline QStringList words(const char *line)
{
    return QString::fromUtf8(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// The lines of @p text without their indentation, as a raw literal holds them.
inline QStringList lines(const char *text)
{
    QStringList result;
    const QStringList all = QString::fromUtf8(text).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : all) {
        if (!line.trimmed().isEmpty())
            result += line.trimmed();
    }
    return result;
}

#endif
