// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

/**
 * Starts Dezimo, a floor program and installed peers in turn and measures them from outside, as a
 * client of the same X server. See docs/performance.md.
 *
 * usage: desktop_benchmark [--runs NUMBER] [--busy NUMBER] [WORD...]
 *        desktop_benchmark [--runs NUMBER] [--busy NUMBER] --compare BASE NEW
 *
 * With words, only the programs whose names contain one of them are measured. The second form
 * compares two builds of Dezimo. With --busy, that many loops keep the processor busy meanwhile.
 */

#include "busyloops.h"
#include "display.h"
#include "program.h"
#include "table.h"

#include <stdlib.h>

#include <algorithm>
#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

/// A folder that is removed with the object.
class TemporaryFolder final
{
public:
    TemporaryFolder() : m_path(fs::temp_directory_path() / "dezimo-benchmark-XXXXXX")
    {
        std::string pattern = m_path.string();
        if (!mkdtemp(pattern.data()))
            throw std::runtime_error("no temporary folder");
        m_path = pattern;
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    const fs::path &path() const { return m_path; }

private:
    fs::path m_path;
};

struct Request
{
    int runs = 9;
    int busyLoops = 0;
    std::vector<std::string> words;
    std::vector<Program> builds;
};

Request request(const std::vector<std::string> &arguments)
{
    Request request;
    for (size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == "--runs" && i + 1 < arguments.size())
            request.runs = std::stoi(arguments[++i]);
        else if (arguments[i] == "--busy" && i + 1 < arguments.size())
            request.busyLoops = std::stoi(arguments[++i]);
        else if (arguments[i] == "--compare" && i + 2 < arguments.size())
            for (const char *name : {"base", "new"})
                request.builds.push_back({name, arguments[++i], 0});
        else if (arguments[i].rfind("--", 0) == 0)
            throw std::invalid_argument("what is " + arguments[i] + "?");
        else
            request.words.push_back(arguments[i]);
    }
    return request;
}

void keepWanted(std::vector<Program> &programs, const std::vector<std::string> &words)
{
    const auto isUnwanted = [&words](const Program &program) {
        return !words.empty() && std::none_of(words.begin(), words.end(), [&](const auto &word) {
            return program.name.find(word) != std::string::npos;
        });
    };
    programs.erase(std::remove_if(programs.begin(), programs.end(), isUnwanted), programs.end());
}

/// The programs take turns, so that whatever else the machine does slows down all of them alike.
/// Each has its own home. A first start that is not counted leaves there what the program caches.
std::vector<Row> measured(const std::vector<Program> &programs, int runs)
{
    const TemporaryFolder homes;
    Display display;
    std::vector<Row> rows;
    rows.reserve(programs.size());
    for (const Program &program : programs)
        rows.push_back({program.name, {}});
    for (int round = 0; round <= runs; ++round) {
        for (size_t i = 0; i < programs.size(); ++i) {
            const Run run = measuredRun(display, programs[i], homes.path() / std::to_string(i));
            if (round > 0)
                rows[i].runs.push_back(run);
        }
        std::cerr << "round " << round << " of " << runs << '\n';
    }
    return rows;
}

} // namespace

int main(int argc, char *argv[])
{
    try {
        const Request wanted = request({argv + 1, argv + argc});
        std::vector<Program> programs = wanted.builds;
        if (programs.empty()) {
            programs = programsToCompare(fs::path(argv[0]).parent_path());
            keepWanted(programs, wanted.words);
        }
        if (programs.empty())
            throw std::invalid_argument("no program has such a name");
        const BusyLoops load(wanted.busyLoops);
        writeTable(std::cout, measured(programs, wanted.runs));
    } catch (const std::exception &error) {
        std::cerr << "desktop_benchmark: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
