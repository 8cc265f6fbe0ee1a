// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_ERRORTEXTS_H
#define VALUES_ERRORTEXTS_H

#include <QStringList>

/**
 * The texts that stand in a field instead of a result. Errors are never exceptions: a model stores
 * one of these and goes on.
 */
namespace Dezimo::ErrorText {

/// A number that does not parse, or an expression that makes no sense.
inline const QString kInvalidInput = QStringLiteral("invalid input");
/// One operand of a step carries a unit, the other none.
inline const QString kUnitMissing = QStringLiteral("unit missing");
/// The numbers of opening and closing brackets differ.
inline const QString kBracketMissing = QStringLiteral("bracket missing");
/// One operand of a ratio carries a unit, the other none.
inline const QString kUnitMismatch = QStringLiteral("unit mismatch");
/// A parameter (a ratio, an impedance) that a result depends on does not parse.
inline const QString kInvalid = QStringLiteral("invalid");
/// A ratio whose denominator is zero.
inline const QString kNotANumber = QStringLiteral("NAN");

/// No calculation has been made yet. Not an error, and so not part of all().
inline const QString kNoResult = QStringLiteral("---");

/// Every text that reports an error.
inline QStringList all()
{
    return {kInvalidInput, kUnitMissing, kBracketMissing, kUnitMismatch, kInvalid, kNotANumber};
}

} // namespace Dezimo::ErrorText

#endif
