// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "randomexpressions.h"

#include <cmath>

namespace {

template <std::size_t N>
QString oneOf(Random &random, const char *const (&texts)[N])
{
    return QString::fromUtf8(texts[below(random, int(N))]);
}

/// A number from 0.001 to 999, now and then with an exponent, a prefix or a sign.
QString randomNumber(Random &random)
{
    static const char *const kSigns[] = {"", "", "", "", "-", "+"};
    static const char *const kEndings[] = {"", "", "", "", "e-1", "E+1", "e1", "k", "m"};
    const double value = below(random, 999) + 0.001 * (1 + below(random, 999));
    const double scale = std::pow(10.0, -below(random, 3));
    return oneOf(random, kSigns) + QString::number(value * scale, 'f', 6) + oneOf(random, kEndings);
}

/// Levels and ratios stay small, so that no power overflows.
QString randomPower(Random &random)
{
    static const char *const kLevels[] = {"dBm", "dBW", "dB"};
    static const char *const kLinears[] = {"mW", "W", "µW"};
    if (below(random, 2) == 0)
        return randomNumber(random) + oneOf(random, kLinears);
    return QString::number(below(random, 601) / 10.0 - 30.0) + oneOf(random, kLevels);
}

QString randomVoltage(Random &random)
{
    static const char *const kUnits[] = {"mV", "V"};
    return randomNumber(random) + oneOf(random, kUnits);
}

using Operands = QString (*)(Random &);

/// Two to five operands, some of which are groups down to a depth of three.
Chain randomChain(Random &random, Operands operand, int depth)
{
    Chain chain;
    for (int rest = 2 + below(random, 4); rest > 0; --rest) {
        Term term;
        term.isSubtracted = below(random, 3) == 0;
        if (depth > 0 && below(random, 4) == 0)
            term.group = randomChain(random, operand, depth - 1);
        else
            term.operand = operand(random);
        chain.push_back(term);
    }
    return chain;
}

/// Mostly operands with a unit. Somewhere in a chain the unit is missing.
template <QString (*operand)(Random &)>
QString withoutSomeUnits(Random &random)
{
    return below(random, 12) == 0 ? randomNumber(random) : operand(random);
}

/// Half of the chains have operands with units. In the others all or some of the units are missing.
template <QString (*operand)(Random &)>
Chain randomExpression(Random &random)
{
    static constexpr Operands kKinds[] = {operand, operand, randomNumber,
                                          withoutSomeUnits<operand>};
    return randomChain(random, kKinds[below(random, 4)], 3);
}

/// A word that may stand somewhere in an expression, or should not.
QString randomWord(Random &random)
{
    static const char *const kWords[] = {
        "1",      "2.5",   "1,5",
        "1e-3",   "9E+99", "1e",
        "INF",    "inf",   "NAN",
        "nan",    "dBm",   "dBW",
        "dB",     "mW",    "W",
        "µW",     "V",     "mV",
        "k",      "MG",    "(",
        "(",      "[",     "{",
        ")",      ")",     "]",
        "}",      "()",    "(-",
        "+",      "+",     "+",
        "-",      "-",     "-",
        "\u2212", "--",    "unit missing",
        "---",    "10dBm", "3dB",
        "(1mW)",  "5mV",   "2V",
        "\u03BC", " ",     "\u00A0",
        "\n",     "x",
    };
    if (below(random, 20) == 0)
        return QString(QChar(ushort(below(random, 0x10000))));
    return oneOf(random, kWords);
}

} // namespace

int below(Random &random, int limit)
{
    return int(random() % unsigned(limit));
}

Chain randomPowers(Random &random)
{
    return randomExpression<randomPower>(random);
}

Chain randomVoltages(Random &random)
{
    return randomExpression<randomVoltage>(random);
}

QString randomGarbage(Random &random)
{
    QString text;
    for (int rest = below(random, 30); rest > 0; --rest)
        text += randomWord(random);
    return text;
}
