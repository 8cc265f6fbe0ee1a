// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_VOLTAGECALCULATORPROFILE_H
#define PROFILES_VOLTAGECALCULATORPROFILE_H

#include "expressionprofile.h"

namespace Dezimo {

/// The units of the voltage calculator, as the indexes of its unit selector.
namespace VoltageUnit {

enum Index { Mv, V, None };

} // namespace VoltageUnit

/**
 * The voltage calculator: sums and differences of voltages (V, mV) and of plain numbers. Voltages
 * are combined in mV, as uncorrelated, correlated or peak voltages.
 *
 * Voltages of zero or below are shown as they are; a plain number is shown as what it is, whatever
 * unit was chosen.
 */
class VoltageCalculatorProfile final : public ExpressionProfile
{
    Q_OBJECT
    Q_PROPERTY(double phase READ phase WRITE setPhase NOTIFY phaseChanged)

public:
    /// The range in which a stored phase is read back.
    static constexpr int kMinimumPhase = -360;
    static constexpr int kMaximumPhase = 360;

    explicit VoltageCalculatorProfile(QObject *parent = nullptr);

    /// The angle between correlated voltages, in degrees.
    double phase() const { return m_phase.get(); }
    /// Does not calculate by itself.
    void setPhase(double degrees) { m_phase.set(degrees); }

Q_SIGNALS:
    void phaseChanged();

protected:
    std::unique_ptr<StepRule> newStepRule() const override;
    Shown shown(const Operand &result) const override;

private:
    Announced<double> m_phase{this, &VoltageCalculatorProfile::phaseChanged};
};

} // namespace Dezimo

#endif
