// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_DBMCALCULATORPROFILE_H
#define PROFILES_DBMCALCULATORPROFILE_H

#include "expressionprofile.h"

namespace Dezimo {

/// The units of the dBm calculator, as the indexes of its unit selector.
namespace PowerUnit {

enum Index { Dbm, Mw, W, Uw, Dbw, Db, None };

} // namespace PowerUnit

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
    QString powerText(const Operand &power, int unit) const;
};

} // namespace Dezimo

#endif
