// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "naivecalculator.h"

#include <cmath>
#include <complex>
#include <limits>

namespace {

constexpr double kUnknown = std::numeric_limits<double>::infinity();
constexpr double kPi = 3.14159265358979323846;
/// The most by which rounding to 12 or 10 digits changes a number, with the rounding of doubles.
constexpr double kPowerRounding = 5e-12 + 1e-14;
constexpr double kVoltageRounding = 5e-10 + 1e-14;

double number(QString text, const char *unit)
{
    text.chop(int(QString::fromUtf8(unit).size()));
    double factor = 1.0;
    if (text.endsWith(QLatin1Char('k')))
        factor = 1e3;
    if (text.endsWith(QLatin1Char('m')))
        factor = 1e-3;
    if (factor != 1.0)
        text.chop(1);
    return text.toDouble() * factor;
}

Approximate rounded(Approximate value, double rounding)
{
    value.error += std::abs(value.value) * rounding;
    return value;
}

/// A sum or difference in the unit of both.
Approximate combined(const Approximate &left, bool isSubtracted, const Approximate &right)
{
    const double value = isSubtracted ? left.value - right.value : left.value + right.value;
    const double error =
        left.error + right.error + (std::abs(left.value) + std::abs(right.value)) * 1e-15;
    return {value, error, left.unit};
}

/// The mean of powers. The calculator rounds its running mean once for each input.
Approximate mean(const std::vector<Approximate> &powers)
{
    const double count = double(powers.size());
    Approximate sum;
    for (const Approximate &power : powers)
        sum = combined(sum, false, milliwatt(power));
    const double value = sum.value / count;
    return {value, sum.error / count + std::abs(value) * kPowerRounding * count};
}

/// Why a step fails in either calculator.
Failure failureOf(const Approximate &left, const Approximate &right)
{
    if (left.failure != Failure::None || right.failure != Failure::None)
        return Failure::InvalidInput;
    const bool isUnitMissing = (left.unit == Quantity::Plain) != (right.unit == Quantity::Plain);
    return isUnitMissing ? Failure::UnitMissing : Failure::None;
}

Approximate failed(Failure failure)
{
    Approximate result;
    result.failure = failure;
    return result;
}

} // namespace

QString chainText(const Chain &chain)
{
    QString text;
    for (const Term &term : chain) {
        if (!text.isEmpty())
            text += QLatin1Char(term.isSubtracted ? '-' : '+');
        text += term.group.empty() ? term.operand
                                   : QLatin1Char('(') + chainText(term.group) + QLatin1Char(')');
    }
    return text;
}

Approximate milliwatt(const Approximate &power)
{
    if (power.unit == Quantity::Linear)
        return power;
    const double value = std::pow(10.0, power.value / 10);
    return {value, value * (std::expm1(power.error * std::log(10.0) / 10) + 1e-14)};
}

Approximate level(const Approximate &power)
{
    if (power.unit != Quantity::Linear)
        return power;
    const double uncertainty = power.error / std::abs(power.value);
    const double value = 10 * std::log10(power.value);
    return {value, uncertainty < 0.01 ? 10 * uncertainty : kUnknown, Quantity::Level};
}

/// The calculator reads groups from the right and stops at an invalid one. That group and those to
/// its left stay as texts, which are not numbers either.
Approximate NaiveCalculator::value(const Chain &chain) const
{
    std::vector<Approximate> values = operands(chain);
    bool isText = false;
    for (std::size_t i = chain.size(); i-- > 0;) {
        isText = isText || values[i].failure == Failure::InvalidInput;
        if (isText && !chain[i].group.empty())
            values[i] = failed(Failure::InvalidInput);
    }
    return reduced(chain, values);
}

/// A group is invalid if one inside it is.
Approximate NaiveCalculator::group(const Chain &chain) const
{
    const std::vector<Approximate> values = operands(chain);
    for (const Approximate &value : values) {
        if (value.failure == Failure::InvalidInput)
            return value;
    }
    return reduced(chain, values);
}

