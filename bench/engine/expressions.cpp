// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "expressions.h"

namespace {

/// @p first and as many whole copies of @p term as fit into @p length.
QString chain(const char *first, const char *term, int length)
{
    const QString repeated = QString::fromLatin1(term);
    const QString begin = QString::fromLatin1(first);
    return begin + repeated.repeated((length - begin.size()) / repeated.size());
}

} // namespace

QString Expressions::shortOperands(int length)
{
    return chain("1", "+1", length);
}

QString Expressions::powers(int length)
{
    return chain("10dBm", "+2.5mW", length);
}

QString Expressions::voltages(int length)
{
    return chain("1V", "+2.5mV", length);
}

QString Expressions::groupsInARow(int length)
{
    return chain("1mW", "+(1mW+1mW)", length);
}

QString Expressions::nestedSums(int length)
{
    const int depth = length / 4;
    return QStringLiteral("(1+").repeated(depth) + QLatin1Char('1') +
           QStringLiteral(")").repeated(depth);
}

QString Expressions::nestedValue(int length)
{
    const int depth = length / 3;
    return QStringLiteral("(").repeated(depth) + QStringLiteral("1").repeated(depth) +
           QStringLiteral(")").repeated(depth);
}

QString Expressions::nestedError(int length)
{
    const int depth = length / 4;
    return QStringLiteral("(1+").repeated(depth) + QLatin1Char('x') +
           QStringLiteral(")").repeated(depth);
}
