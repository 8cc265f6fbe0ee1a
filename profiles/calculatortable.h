// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_CALCULATORTABLE_H
#define PROFILES_CALCULATORTABLE_H

#include "operand.h"
#include "storedkeys.h"

#include <vector>

namespace Dezimo {

/// Where one entry of the valid units is stored.
struct ValidityKey
{
    const char *key;
    int unit;
};

/// What an expression calculator is, as far as data can say it.
struct CalculatorTable
{
    StoredKeys keys;
    /// Written after the keys, in this order.
    std::vector<ValidityKey> validityKeys;
    ExpressionUnits units;
    /// Significant digits that a step of an evaluation keeps. Rounding hides what binary fractions
    /// leave behind, so that 0.3mW-0.2mW-0.1mW is 0; results with as many digits show it.
    int stepDigits;
};

} // namespace Dezimo

#endif
