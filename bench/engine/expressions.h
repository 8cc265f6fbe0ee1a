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

/// Each group adds to the value of the one within: (1+(1+(1))).
QString nestedSums(int length);

/// Nothing but brackets around a value of its own length.
QString nestedValue(int length);

/// Nested around a value that no number is, so that the evaluation starts again without brackets.
QString nestedError(int length);

} // namespace Expressions

#endif
