// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "operatorchain.h"

#include "errortexts.h"
#include "expressiontext.h"
#include "valuetext.h"

using namespace Dezimo;

namespace {

double plainResult(double left, Operator operation, double right)
{
    return operation == Operator::Plus ? left + right : left - right;
}

} // namespace

OperatorChain::OperatorChain(const QString &text, const ExpressionUnits &units, int digits)
    : m_text(text),
      m_units(units),
      m_digits(digits),
      m_operators(ExpressionText::operatorPositions(text))
{}

Evaluation OperatorChain::result(StepRule &rule) const
{
    const Unit *plain = m_units.back().unit;
    std::optional<Operand> left = operand(0);
    if (!left)
        return {ErrorText::kInvalidInput};
    QString number;
    for (std::size_t i = 0; i < m_operators.size(); ++i) {
        const std::optional<Operand> right = operand(i + 1);
        if (!right)
            return {ErrorText::kInvalidInput};
        if ((left->unit == plain) != (right->unit == plain))
            return {ErrorText::kUnitMissing};
        const Operator operation =
            m_text.at(m_operators[i]) == QLatin1Char('+') ? Operator::Plus : Operator::Minus;
        if (left->unit == plain)
            left->value = plainResult(left->value, operation, right->value);
        else
            left = rule.combine(*left, operation, *right);
        if (!left)
            return {ErrorText::kInvalidInput};
        number = generalText(left->value, m_digits);
        // Rounding may lift the largest numbers beyond what can be read again.
        bool ok = false;
        left->value = number.toDouble(&ok);
        if (!ok)
            return {ErrorText::kInvalidInput};
    }
    return {number + left->unit->symbol, left};
}

QString OperatorChain::operandText(std::size_t index) const
{
    const int begin = index == 0 ? 0 : m_operators[index - 1] + 1;
    const int end = index < m_operators.size() ? m_operators[index] : int(m_text.size());
    return m_text.mid(begin, end - begin);
}

QString OperatorChain::textBefore(std::size_t index) const
{
    if (index == 0)
        return {};
    return index > m_operators.size() ? m_text : m_text.left(m_operators[index - 1]);
}

std::optional<Operand> OperatorChain::operand(std::size_t index) const
{
    return parseOperand(operandText(index), m_units);
}
