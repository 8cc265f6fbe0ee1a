// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_OPERATORCHAIN_H
#define PROFILES_OPERATORCHAIN_H

#include "operand.h"

#include <QString>

#include <optional>
#include <vector>

enum class Operator { Plus, Minus };

/**
 * How one calculator combines two operands that carry units. A rule serves one evaluation, from
 * left to right, and may remember what it has combined so far.
 */
class StepRule
{
public:
    virtual ~StepRule() = default;

    /// The value of "left operation right", or nothing where the mode does not allow the step.
    virtual std::optional<Operand> combine(const Operand &left, Operator operation,
                                           const Operand &right) = 0;
};

/**
 * An expression without brackets, reduced strictly from left to right in one pass. Each step's
 * number is written with a limited number of significant digits and read again by the next step.
 */
class OperatorChain
{
public:
    /// @p units must outlive the chain; @p digits are the significant digits that a step keeps.
    OperatorChain(const QString &text, const ExpressionUnits &units, int digits);

    /// No operator: a lone value is no expression.
    bool isEmpty() const { return m_operators.empty(); }

    /// The last step's number followed by its unit, or the error text of the step that failed. The
    /// chain must not be empty.
    QString result(StepRule &rule) const;

private:
    std::optional<Operand> operand(std::size_t index) const;

    QString m_text;
    const ExpressionUnits &m_units;
    int m_digits;
    std::vector<int> m_operators;
};

#endif
