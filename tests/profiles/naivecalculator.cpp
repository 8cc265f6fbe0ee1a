// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "naivecalculator.h"

#include <cmath>
#include <complex>
#include <limits>

namespace {

constexpr double kUnknown = std::numeric_limits<double>::infinity();
constexpr double kPi = 3.14159265358979323846;
/// What rounding to 12 and to 10 digits does to a number, at most, and what doubles do besides.
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

Approximate milliwatt(const Approximate &power)
{
    if (power.unit == Quantity::Linear)
        return power;
    const double value = std::pow(10.0, power.value / 10);
    return {value, value * (std::expm1(power.error * std::log(10.0) / 10) + 1e-14)};
}

/// A level as it stands, a ratio too. The logarithm of a power that may as well be zero or below
/// is unknown.
Approximate level(const Approximate &power)
{
    if (power.unit != Quantity::Linear)
        return power;
    const double uncertainty = power.error / std::abs(power.value);
    const double value = 10 * std::log10(power.value);
    return {value, uncertainty < 0.01 ? 10 * uncertainty : kUnknown, Quantity::Level};
}

/// A sum or difference in the unit of both.
Approximate combined(const Approximate &left, bool isSubtracted, const Approximate &right)
{
    const double value = isSubtracted ? left.value - right.value : left.value + right.value;
    const double error =
        left.error + right.error + (std::abs(left.value) + std::abs(right.value)) * 1e-15;
    return {value, error, left.unit};
}

/// The mean of powers. The running mean is rounded as often as there are inputs.
Approximate mean(const std::vector<Approximate> &powers)
{
    const double count = double(powers.size());
    Approximate sum;
    for (const Approximate &power : powers)
        sum = combined(sum, false, milliwatt(power));
    const double value = sum.value / count;
    return {value, sum.error / count + std::abs(value) * kPowerRounding * count};
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

Approximate NaivePowers::value(const Chain &chain) const
{
    const Approximate found = result(chain);
    const bool isLevel = found.unit == Quantity::Level && !found.isRefused;
    return isLevel ? milliwatt(found) : found;
}

Approximate NaivePowers::operand(const Term &term) const
{
    if (!term.group.empty())
        return result(term.group);
    const QString &text = term.operand;
    if (text.endsWith(QLatin1String("dBm")))
        return {number(text, "dBm"), 0, Quantity::Level};
    if (text.endsWith(QLatin1String("dBW")))
        return {number(text, "dBW") + 30, 0, Quantity::Level};
    if (text.endsWith(QLatin1String("dB")))
        return {number(text, "dB"), 0, Quantity::Ratio};
    double milliwatts = 0.0;
    if (text.endsWith(QLatin1String("mW")))
        milliwatts = number(text, "mW");
    else if (text.endsWith(QStringLiteral("\u00B5W")))
        milliwatts = number(text, "µW") * 1e-3;
    else
        milliwatts = number(text, "W") * 1e3;
    return {milliwatts, std::abs(milliwatts) * 1e-15};
}

/// The mean of an incoherent combiner is taken anew from the list of its inputs.
Approximate NaivePowers::result(const Chain &chain) const
{
    Approximate left = operand(chain.front());
    std::vector<Approximate> inputs{left};
    bool hasEnded = false;
    for (std::size_t i = 1; i < chain.size() && !left.isRefused; ++i) {
        const bool isSubtracted = chain[i].isSubtracted;
        const Approximate right = operand(chain[i]);
        if (right.isRefused)
            return right;
        if (left.unit == Quantity::Ratio || right.unit == Quantity::Ratio) {
            const bool areRatios = left.unit == right.unit;
            left = combined(level(left), isSubtracted, level(right));
            left.unit = areRatios ? Quantity::Ratio : Quantity::Level;
            hasEnded = hasEnded || inputs.size() > 1;
            inputs = {left};
        } else if (isSubtracted || !m_incoherent) {
            left = combined(milliwatt(left), isSubtracted, milliwatt(right));
            hasEnded = hasEnded || isSubtracted;
        } else if (hasEnded) {
            left.isRefused = true;
        } else {
            inputs.push_back(right);
            left = mean(inputs);
        }
        left = rounded(left, kPowerRounding);
    }
    return left;
}

Approximate NaiveVoltages::value(const Chain &chain) const
{
    Approximate left;
    for (std::size_t i = 0; i < chain.size(); ++i) {
        const Term &term = chain[i];
        Approximate right;
        if (!term.group.empty())
            right = value(term.group);
        else if (term.operand.endsWith(QLatin1String("mV")))
            right.value = number(term.operand, "mV");
        else
            right.value = number(term.operand, "V") * 1e3;
        left = i == 0 ? right : step(left, term.isSubtracted, right);
        if (left.isRefused || right.isRefused) {
            left.isRefused = true;
            return left;
        }
    }
    return left;
}

/// Correlated voltages are phasors of the plane, and their sum is the length of the sum.
Approximate NaiveVoltages::step(const Approximate &left, bool isSubtracted,
                                const Approximate &right) const
{
    Approximate sum = combined(left, isSubtracted, right);
    if (m_mode == 0) {
        sum.isRefused = isSubtracted;
        sum.value = std::sqrt(left.value * left.value + right.value * right.value);
    } else if (m_mode == 1) {
        const double sign = isSubtracted ? -1.0 : 1.0;
        sum.value =
            std::abs(left.value + sign * std::polar(1.0, m_degrees / 180 * kPi) * right.value);
    }
    return rounded(sum, kVoltageRounding);
}
