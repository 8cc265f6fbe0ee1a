// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "bracketgroups.h"

#include "errortexts.h"
#include "expressiontext.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace Dezimo {

namespace {

constexpr QLatin1Char kOpening('(');
constexpr QLatin1Char kClosing(')');

/// A group whose closing bracket has been read and whose opening one has not.
struct Group
{
    int closingBracket;
    /// Where the group starts in the reversed text.
    int start;
    /// How many "+" and "-" the group's text holds by now.
    int operators = 0;
};

int countOperators(const QString &text)
{
    return int(std::count_if(text.begin(), text.end(), ExpressionText::isOperator));
}

/// The error text of brackets that do not pair, empty if they do.
QString bracketDefect(const QString &text)
{
    if (text.count(kOpening) != text.count(kClosing))
        return ErrorText::kBracketMissing;
    int depth = 0;
    for (const QChar character : text) {
        if (character == kOpening)
            ++depth;
        else if (character == kClosing && --depth < 0)
            return ErrorText::kInvalidInput;
    }
    return {};
}

/**
 * Reads a text from the right, because the group with the last opening bracket is evaluated first.
 * What has been read is kept reversed: the open groups are then nested tails of one string, and
 * replacing a group by its value touches that tail only.
 */
class GroupReader
{
public:
    GroupReader(const QString &text, const Evaluator &evaluate) : m_text(text), m_evaluate(evaluate)
    {}

    BracketedResult read()
    {
        const int length = int(m_text.size());
        m_groups.push_back({length, 0});
        for (int i = length - 1; i >= 0; --i) {
            const QChar character = m_text.at(i);
            if (character == kClosing)
                m_groups.push_back({i, int(m_reversed.size())});
            else if (character != kOpening)
                append(character);
            else if (m_reversed.size() == m_groups.back().start)
                return {{ErrorText::kInvalidInput}, true};
            else if (!closeGroup(i))
                return {m_evaluate(m_text)};
        }
        const QString reduced = tail(m_groups.back());
        return {m_spansAll ? Evaluation{reduced} : m_evaluate(reduced)};
    }

private:
    void append(QChar character)
    {
        m_reversed += character;
        m_groups.back().operators += ExpressionText::isOperator(character) ? 1 : 0;
    }

    /// Returns false if the group is not valid. Nothing is replaced any more then: evaluating the
    /// whole text as it was typed ends at its first bracket, or at a step that fails before.
    bool closeGroup(int openingBracket)
    {
        const Group group = m_groups.back();
        m_groups.pop_back();
        int operators = group.operators;
        if (!isOwnValue(group)) {
            const QString value = m_evaluate(tail(group)).text;
            if (value == ErrorText::kInvalidInput)
                return false;
            replaceTail(group, value);
            operators = countOperators(value);
        }
        m_groups.back().operators += operators;
        m_spansAll = openingBracket == 0 && group.closingBracket == m_text.size() - 1;
        return true;
    }

    /// A lone value, which may have a sign: (-3dBm). (1e-3mW) is evaluated, because the sign of the
    /// exponent is taken for an operator here.
    bool isOwnValue(const Group &group) const
    {
        return group.operators == 0 ||
               (group.operators == 1 && ExpressionText::isOperator(m_reversed.back()));
    }

    QString tail(const Group &group) const
    {
        QString text = m_reversed.mid(group.start);
        std::reverse(text.begin(), text.end());
        return text;
    }

    void replaceTail(const Group &group, const QString &value)
    {
        m_reversed.truncate(group.start);
        std::reverse_copy(value.begin(), value.end(), std::back_inserter(m_reversed));
    }

    const QString &m_text;
    const Evaluator &m_evaluate;
    QString m_reversed;
    /// Innermost last; the first one is the text itself.
    std::vector<Group> m_groups;
    bool m_spansAll = false;
};

} // namespace

BracketedResult evaluateBracketed(const QString &text, const Evaluator &evaluate)
{
    if (!text.contains(kOpening))
        return {evaluate(text)};
    const QString defect = bracketDefect(text);
    if (!defect.isEmpty())
        return {{defect}, true};
    return GroupReader(text, evaluate).read();
}

} // namespace Dezimo
