// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_CALCULATORTABLE_H
#define PROFILES_CALCULATORTABLE_H

#include "expressionreason.h"
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
    /// Significant digits that a step of an evaluation keeps.
    int stepDigits;
    /// An expression that has a result in every mode.
    QString example;
    /// Why a mode does not allow a step.
    QString (*refusal)(const RefusedStep &);
};

} // namespace Dezimo

#endif
