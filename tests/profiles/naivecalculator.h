// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_PROFILES_NAIVECALCULATOR_H
#define TESTS_PROFILES_NAIVECALCULATOR_H

#include <QString>

#include <vector>

struct Term;

/// Terms in the order in which each is added to or subtracted from what stands before it.
using Chain = std::vector<Term>;

/// A number with its unit, or a group in brackets.
struct Term
{
    bool isSubtracted = false;
    QString operand;
    Chain group;
};

/// The chain as a person types it.
QString chainText(const Chain &chain);

enum class Quantity { Linear, Level, Ratio, Plain };

/// Why an expression has no result.
enum class Failure { None, InvalidInput, UnitMissing };

/// A number that may be off by an error. If the error is infinite, nothing is known about the
/// number. Linear quantities are in mW or mV, levels in dBm.
struct Approximate
{
    double value = 0.0;
    double error = 0.0;
    Quantity unit = Quantity::Linear;
    Failure failure = Failure::None;
};

/// A level or a linear power in mW.
Approximate milliwatt(const Approximate &power);

/// A linear power in dBm; levels and ratios stay as they are. If the power may be zero or below,
/// its logarithm is unknown.
Approximate level(const Approximate &power);

/**
 * A second evaluation of expressions, from their structure instead of their text, and with numbers
 * instead of rounded texts. It adds up the errors that rounding each step may cause. Operands must
 * be numbers.
 */
class NaiveCalculator
{
public:
    virtual ~NaiveCalculator() = default;

    /// The result of a whole expression of two terms or more.
    Approximate value(const Chain &chain) const;

protected:
    /// The value of a typed operand.
    virtual Approximate operand(const QString &text) const = 0;
    /// The result of a chain whose terms have the values @p operands.
    virtual Approximate reduced(const Chain &chain,
                                const std::vector<Approximate> &operands) const = 0;

private:
    Approximate group(const Chain &chain) const;
    std::vector<Approximate> operands(const Chain &chain) const;
};

/// Powers, levels and ratios; each step is rounded to 12 digits.
class NaivePowers final : public NaiveCalculator
{
public:
    explicit NaivePowers(bool incoherent) : m_incoherent(incoherent) {}

protected:
    Approximate operand(const QString &text) const override;
    Approximate reduced(const Chain &chain,
                        const std::vector<Approximate> &operands) const override;

private:
    bool m_incoherent;
};

/// Voltages; each step is rounded to 10 digits.
class NaiveVoltages final : public NaiveCalculator
{
public:
    NaiveVoltages(int mode, double degrees) : m_mode(mode), m_degrees(degrees) {}

protected:
    Approximate operand(const QString &text) const override;
    Approximate reduced(const Chain &chain,
                        const std::vector<Approximate> &operands) const override;

private:
    Approximate step(const Approximate &left, bool isSubtracted, const Approximate &right) const;

    int m_mode;
    double m_degrees;
};

#endif
