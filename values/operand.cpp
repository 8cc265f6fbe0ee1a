// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "operand.h"

#include "prefixedvalue.h"

#include <algorithm>

namespace Dezimo {

std::optional<Operand> parseOperand(QString text, const ExpressionUnits &units)
{
    // Every text contains the empty one, so a plain number finds the last unit.
    const auto row = std::find_if(units.begin(), units.end(), [&text](const ExpressionUnit &each) {
        return text.contains(each.text);
    });
    text.remove(row->text);
    const std::optional<double> value = readPrefixedValue(text);
    return value ? std::optional<Operand>({*value, row->unit}) : std::nullopt;
}

} // namespace Dezimo
