// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "expressionreason.h"

#include "bracketgroups.h"
#include "errortexts.h"
#include "expressiontext.h"
#include "operandreason.h"
#include "quotedtext.h"

#include <QLocale>

#include <algorithm>
#include <utility>
#include <vector>

namespace Dezimo {

namespace {

constexpr QLatin1Char kOpening('(');
constexpr QLatin1Char kClosing(')');
/// A whole step that a sentence says to write may be longer than a value.
constexpr int kStepLength = 40;

/// Does as another rule does, and remembers what became of the steps.
class WatchedRule final : public StepRule
{
public:
    explicit WatchedRule(std::unique_ptr<StepRule> rule) : m_rule(std::move(rule)) {}

    std::optional<Operand> combine(const Operand &left, Operator operation,
                                   const Operand &right) override
    {
        const std::optional<Operand> result = m_rule->combine(left, operation, right);
        const bool isRatio = left.unit == &Units::kDb || right.unit == &Units::kDb;
        m_isRefused = !result;
        if (result)
            ++m_steps;
        m_hasDifference = m_hasDifference || (operation == Operator::Minus && !isRatio);
        return result;
    }

    bool isRefused() const { return m_isRefused; }
    /// How many steps have been allowed.
    std::size_t steps() const { return m_steps; }
    bool hasDifference() const { return m_hasDifference; }

private:
    const std::unique_ptr<StepRule> m_rule;
    bool m_isRefused = false;
    std::size_t m_steps = 0;
    bool m_hasDifference = false;
};

QString withoutSigns(const QString &operand)
{
    const auto first = std::find_if_not(operand.begin(), operand.end(), ExpressionText::isOperator);
    return operand.mid(int(first - operand.begin()));
}

/// Where the exponent of a number in @p value has its sign, or -1.
int exponentSign(const QString &value)
{
    for (int i = 2; i < value.size(); ++i) {
        if (ExpressionText::isOperator(value.at(i)))
            return i;
    }
    return -1;
}

/// @p value with its number written without an exponent: 1e-3mW is 0.001mW.
QString withoutExponent(const QString &value)
{
    const auto isDigitOrPoint = [&value](int i) {
        return i >= 0 && i < value.size() &&
               (value.at(i).isDigit() || value.at(i) == QLatin1Char('.'));
    };
    const int sign = exponentSign(value);
    int begin = sign - 1;
    while (isDigitOrPoint(begin - 1))
        --begin;
    int end = sign + 1;
    while (isDigitOrPoint(end))
        ++end;
    const double number = QStringView(value).mid(begin, end - begin).toDouble();
    return value.left(begin) + QString::number(number, 'f', QLocale::FloatingPointShortest) +
           value.mid(end);
}

/// Which bracket has no partner. If all have one, two of them have nothing between them.
QString bracketReason(const QString &text)
{
    std::vector<int> open;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == kOpening)
            open.push_back(i);
        if (text.at(i) != kClosing)
            continue;
        if (open.empty()) {
            return QLatin1String("An opening bracket is missing for ") +
                   QuotedText::end(text.left(i + 1));
        }
        open.pop_back();
    }
    if (!open.empty()) {
        return QLatin1String("A closing bracket is missing for ") +
               QuotedText::beginning(text.mid(open.back()));
    }
    return QStringLiteral("The brackets () are empty; put a value between them");
}

/**
 * Evaluates an expression once more as the calculator does. Each part that has no result leaves its
 * reason behind, so that a group's reason is there when its error text makes the expression fail.
 */
class Inquiry
{
public:
    Inquiry(const QString &text, const ExplainedCalculator &calculator)
        : m_text(text),
          m_calculator(calculator)
    {}

    QString reason()
    {
        const BracketedResult result =
            evaluateBracketed(m_text, [this](const QString &part) { return evaluated(part); });
        if (result.isDefect)
            return bracketReason(m_text);
        const Evaluation &evaluation = result.evaluation;
        return evaluation.number || parsed(evaluation.text) ? QString()
                                                            : unreadReason(evaluation.text);
    }

private:
    std::optional<Operand> parsed(const QString &operand) const
    {
        return parseOperand(operand, m_calculator.units);
    }

    OperatorChain chainOf(const QString &part) const
    {
        return {part, m_calculator.units, m_calculator.stepDigits};
    }

    Evaluation evaluated(const QString &part)
    {
        const OperatorChain chain = chainOf(part);
        Evaluation result{ErrorText::kInvalidInput};
        if (!chain.isEmpty())
            result = chain.result(*m_calculator.newStepRule());
        if (result.number)
            m_lastValue = result.text;
        else
            m_reason = chain.isEmpty() ? loneReason(part) : chainReason(part, chain);
        return result;
    }

    /// Whether a person finds in the own text what a sentence repeats.
    bool isTyped(const QString &piece) const
    {
        return m_text.contains(piece.left(QuotedText::kLength - 1));
    }

    bool isPlain(const Operand &operand) const
    {
        return operand.unit == m_calculator.units.back().unit;
    }

