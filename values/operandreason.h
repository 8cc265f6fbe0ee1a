// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef VALUES_OPERANDREASON_H
#define VALUES_OPERANDREASON_H

#include "operand.h"

#include <QString>

namespace Dezimo {

/// Why a text is no operand.
struct OperandReason
{
    /// What is wrong: the whole operand, or its signs, its number or its unit alone.
    QString culprit;
    /// One sentence about it.
    QString text;
};

/**
 * Tells why parseOperand() reads no number from @p operand, which must be so. @p operand has no
 * bracket, and it is more than a sign.
 *
 * Where the sentence says what to write instead, parseOperand() reads that. Time and memory are
 * linear in the length of the text.
 */
OperandReason operandReason(const QString &operand, const ExpressionUnits &units);

} // namespace Dezimo

#endif
