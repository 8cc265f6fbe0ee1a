// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

/**
 * Measures the models without a window. See docs/performance.md; takes Google Benchmark's options.
 */

#include "benchmarks.h"

#include <benchmark/benchmark.h>

#include <cstdlib>

int main(int argc, char *argv[])
{
    registerExpressions();
    registerParser();
    registerKeyPress();
    registerConverters();
    registerFiles();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return EXIT_FAILURE;
    benchmark::RunSpecifiedBenchmarks();
}
