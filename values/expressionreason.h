// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_EXPRESSIONREASON_H
#define VALUES_EXPRESSIONREASON_H

#include "operatorchain.h"

#include <QString>

#include <functional>
#include <memory>

namespace Dezimo {

/// A step that the rule of a calculator's mode does not allow.
struct RefusedStep
{
    /// A power or a voltage has been subtracted in a step before.
    bool isAfterDifference;
    /// All before the step in brackets, and then the step: (5mW-3mW)+1mW. Empty if that is long.
    QString regrouped;
};

/// What expressionReason() has to know of a calculator.
struct ExplainedCalculator
{
    const ExpressionUnits &units;
    /// Significant digits that a step keeps.
    int stepDigits;
    /// An expression that has a result in every mode.
    QString example;
    /// The rule of one evaluation in the present mode.
    std::function<std::unique_ptr<StepRule>()> newStepRule;
    /// Why that rule refuses a step.
    std::function<QString(const RefusedStep &)> refusal;
};

/**
 * Tells in one sentence of plain text why @p typed has an error text for a result, and names what
 * is wrong with it. Empty exactly if the result is no error text; INF and NAN are results.
 *
 * The sentence has about a hundred characters at most: what it repeats of a long text is shortened.
 * What it says to write has a result. Time and memory are linear in the length of the text, however
 * deeply it is nested.
 */
QString expressionReason(const QString &typed, const ExplainedCalculator &calculator);

} // namespace Dezimo

#endif
