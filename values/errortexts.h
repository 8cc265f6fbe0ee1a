// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_ERRORTEXTS_H
#define VALUES_ERRORTEXTS_H

#include "latin1.h"

#include <QStringList>

/**
 * The texts that stand in a field instead of a result. Errors are never exceptions: a model stores
 * one of these and goes on.
 */
namespace Dezimo::ErrorText {

/// A number that does not parse, or an expression that makes no sense.
inline constexpr QLatin1String kInvalidInput = latin1("invalid input");
/// One operand of a step carries a unit, the other none.
inline constexpr QLatin1String kUnitMissing = latin1("unit missing");
/// The numbers of opening and closing brackets differ.
inline constexpr QLatin1String kBracketMissing = latin1("bracket missing");
/// One operand of a ratio carries a unit, the other none.
inline constexpr QLatin1String kUnitMismatch = latin1("unit mismatch");
/// A parameter (a ratio, an impedance) that a result depends on does not parse.
inline constexpr QLatin1String kInvalid = latin1("invalid");
/// A ratio whose denominator is zero.
inline constexpr QLatin1String kNotANumber = latin1("NAN");

/// No calculation has been made yet. Not an error, and so not part of all().
inline constexpr QLatin1String kNoResult = latin1("---");

/// Every text that reports an error.
inline QStringList all()
{
    return {kInvalidInput, kUnitMissing, kBracketMissing, kUnitMismatch, kInvalid, kNotANumber};
}

} // namespace Dezimo::ErrorText

#endif
