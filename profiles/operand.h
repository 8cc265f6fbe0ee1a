// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_OPERAND_H
#define PROFILES_OPERAND_H

#include <QString>

#include <optional>
#include <vector>

/// A unit of an expression calculator.
struct ExpressionUnit
{
    /// The unit's place in the selector of the output unit.
    int index;
    QString text;
    /// A result in this unit converts into no other.
    bool isAlone = false;
};

/// A calculator's units in the order in which an operand is searched for them. The last one is the
/// plain number's, with the empty text.
using ExpressionUnits = std::vector<ExpressionUnit>;

/// A number of an expression in its own unit, which is an ExpressionUnit::index.
struct Operand
{
    double value;
    int unit;
};

/// The text of the unit with the given index; empty if there is none.
QString unitText(const ExpressionUnits &units, int index);

/// Reads an operand: its unit is the first of @p units that it contains, and what is left without
/// it is a number with at most one SI prefix. Nothing is returned where that is no number.
std::optional<Operand> parseOperand(QString text, const ExpressionUnits &units);

#endif
