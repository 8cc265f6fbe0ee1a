// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_OPERAND_H
#define VALUES_OPERAND_H

#include "units.h"

#include <QString>

#include <optional>
#include <vector>

namespace Dezimo {

/// A unit of an expression calculator.
struct ExpressionUnit
{
    /// The unit's place in the selector of the output unit.
    int index;
    const Unit *unit;
    /// A result in this unit converts into no other.
    bool isAlone = false;
    /// The symbol, in the form in which it is found fastest.
    QString text = unit->symbol;
};

/// A calculator's units in the order in which an operand is searched for them. The last one is the
/// plain number's, with the empty symbol.
using ExpressionUnits = std::vector<ExpressionUnit>;

/// A number of an expression in its own unit.
struct Operand
{
    double value;
    const Unit *unit;

    double inBaseUnit() const { return unit->toBase(value); }
};

/// Reads an operand: its unit is the first of @p units that it contains, and what is left without
/// it is a number with at most one SI prefix. Nothing is returned where that is no number.
std::optional<Operand> parseOperand(QString text, const ExpressionUnits &units);

} // namespace Dezimo

#endif
