// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_ERRORTEXTS_H
#define PROFILES_ERRORTEXTS_H

#include <QString>
#include <QStringList>

/**
 * The texts that stand in a field instead of a result. Errors are never exceptions: a model stores
 * one of these and goes on.
 */
namespace ErrorText {

/// A number that does not parse, or an expression that makes no sense.
inline QString invalidInput()
{
    return QStringLiteral("invalid input");
}

/// One operand of a step carries a unit, the other none.
inline QString unitMissing()
{
    return QStringLiteral("unit missing");
}

/// The numbers of opening and closing brackets differ.
inline QString bracketMissing()
{
    return QStringLiteral("bracket missing");
}

/// One operand of a ratio carries a unit, the other none.
inline QString unitMismatch()
{
    return QStringLiteral("unit mismatch");
}

/// A parameter (a ratio, an impedance) that a result depends on does not parse.
inline QString invalid()
{
    return QStringLiteral("invalid");
}

/// A ratio whose denominator is zero.
inline QString notANumber()
{
    return QStringLiteral("NAN");
}

/// No calculation has been made yet. Not an error, and so not part of all().
inline QString noResult()
{
    return QStringLiteral("---");
}

/// Every text above that reports an error.
inline QStringList all()
{
    return {invalidInput(), unitMissing(), bracketMissing(),
            unitMismatch(), invalid(),     notANumber()};
}

} // namespace ErrorText

#endif
