// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_BRACKETGROUPS_H
#define VALUES_BRACKETGROUPS_H

#include "operatorchain.h"

#include <functional>

namespace Dezimo {

/// What an expression with brackets comes to. If a group around the whole text holds a lone value,
/// there is only its text, which has not been read yet.
struct BracketedResult
{
    Evaluation evaluation;
    /// The brackets themselves are wrong (the text says how), and nothing has been calculated.
    bool isDefect = false;
};

/// Evaluates a text without brackets. A bracket that is still in the text gives an error text.
using Evaluator = std::function<Evaluation(const QString &)>;

/**
 * Evaluates a cleaned expression group by group: innermost groups first, from the right to the
 * left, each replaced by the text of its value within the text around it, so that 2(1mW+1mW) reads
 * 22mW afterwards. A group without an operator of its own, or with a leading sign only, is its own
 * value. Time and memory are linear in the length of the text, however deeply it is nested.
 */
BracketedResult evaluateBracketed(const QString &text, const Evaluator &evaluate);

} // namespace Dezimo

#endif