    /// Why @p operand is no number. @p before is the operator in front of it.
    QString unreadReason(const QString &operand, const QString &before = {}) const
    {
        // The cleaned text has no blanks, so this one is in the error text of a group.
        if (operand.contains(QLatin1Char(' ')))
            return m_reason;
        // Brackets are left where a group has failed, or where there are only closing ones.
        if (operand.contains(kOpening) || operand.contains(kClosing))
            return m_reason.isEmpty() ? bracketReason(m_text) : m_reason;
        if (withoutSigns(operand).isEmpty())
            return QLatin1String("A value is missing after ") +
                   QuotedText::beginning(before + operand);
        const OperandReason reason = operandReason(operand, m_calculator.units);
        return isTyped(withoutSigns(reason.culprit)) ? reason.text : joinedReason(operand);
    }

    /// The value of a group joins the text beside it: 2(1mW+1mW) reads 22mW.
    static QString joinedReason(const QString &operand)
    {
        return QLatin1String("A + or - is missing beside a bracket, which makes ") +
               QuotedText::beginning(operand);
    }

    /// Why a text without operators has no result. It is a group only if it has the sign of an
    /// exponent, which counts as an operator there.
    QString loneReason(const QString &value) const
    {
        if (!parsed(value))
            return unreadReason(value);
        const QString number = withoutSigns(value);
        if (value == m_lastValue)
            return QLatin1String("One pair of brackets is too many around ") +
                   QuotedText::beginning(value);
        if (number != m_lastValue && !isTyped(number))
            return joinedReason(value);
        const bool hasSign = exponentSign(value) >= 0;
        const QString example = inBrackets(value);
        if (hasSign && m_text.contains(kOpening)) {
            QString reason =
                QStringLiteral("A lone value in brackets takes no sign in its exponent");
            return example.isEmpty() ? reason : reason + QLatin1String(": write ") + example;
        }
        return example.isEmpty() ? QStringLiteral("One value alone needs brackets around it")
                                 : QLatin1String("One value alone needs brackets: ") + example;
    }

    /// @p value as a group, which takes no sign of an exponent. Empty if that is long, or another
    /// value: a prefix may stand within the exponent.
    QString inBrackets(const QString &value) const
    {
        const QString written = exponentSign(value) < 0 ? value : withoutExponent(value);
        const std::optional<Operand> operand = parsed(written);
        if (!QuotedText::isShort(written) || !operand || operand->value != parsed(value)->value)
            return {};
        return kOpening + written + kClosing;
    }

    /// Why @p chain, which is @p part, has no result: its first step that fails.
    QString chainReason(const QString &part, const OperatorChain &chain) const
    {
        const std::optional<Operand> first = parsed(chain.operandText(0));
        if (!first)
            return unreadReason(chain.operandText(0));
        std::optional<Operand> operand;
        std::size_t count = 1;
        for (; count < chain.operandCount(); ++count) {
            operand = parsed(chain.operandText(count));
            if (!operand || isPlain(*operand) != isPlain(*first))
                break;
        }
        const QString before = chain.textBefore(count);
        if (count > 1) {
            QString reason = stepReason(chainOf(before));
            if (!reason.isEmpty())
                return reason;
        }
        if (!operand)
            return unreadReason(chain.operandText(count), part.mid(before.size(), 1));
        return unitReason(chain, count, isPlain(*operand));
    }

    /// Why a chain of operands that go together has no result. Empty if it has one.
    QString stepReason(const OperatorChain &chain) const
    {
        WatchedRule rule(m_calculator.newStepRule());
        if (chain.result(rule).number)
            return {};
        if (!rule.isRefused())
            return QStringLiteral("The result is too large to calculate with");
        const std::size_t refused = rule.steps() + 1;
        const QString before = chain.textBefore(refused);
        const QString step = chain.textBefore(refused + 1).mid(before.size());
        const QString regrouped = kOpening + before + kClosing + step;
        const bool isShort = QuotedText::isShort(regrouped, kStepLength);
        return m_calculator.refusal({rule.hasDifference(), isShort ? regrouped : QString()});
    }

    static QString unitReason(const OperatorChain &chain, std::size_t index, bool isPlain)
    {
        const QString first = QuotedText::beginning(chain.operandText(0));
        const QString other = QuotedText::beginning(chain.operandText(index));
        return (isPlain ? other : first) + QLatin1String(" has no unit, but ") +
               (isPlain ? first : other) + QLatin1String(" has one");
    }

    const QString &m_text;
    const ExplainedCalculator &m_calculator;
    /// The text of the latest result of a group.
    QString m_lastValue;
    /// That of the latest part without a result.
    QString m_reason;
};

} // namespace

QString expressionReason(const QString &typed, const ExplainedCalculator &calculator)
{
    const QString text = ExpressionText::cleaned(typed);
    if (text.isEmpty())
        return QLatin1String("Type an expression, such as ") + calculator.example;
    return Inquiry(text, calculator).reason();
}

} // namespace Dezimo
