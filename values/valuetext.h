// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_VALUETEXT_H
#define VALUES_VALUETEXT_H

#include <QString>

/**
 * How numbers become texts. Both forms use "." as the decimal point in every locale. Values that
 * are not finite are written as Qt writes them: INF, -INF and NAN in the general form, inf, -inf
 * and nan in the fixed form.
 */
namespace Dezimo {

/// Linear values (powers, voltages, ratios) with @p significantDigits: trailing zeros are dropped,
/// and the exponent form is used where the decimal exponent is below -4 or not below the number of
/// digits, for example 1.23E+03. Zero digits count as one.
QString generalText(double value, int significantDigits);

/// Levels and ratios in dB: always two digits after the point, whatever the person chose.
QString fixedText(double value);

} // namespace Dezimo

#endif
