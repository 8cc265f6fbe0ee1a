// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_POWERSTEPS_H
#define VALUES_POWERSTEPS_H

#include "operatorchain.h"

namespace Dezimo {

/// An operand as a level: in dBm, a ratio in dB as it stands. A power of zero gives minus infinity,
/// a negative one no number.
double levelFrom(const Operand &operand);

/**
 * Sums and differences of levels, powers and ratios. With a ratio a step is made in dB and gives a
 * level, or a ratio if both operands are; on purpose a ratio minus a level is a level too.
 * Without a ratio a step is made in mW.
 *
 * In the incoherent mode a linear "+" gives the running mean of all inputs so far, which is what an
 * N-way combiner delivers. The mean has no continuation after a linear "-", nor after a ratio was
 * applied to it: a "+" is refused from then on.
 */
class PowerSteps final : public StepRule
{
public:
    explicit PowerSteps(bool incoherent) : m_incoherent(incoherent) {}

    std::optional<Operand> combine(const Operand &left, Operator operation,
                                   const Operand &right) override;

private:
    Operand combineLevels(const Operand &left, Operator operation, const Operand &right);
    std::optional<Operand> combinePowers(double left, Operator operation, double right);

    const bool m_incoherent;
    /// How many linear "+" have been made.
    int m_sums = 0;
    /// No running mean can be continued any more.
    bool m_meanEnded = false;
};

} // namespace Dezimo

#endif
