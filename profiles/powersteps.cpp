// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "powersteps.h"

#include "levels.h"
#include "unittable.h"

namespace {

/// In the order of PowerUnit.
constexpr UnitConversion kPowerRows[] = {Units::kDbm, Units::kBase, Units::kWatt, Units::kMicrowatt,
                                         Units::kDbw};
constexpr UnitTable kPowerUnits(kPowerRows, Units::kBase);

} // namespace

double levelFrom(const Operand &operand)
{
    switch (operand.unit) {
    case PowerUnit::Dbw:
        return Levels::dbmFromDbw(operand.value);
    case PowerUnit::Mw:
    case PowerUnit::W:
    case PowerUnit::Uw:
        return Levels::dbmFromMilliwatt(milliwattFrom(operand));
    default:
        return operand.value;
    }
}

double milliwattFrom(const Operand &operand)
{
    return kPowerUnits.at(operand.unit).toBase(operand.value);
}

double powerIn(int unit, double milliwatt)
{
    return kPowerUnits.at(unit).fromBase(milliwatt);
}

std::optional<Operand> PowerSteps::combine(const Operand &left, Operator operation,
                                           const Operand &right)
{
    if (left.unit == PowerUnit::Db || right.unit == PowerUnit::Db)
        return combineLevels(left, operation, right);
    return combinePowers(milliwattFrom(left), operation, milliwattFrom(right));
}

Operand PowerSteps::combineLevels(const Operand &left, Operator operation, const Operand &right)
{
    if (m_sums > 0)
        m_meanEnded = true;
    const bool areRatios = left.unit == PowerUnit::Db && right.unit == PowerUnit::Db;
    const double change = operation == Operator::Plus ? levelFrom(right) : -levelFrom(right);
    return {levelFrom(left) + change, areRatios ? PowerUnit::Db : PowerUnit::Dbm};
}

std::optional<Operand> PowerSteps::combinePowers(double left, Operator operation, double right)
{
    if (operation == Operator::Minus) {
        m_meanEnded = true;
        return Operand{left - right, PowerUnit::Mw};
    }
    if (!m_incoherent)
        return Operand{left + right, PowerUnit::Mw};
    if (m_meanEnded)
        return std::nullopt;
    ++m_sums;
    return Operand{(left * m_sums + right) / (m_sums + 1), PowerUnit::Mw};
}
