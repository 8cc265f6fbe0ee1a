// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

/**
 * What the model does for one key press on an expression of 100 characters. Two parts of it are
 * also measured alone: reading operands, and writing the numbers between two steps.
 */

#include "benchmarks.h"
#include "dbmcalculatorprofile.h"
#include "expressions.h"
#include "expressiontext.h"
#include "operand.h"
#include "valuetext.h"

#include <benchmark/benchmark.h>

using namespace Dezimo;

namespace {

constexpr int kLength = 100;
constexpr int kStepDigits = 12;

/// Each press changes the last digit before the unit of the first operand.
void keyPress(benchmark::State &state)
{
    DbmCalculatorProfile calculator;
    const QString rest = Expressions::powers(kLength).mid(2);
    const QString inputs[] = {QStringLiteral("10") + rest, QStringLiteral("11") + rest};
    int press = 0;
    while (state.KeepRunning()) {
        calculator.setInput(inputs[++press % 2]);
        calculator.calculate();
    }
}

void keyPressReading(benchmark::State &state)
{
    const ExpressionUnits units{{0, &Units::kDbm},       {1, &Units::kDbw},  {2, &Units::kDb},
                                {3, &Units::kMilliwatt}, {4, &Units::kWatt}, {5, &Units::kNone}};
    const QString input = Expressions::powers(kLength);
    while (state.KeepRunning()) {
        const QString text = ExpressionText::cleaned(input);
        int begin = 0;
        for (const int end : ExpressionText::operatorPositions(text)) {
            benchmark::DoNotOptimize(parseOperand(text.mid(begin, end - begin), units));
            begin = end + 1;
        }
        benchmark::DoNotOptimize(parseOperand(text.mid(begin), units));
    }
}

void keyPressWriting(benchmark::State &state)
{
    const auto steps = ExpressionText::operatorPositions(Expressions::powers(kLength)).size();
    while (state.KeepRunning()) {
        for (size_t step = 0; step < steps; ++step)
            benchmark::DoNotOptimize(
                generalText(10.0 + 2.5 * double(step) / 3, kStepDigits).toDouble());
    }
}

} // namespace

void registerKeyPress()
{
    benchmark::RegisterBenchmark("keyPress", keyPress);
    benchmark::RegisterBenchmark("keyPressReading", keyPressReading);
    benchmark::RegisterBenchmark("keyPressWriting", keyPressWriting);
}
