// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "powersteps.h"

#include "levels.h"

namespace Dezimo {

double levelFrom(const Operand &operand)
{
    if (operand.unit == &Units::kDbm || operand.unit == &Units::kDb)
        return operand.value;
    if (operand.unit == &Units::kDbw)
        return Levels::dbmFromDbw(operand.value);
    return Levels::dbmFromMilliwatt(operand.inBaseUnit());
}

std::optional<Operand> PowerSteps::combine(const Operand &left, Operator operation,
                                           const Operand &right)
{
    if (left.unit == &Units::kDb || right.unit == &Units::kDb)
        return combineLevels(left, operation, right);
    return combinePowers(left.inBaseUnit(), operation, right.inBaseUnit());
}

Operand PowerSteps::combineLevels(const Operand &left, Operator operation, const Operand &right)
{
    if (m_sums > 0)
        m_meanEnded = true;
    const bool areRatios = left.unit == &Units::kDb && right.unit == &Units::kDb;
    const double change = operation == Operator::Plus ? levelFrom(right) : -levelFrom(right);
    return {levelFrom(left) + change, areRatios ? &Units::kDb : &Units::kDbm};
}

std::optional<Operand> PowerSteps::combinePowers(double left, Operator operation, double right)
{
    if (operation == Operator::Minus) {
        m_meanEnded = true;
        return Operand{left - right, &Units::kMilliwatt};
    }
    if (!m_incoherent)
        return Operand{left + right, &Units::kMilliwatt};
    if (m_meanEnded)
        return std::nullopt;
    ++m_sums;
    return Operand{(left * m_sums + right) / (m_sums + 1), &Units::kMilliwatt};
}

} // namespace Dezimo
