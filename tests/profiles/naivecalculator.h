// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_PROFILES_NAIVECALCULATOR_H
#define TESTS_PROFILES_NAIVECALCULATOR_H

#include <QString>

#include <vector>

struct Term;

/// Terms that are added to or subtracted from what stands before them, in this order.
using Chain = std::vector<Term>;

/// A number with its unit, or a group in brackets.
struct Term
{
    bool isSubtracted = false;
    QString operand;
    Chain group;
};

/// The chain as it is typed.
QString chainText(const Chain &chain);

enum class Quantity { Linear, Level, Ratio };

/// A number that may be off by an error; an infinite error says that nothing is known about it.
/// Linear quantities are in mW or mV, levels in dBm.
struct Approximate
{
    double value = 0.0;
    double error = 0.0;
    Quantity unit = Quantity::Linear;
    bool isRefused = false;
};

/**
 * A second evaluation of expressions of powers, from the structure that they were written from
 * instead of from their text, and with numbers instead of rounded texts. What rounding each step to
 * 12 digits may do to the result is carried along as an error.
 */
class NaivePowers
{
public:
    explicit NaivePowers(bool incoherent) : m_incoherent(incoherent) {}

    /// The result in mW, or a ratio in dB.
    Approximate value(const Chain &chain) const;

private:
    Approximate result(const Chain &chain) const;
    Approximate operand(const Term &term) const;

    bool m_incoherent;
};

/// The same for voltages, whose steps are rounded to 10 digits.
class NaiveVoltages
{
public:
    NaiveVoltages(int mode, double degrees) : m_mode(mode), m_degrees(degrees) {}

    /// The result in mV.
    Approximate value(const Chain &chain) const;

private:
    Approximate step(const Approximate &left, bool isSubtracted, const Approximate &right) const;

    int m_mode;
    double m_degrees;
};

#endif
