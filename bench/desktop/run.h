// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef BENCH_DESKTOP_RUN_H
#define BENCH_DESKTOP_RUN_H

#include <filesystem>
#include <vector>

class Display;
struct Program;

/**
 * What was measured in one run of a program. Times are in ms, from the start of the process or from
 * the press of the key or the button. A key or a click that changed nothing on the screen is left
 * out.
 */
struct Run
{
    double mapped = 0;
    double painted = 0; ///< the first content
    double settled = 0; ///< the last change before a pause
    double processorTime = 0;
    double privateMemory = 0; ///< MiB
    std::vector<double> keyFirst;
    std::vector<double> keyLast;
    std::vector<double> clickLast; ///< on the rows of Dezimo's module list
};

/// Throws std::runtime_error if the program shows no window.
Run measuredRun(Display &display, const Program &program, const std::filesystem::path &home);

#endif
