// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_PROFILES_RANDOMEXPRESSIONS_H
#define TESTS_PROFILES_RANDOMEXPRESSIONS_H

#include "naivecalculator.h"

#include <QString>

#include <random>

/// Seeded, so that every run has the same expressions.
using Random = std::mt19937;

int below(Random &random, int limit);

/// Expressions of powers or voltages with groups down to a depth of three. All operands are
/// numbers. In half of the expressions each has a unit, in the others all or some have none.
Chain randomPowers(Random &random);
Chain randomVoltages(Random &random);

/// Up to 29 words, some of which belong into no expression.
QString randomGarbage(Random &random);

#endif
