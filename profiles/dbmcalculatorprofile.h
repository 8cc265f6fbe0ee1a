// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_DBMCALCULATORPROFILE_H
#define PROFILES_DBMCALCULATORPROFILE_H

#include "expressionprofile.h"

/**
 * The dBm calculator: sums and differences of power levels (dBm, dBW), powers (W, mW, µW), ratios
 * (dB) and plain numbers. Powers are combined in mW, levels with ratios in dB.
 *
 * A power of zero or below has no level and is shown in mW where a level was asked for; a ratio and
 * a plain number are shown as what they are, whatever unit was chosen.
 */
class DbmCalculatorProfile final : public ExpressionProfile
{
    Q_OBJECT

public:
    explicit DbmCalculatorProfile(QObject *parent = nullptr);

protected:
    std::unique_ptr<StepRule> newStepRule() const override;
    Shown shown(const Operand &result) const override;

private:
    Shown shownPower(const Operand &power) const;
};

#endif
