// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "expressionhistory.h"

#include <algorithm>

namespace {

/// So many nobody goes through, and a program that is open for months stays small.
constexpr std::size_t kMostExpressions = 1000;

} // namespace

void ExpressionHistory::add(const QString &expression)
{
    const auto isOver = [&expression](const Line &line) {
        return !line.isTakenOver || line.text == expression;
    };
    m_lines.erase(std::remove_if(m_lines.begin(), m_lines.end(), isOver), m_lines.end());
    if (!expression.trimmed().isEmpty())
        m_lines.push_back({expression, true});
    if (m_lines.size() > kMostExpressions)
        m_lines.erase(m_lines.begin());
    m_lines.push_back({QString(), false});
    m_present = m_lines.size() - 1;
}

QString ExpressionHistory::older(const QString &typed)
{
    keep(typed);
    if (m_present > 0)
        --m_present;
    return m_lines.at(m_present).text;
}

QString ExpressionHistory::newer(const QString &typed)
{
    keep(typed);
    if (m_present + 1 < m_lines.size())
        ++m_present;
    return m_lines.at(m_present).text;
}

/// The line after an expression may hold the same text already. Then that line is the present one,
/// so that going back and forth adds no copies of it.
void ExpressionHistory::keep(const QString &typed)
{
    if (m_lines.at(m_present).text == typed)
        return;
    if (!m_lines.at(m_present).isTakenOver) {
        m_lines.at(m_present).text = typed;
        return;
    }
    const Line &next = m_lines.at(++m_present);
    if (next.isTakenOver || next.text != typed)
        m_lines.insert(m_lines.begin() + std::ptrdiff_t(m_present), {typed, false});
}
