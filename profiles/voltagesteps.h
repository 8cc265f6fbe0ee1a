// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_VOLTAGESTEPS_H
#define PROFILES_VOLTAGESTEPS_H

#include "operatorchain.h"

/// The units of the voltage calculator, as the indexes of its unit selector.
namespace VoltageUnit {

enum Index { Mv, V, None };

} // namespace VoltageUnit

/// How two voltages add, as the indexes of the voltage calculator's mode selector.
namespace VoltageMode {

enum Index { Uncorrelated, Correlated, Peak };

} // namespace VoltageMode

/// A voltage in mV.
double millivoltFrom(const Operand &operand);

/// A voltage in mV as a number in @p unit.
double voltageIn(int unit, double millivolt);

/**
 * Sums and differences of voltages, in mV. Uncorrelated voltages add as their squares and have no
 * difference; correlated ones add as phasors with an angle between them; peak voltages add plainly.
 */
class VoltageSteps final : public StepRule
{
public:
    /// @p mode is a VoltageMode::Index, @p phase the angle between correlated voltages in degrees.
    VoltageSteps(int mode, double phase) : m_mode(mode), m_phase(phase) {}

    std::optional<Operand> combine(const Operand &left, Operator operation,
                                   const Operand &right) override;

private:
    std::optional<double> millivolt(double left, Operator operation, double right) const;

    const int m_mode;
    const double m_phase;
};

#endif
