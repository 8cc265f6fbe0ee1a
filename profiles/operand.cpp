// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "operand.h"

#include "prefixedvalue.h"

#include <algorithm>

QString unitText(const ExpressionUnits &units, int index)
{
    const auto unit = std::find_if(units.begin(), units.end(), [index](const ExpressionUnit &row) {
        return row.index == index;
    });
    return unit == units.end() ? QString() : unit->text;
}

std::optional<Operand> parseOperand(QString text, const ExpressionUnits &units)
{
    // Every text contains the empty one, so a plain number finds the last unit.
    const auto unit = std::find_if(units.begin(), units.end(), [&text](const ExpressionUnit &row) {
        return text.contains(row.text);
    });
    text.remove(unit->text);
    const std::optional<double> value = readPrefixedValue(text);
    return value ? std::optional<Operand>(Operand{*value, unit->index}) : std::nullopt;
}
