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
    std::optional<int> module; ///< for Dezimo, the module that its settings name as the current one
};

/// Dezimo with each of its modules, the floor, and those of the peers that are installed. The names
/// of the other peers are printed to standard error. @p folder is where Dezimo and the floor are.
std::vector<Program> programsToCompare(const std::filesystem::path &folder);

/// Writes the settings that the program finds at its start.
void prepareSettings(const Program &program, const std::filesystem::path &home);

#endif
