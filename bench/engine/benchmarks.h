// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef BENCH_ENGINE_BENCHMARKS_H
#define BENCH_ENGINE_BENCHMARKS_H

/// Each of these functions adds its rows to those that the program measures.
void registerConverters();
void registerExpressions();
void registerFiles();
void registerKeyPress();
void registerParser();

#endif
