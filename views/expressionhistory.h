// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VIEWS_EXPRESSIONHISTORY_H
#define VIEWS_EXPRESSIONHISTORY_H

#include <QString>

#include <cstddef>
#include <vector>

/**
 * The expressions that were taken over in this session, to be recalled in an input line. The line
 * that is being typed follows the newest of them.
 *
 * Recalling and typing lose nothing. An expression stays as it was taken over, and what is typed
 * over it becomes a line of its own after it. Such lines are gone when the next expression is taken
 * over.
 */
class ExpressionHistory final
{
public:
    /// Makes @p expression the newest one and begins a new line after it. An expression is held
    /// once, at its newest place, and a blank one is not held at all. The oldest of more than a
    /// thousand is forgotten.
    void add(const QString &expression);

    /// The line before the present one, which reads @p typed by now, or the first line again.
    QString older(const QString &typed);
    /// The line after the present one, which reads @p typed by now, or the last line again.
    QString newer(const QString &typed);

private:
    struct Line
    {
        QString text;
        bool isTakenOver;
    };

    void keep(const QString &typed);

    std::vector<Line> m_lines{{QString(), false}}; ///< the last one has never been taken over
    std::size_t m_present = 0;
};

#endif