std::vector<Approximate> NaiveCalculator::operands(const Chain &chain) const
{
    std::vector<Approximate> values;
    for (const Term &term : chain)
        values.push_back(term.group.empty() ? operand(term.operand) : group(term.group));
    return values;
}

Approximate NaivePowers::operand(const QString &text) const
{
    if (text.endsWith(QLatin1String("dBm")))
        return {number(text, "dBm"), 0, Quantity::Level};
    if (text.endsWith(QLatin1String("dBW")))
        return {number(text, "dBW") + 30, 0, Quantity::Level};
    if (text.endsWith(QLatin1String("dB")))
        return {number(text, "dB"), 0, Quantity::Ratio};
    if (!text.endsWith(QLatin1Char('W')))
        return {number(text, ""), 0, Quantity::Plain};
    double milliwatts = 0.0;
    if (text.endsWith(QLatin1String("mW")))
        milliwatts = number(text, "mW");
    else if (text.endsWith(QStringLiteral("\u00B5W")))
        milliwatts = number(text, "µW") * 1e-3;
    else
        milliwatts = number(text, "W") * 1e3;
    return {milliwatts, std::abs(milliwatts) * 1e-15};
}

/// An incoherent combiner takes each mean anew from the list of its inputs.
Approximate NaivePowers::reduced(const Chain &chain, const std::vector<Approximate> &operands) const
{
    Approximate left = operands.front();
    std::vector<Approximate> inputs{left};
    bool hasEnded = false;
    for (std::size_t i = 1; i < chain.size(); ++i) {
        const bool isSubtracted = chain[i].isSubtracted;
        const Approximate &right = operands[i];
        const Failure failure = failureOf(left, right);
        if (failure != Failure::None)
            return failed(failure);
        if (left.unit == Quantity::Plain) {
            left = combined(left, isSubtracted, right);
        } else if (left.unit == Quantity::Ratio || right.unit == Quantity::Ratio) {
            const bool areRatios = left.unit == right.unit;
            left = combined(level(left), isSubtracted, level(right));
            left.unit = areRatios ? Quantity::Ratio : Quantity::Level;
            hasEnded = hasEnded || inputs.size() > 1;
            inputs = {left};
        } else if (isSubtracted || !m_incoherent) {
            left = combined(milliwatt(left), isSubtracted, milliwatt(right));
            hasEnded = hasEnded || isSubtracted;
        } else if (hasEnded) {
            return failed(Failure::InvalidInput);
        } else {
            inputs.push_back(right);
            left = mean(inputs);
        }
        left = rounded(left, kPowerRounding);
    }
    return left;
}

Approximate NaiveVoltages::operand(const QString &text) const
{
    if (text.endsWith(QLatin1String("mV")))
        return {number(text, "mV")};
    if (text.endsWith(QLatin1Char('V')))
        return {number(text, "V") * 1e3};
    return {number(text, ""), 0, Quantity::Plain};
}

Approximate NaiveVoltages::reduced(const Chain &chain,
                                   const std::vector<Approximate> &operands) const
{
    Approximate left = operands.front();
    for (std::size_t i = 1; i < chain.size(); ++i) {
        const Failure failure = failureOf(left, operands[i]);
        if (failure != Failure::None)
            return failed(failure);
        left = step(left, chain[i].isSubtracted, operands[i]);
        if (left.failure != Failure::None)
            return left;
    }
    return left;
}

/// Correlated voltages are phasors. The result is the length of their sum.
Approximate NaiveVoltages::step(const Approximate &left, bool isSubtracted,
                                const Approximate &right) const
{
    Approximate sum = combined(left, isSubtracted, right);
    if (sum.unit == Quantity::Plain)
        return rounded(sum, kVoltageRounding);
    if (m_mode == 0) {
        if (isSubtracted)
            return failed(Failure::InvalidInput);
        sum.value = std::sqrt(left.value * left.value + right.value * right.value);
    } else if (m_mode == 1) {
        const double sign = isSubtracted ? -1.0 : 1.0;
        sum.value =
            std::abs(left.value + sign * std::polar(1.0, m_degrees / 180 * kPi) * right.value);
    }
    return rounded(sum, kVoltageRounding);
}
