// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

/**
 * How long an expression calculator takes for a text of n characters. The fitted complexity in the
 * last rows should be linear. The longest text, about what a line edit holds, should take only
 * milliseconds.
 */

#include "benchmarks.h"
#include "dbmcalculatorprofile.h"
#include "expressions.h"
#include "voltagecalculatorprofile.h"

#include <benchmark/benchmark.h>

using namespace Dezimo;

namespace {

using namespace Expressions;

constexpr int kPeakVoltages = 2;
constexpr int kNumericCalculation = 2;

template <typename Calculator>
void calculate(benchmark::State &state, QString (*text)(int), int mode)
{
    Calculator calculator;
    calculator.setMode(mode);
    const QString input = text(int(state.range(0)));
    calculator.setInput(input);
    while (state.KeepRunning())
        calculator.calculate();
    state.SetComplexityN(input.size());
}

template <typename Calculator>
void registerLengths(const char *name, QString (*text)(int), int mode)
{
    auto *benchmark = benchmark::RegisterBenchmark(name, calculate<Calculator>, text, mode);
    for (const int length : {10, 100, 1000, 10000, 30000})
        benchmark->Arg(length);
    benchmark->Complexity(benchmark::oN)->Unit(benchmark::kMicrosecond);
}

} // namespace

void registerExpressions()
{
    using Power = DbmCalculatorProfile;
    using Voltage = VoltageCalculatorProfile;
    registerLengths<Power>("flatShortOperands", shortOperands, kNumericCalculation);
    registerLengths<Power>("flatPowers", powers, kNumericCalculation);
    registerLengths<Voltage>("flatVoltages", voltages, kPeakVoltages);
    registerLengths<Power>("flatGroups", groupsInARow, kNumericCalculation);
    registerLengths<Power>("nestedGroupsOfSums", nestedSums, kNumericCalculation);
    registerLengths<Power>("nestedGroupsOfAValue", nestedValue, kNumericCalculation);
    registerLengths<Power>("nestedGroupsOfAnError", nestedError, kNumericCalculation);
}
