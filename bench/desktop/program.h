// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef BENCH_DESKTOP_PROGRAM_H
#define BENCH_DESKTOP_PROGRAM_H

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// One row of the comparison.
struct Program
{
    std::string name;
    std::filesystem::path path;
    std::optional<int> module; ///< of Dezimo: the module that its settings name as the current one
};

/// Dezimo with each of its modules, the floor, and those of the peers that are installed; the
/// others are named on the standard error output. @p folder is where the first two lie.
std::vector<Program> programsToCompare(const std::filesystem::path &folder);

/// Writes the settings that the program is to find at its start.
void prepareSettings(const Program &program, const std::filesystem::path &home);

#endif
