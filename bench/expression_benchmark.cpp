// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

/**
 * How long an expression calculator takes for a text of n characters. The fitted complexity in the
 * last rows is to be linear, and the longest text (about what a line edit holds) a matter of
 * milliseconds.
 */

#include "dbmcalculatorprofile.h"
#include "voltagecalculatorprofile.h"

#include <benchmark/benchmark.h>

#include <QString>

namespace {

constexpr int kPeakVoltages = 2;
constexpr int kNumericCalculation = 2;

/// As many whole copies of @p term after @p first as @p length has room for.
QString chain(const char *first, const char *term, int length)
{
    const QString repeated = QString::fromLatin1(term);
    const QString begin = QString::fromLatin1(first);
    return begin + repeated.repeated((length - begin.size()) / repeated.size());
}

QString shortOperands(int length)
{
    return chain("1", "+1", length);
}

QString powers(int length)
{
    return chain("10dBm", "+2.5mW", length);
}

QString voltages(int length)
{
    return chain("1V", "+2.5mV", length);
}

QString groupsInARow(int length)
{
    return chain("1mW", "+(1mW+1mW)", length);
}

/// Each group adds to the value of the one within: (1+(1+(1))).
QString nestedSums(int length)
{
    const int depth = length / 4;
    return QStringLiteral("(1+").repeated(depth) + QLatin1Char('1') +
           QStringLiteral(")").repeated(depth);
}

/// Nothing but brackets around a value of its own length.
QString nestedValue(int length)
{
    const int depth = length / 3;
    return QStringLiteral("(").repeated(depth) + QStringLiteral("1").repeated(depth) +
           QStringLiteral(")").repeated(depth);
}

/// Nested around a value that no number is, so that the evaluation starts again without brackets.
QString nestedError(int length)
{
    const int depth = length / 4;
    return QStringLiteral("(1+").repeated(depth) + QLatin1Char('x') +
           QStringLiteral(")").repeated(depth);
}

template <typename Calculator>
void calculate(benchmark::State &state, QString (*text)(int), int mode)
{
    Calculator calculator;
    calculator.setMode(mode);
    const QString input = text(int(state.range(0)));
    calculator.setInput(input);
    for (auto _ : state)
        calculator.calculate();
    state.SetComplexityN(input.size());
}

void fitLine(benchmark::internal::Benchmark *benchmark)
{
    for (const int length : {10, 100, 1000, 3750, 7500, 15000, 30000})
        benchmark->Arg(length);
    benchmark->Complexity(benchmark::oN)->Unit(benchmark::kMicrosecond);
}

void flatShortOperands(benchmark::State &state)
{
    calculate<DbmCalculatorProfile>(state, shortOperands, kNumericCalculation);
}
BENCHMARK(flatShortOperands)->Apply(fitLine);

void flatPowers(benchmark::State &state)
{
    calculate<DbmCalculatorProfile>(state, powers, kNumericCalculation);
}
BENCHMARK(flatPowers)->Apply(fitLine);

void flatVoltages(benchmark::State &state)
{
    calculate<VoltageCalculatorProfile>(state, voltages, kPeakVoltages);
}
BENCHMARK(flatVoltages)->Apply(fitLine);

void flatGroups(benchmark::State &state)
{
    calculate<DbmCalculatorProfile>(state, groupsInARow, kNumericCalculation);
}
BENCHMARK(flatGroups)->Apply(fitLine);

void nestedGroupsOfSums(benchmark::State &state)
{
    calculate<DbmCalculatorProfile>(state, nestedSums, kNumericCalculation);
}
BENCHMARK(nestedGroupsOfSums)->Apply(fitLine);

void nestedGroupsOfAValue(benchmark::State &state)
{
    calculate<DbmCalculatorProfile>(state, nestedValue, kNumericCalculation);
}
BENCHMARK(nestedGroupsOfAValue)->Apply(fitLine);

void nestedGroupsOfAnError(benchmark::State &state)
{
    calculate<DbmCalculatorProfile>(state, nestedError, kNumericCalculation);
}
BENCHMARK(nestedGroupsOfAnError)->Apply(fitLine);

} // namespace
