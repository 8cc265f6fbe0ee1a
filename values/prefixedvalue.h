// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_PREFIXEDVALUE_H
#define VALUES_PREFIXEDVALUE_H

#include <QString>

#include <optional>

namespace Dezimo {

/// Whether @p character is one of the prefix letters: f p n u m k M G T P.
bool isPrefix(QChar character);

/**
 * Reads a number with at most one SI prefix letter (f p n u m k M G T P; micro is the letter u).
 * The letter may stand anywhere and is removed wherever it stands, so that 4k7 is 47000 and not
 * 4700; two different letters never parse. The decimal point is "." in every locale.
 *
 * @param text the number without its unit; it is consumed: on return it holds what was converted.
 * @param ok   if given, tells whether the text was a number.
 * @return the value in the text's own unit, 0 if it was no number.
 */
double parsePrefixedValue(QString &text, bool *ok = nullptr);

/// The same for a text that is not consumed: its value, or nothing if it is not a number.
std::optional<double> readPrefixedValue(QString text);

} // namespace Dezimo

#endif
