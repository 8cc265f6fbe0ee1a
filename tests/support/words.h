// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SUPPORT_WORDS_H
#define TESTS_SUPPORT_WORDS_H

#include <QStringList>

/// The words of @p line, separated by blanks, so that a test can write a list of names as one
/// literal.
inline QStringList words(const char *line)
{
    return QString::fromUtf8(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// The lines of @p text without their indentation, for lists that are written as raw literals.
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
