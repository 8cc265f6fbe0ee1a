// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

/**
 * The numeric calculation compared with a plain expression library that evaluates the same sums.
 * The two take turns within one measurement; the counter is the ratio of their times.
 */

#include "benchmarks.h"
#include "dbmcalculatorprofile.h"
#include "expressions.h"

#include <benchmark/benchmark.h>
#include <muParser.h>

#include <chrono>
#include <string>

using namespace Dezimo;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kNumericCalculation = 2;

void besideParser(benchmark::State &state, QString (*text)(int))
{
    const QString input = text(int(state.range(0)));
    const std::string sum = input.toStdString();
    DbmCalculatorProfile calculator;
    calculator.setMode(kNumericCalculation);
    calculator.setInput(input);
    mu::Parser parser;
    Clock::duration ours{};
    Clock::duration theirs{};
    while (state.KeepRunning()) {
        const Clock::time_point start = Clock::now();
        calculator.calculate();
        const Clock::time_point between = Clock::now();
        parser.SetExpr(sum);
        benchmark::DoNotOptimize(parser.Eval());
        theirs += Clock::now() - between;
        ours += between - start;
    }
    state.counters["ratio"] = double(ours.count()) / double(theirs.count());
}

void registerLengths(const char *name, QString (*text)(int))
{
    auto *benchmark = benchmark::RegisterBenchmark(name, besideParser, text);
    for (const int length : {10, 100, 1000, 10000})
        benchmark->Arg(length);
}

} // namespace

void registerParser()
{
    registerLengths("flatSumBesideParser", Expressions::shortOperands);
    registerLengths("nestedSumBesideParser", Expressions::nestedSums);
}
