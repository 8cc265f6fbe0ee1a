// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_OPERATORCHAIN_H
#define VALUES_OPERATORCHAIN_H

#include "operand.h"

#include <QString>

#include <optional>
#include <vector>

namespace Dezimo {

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

/// What an expression comes to.
struct Evaluation
{
    /// The number followed by its unit, or the error text of the step that failed.
    QString text;
    /// The same as a number, unless the text is an error or has not been read yet.
    std::optional<Operand> number = {};
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

    /// What the last step gives. The chain must not be empty.
    Evaluation result(StepRule &rule) const;

    std::size_t operandCount() const { return m_operators.size() + 1; }
    QString operandText(std::size_t index) const;
    /// The operands before that with the given index, and the operators between them. All of the
    /// text if there is no such operand.
    QString textBefore(std::size_t index) const;

private:
    std::optional<Operand> operand(std::size_t index) const;

    QString m_text;
    const ExpressionUnits &m_units;
    int m_digits;
    std::vector<int> m_operators;
};

} // namespace Dezimo

#endif
