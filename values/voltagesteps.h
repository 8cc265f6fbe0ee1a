// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_VOLTAGESTEPS_H
#define VALUES_VOLTAGESTEPS_H

#include "operatorchain.h"

namespace Dezimo {

/// How two voltages add, as the indexes of the voltage calculator's mode selector.
namespace VoltageMode {

enum Index { Uncorrelated, Correlated, Peak };

} // namespace VoltageMode

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

} // namespace Dezimo

#endif
