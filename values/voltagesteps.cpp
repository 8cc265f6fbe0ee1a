// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "voltagesteps.h"

#include <QtMath>

#include <cmath>

using namespace Dezimo;

namespace {

constexpr double kHalfTurn = 180.0;
constexpr double kFullTurn = 360.0;

/// The third side of a triangle: the law of cosines, sqrt(a^2 + b^2 - 2ab cos(angle)), written as
/// the length of a difference of phasors. The radicand of the usual form may fall below zero where
/// the sides nearly cancel. @p degrees are brought within a turn first, so that sides of the same
/// length cancel exactly after any number of turns.
double thirdSide(double a, double b, double degrees)
{
    const double angle = std::remainder(degrees, kFullTurn) / kHalfTurn * M_PI;
    return std::hypot(a - b * std::cos(angle), b * std::sin(angle));
}

} // namespace

std::optional<Operand> VoltageSteps::combine(const Operand &left, Operator operation,
                                             const Operand &right)
{
    const std::optional<double> value = millivolt(left.inBaseUnit(), operation, right.inBaseUnit());
    return value ? std::optional<Operand>({*value, &Units::kMillivolt}) : std::nullopt;
}

std::optional<double> VoltageSteps::millivolt(double left, Operator operation, double right) const
{
    const bool isSum = operation == Operator::Plus;
    switch (m_mode) {
    case VoltageMode::Uncorrelated:
        return isSum ? std::optional<double>(std::hypot(left, right)) : std::nullopt;
    case VoltageMode::Correlated:
        return thirdSide(left, right, isSum ? kHalfTurn - m_phase : m_phase);
    default:
        return isSum ? left + right : left - right;
    }
}
