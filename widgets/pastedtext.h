// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_PASTEDTEXT_H
#define WIDGETS_PASTEDTEXT_H

#include <QString>

/**
 * What a field takes of a text that comes in by paste or drop. Data sheets and web pages write
 * numbers for the eye, and other programs copy a value together with its unit.
 */
namespace PastedText {

/// Whether the field reads the micro sign. If it does not, "u" takes its place.
enum class MicroSign { Kept, Replaced };

/**
 * @p text without blanks, line ends and characters that nobody sees, and with plain signs for
 * typographic ones. Commas stay, because a field that takes none has to refuse them. Takes linear
 * time.
 *
 * @param unit stands beside the field and goes from the end of the text, where it follows a number
 *             or its prefix. So "5mW" is "5m" in watts, while "5dBW" stays as it is. A micro sign
 *             is the same as a "u" in it. The ohm may also be a word, in large or small letters.
 */
QString cleaned(const QString &text, const QString &unit = QString(),
                MicroSign microSign = MicroSign::Replaced);

} // namespace PastedText

#endif
