// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "program.h"

#include "process.h"

#include <unistd.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>

namespace fs = std::filesystem;

namespace {

constexpr std::array<const char *, 5> kModules = {
    "dBm calculator", "voltage calculator", "unit converter", "dB converter", "VSWR converter",
};

constexpr std::array<const char *, 4> kPeers = {"speedcrunch", "kcalc", "galculator",
                                                "qalculate-gtk"};

std::optional<fs::path> installed(const std::string &name)
{
    const char *path = std::getenv("PATH");
    std::istringstream folders(path ? path : "");
    for (std::string folder; std::getline(folders, folder, ':');) {
        const fs::path file = fs::path(folder) / name;
        if (access(file.c_str(), X_OK) == 0)
            return file;
    }
    return std::nullopt;
}

} // namespace

std::vector<Program> programsToCompare(const fs::path &folder)
{
    std::vector<Program> programs{{"floor", folder / "desktop_floor", std::nullopt}};
    for (size_t module = 0; module < kModules.size(); ++module)
        programs.push_back(
            {std::string("Dezimo, ") + kModules[module], folder / "dezimo", int(module)});
    for (const char *peer : kPeers) {
        if (const auto path = installed(peer))
            programs.push_back({peer, *path, std::nullopt});
        else
            std::cerr << "Not installed and so left out: " << peer << '\n';
    }
    return programs;
}

/// The settings hold calculations in which every digit that is typed changes the result.
void prepareSettings(const Program &program, const fs::path &home)
{
    if (!program.module)
        return;
    const fs::path folder = configFolder(home) / "Vantrel";
    fs::create_directories(folder);
    std::ofstream(folder / "Dezimo.conf") << "[MainProfile]\ncurrentModule=" << *program.module
                                          << "\ndecimalPlaces=10\n"
                                             "[DbmCalculatorProfile]\nmode=2\n"
                                             "[VoltageCalculatorProfile]\nmode=2\ninput=V\n";
}
