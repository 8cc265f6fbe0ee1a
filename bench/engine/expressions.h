// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef BENCH_ENGINE_EXPRESSIONS_H
#define BENCH_ENGINE_EXPRESSIONS_H

#include <QString>

/// Expressions of about a given length.
namespace Expressions {

QString shortOperands(int length);

QString powers(int length);

QString voltages(int length);

QString groupsInARow(int length);

/// Each group adds 1 to the value of the group inside it: (1+(1+(1))).
QString nestedSums(int length);

/// A value in brackets, with as many digits as pairs of brackets: (((111))).
QString nestedValue(int length);

/// Nested around a value that is not a number, so that the evaluation starts again without
/// brackets.
QString nestedError(int length);

} // namespace Expressions

#endif
