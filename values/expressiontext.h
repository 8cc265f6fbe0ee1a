// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_EXPRESSIONTEXT_H
#define VALUES_EXPRESSIONTEXT_H

#include <QString>

#include <vector>

/**
 * What an expression consists of before any number is read: the characters that count, and the
 * operators between its operands.
 */
namespace Dezimo::ExpressionText {

/// @p typed without blanks and line ends of any kind, with "." as the decimal point, round brackets
/// only, the ASCII minus and the micro sign (U+00B5). So a text pasted from a data sheet reads as
/// it looks.
QString cleaned(const QString &typed);

/// Whether @p character is "+" or "-", be it an operator or a sign.
bool isOperator(QChar character);

/// Where the operators of a cleaned text without brackets stand, in rising order. A "+" or "-" that
/// belongs to a number is none: at the very start, after another operator and after an exponent
/// letter.
std::vector<int> operatorPositions(const QString &text);

} // namespace Dezimo::ExpressionText

#endif
