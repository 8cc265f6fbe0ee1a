// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef BENCH_DESKTOP_CLOCK_H
#define BENCH_DESKTOP_CLOCK_H

#include <chrono>

using Clock = std::chrono::steady_clock;

inline double milliseconds(Clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

#endif
