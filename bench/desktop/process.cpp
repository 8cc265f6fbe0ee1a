// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

std::string inherited(const char *name)
{
    const char *value = std::getenv(name);
    return std::string(name) + '=' + (value ? value : "");
}

/// NO_AT_BRIDGE keeps GTK from starting the accessibility bus, which Qt does not start either.
std::vector<std::string> environment(const fs::path &home)
{
    const fs::path runtime = home / "runtime";
    fs::create_directories(runtime);
    fs::permissions(runtime, fs::perms::owner_all);
    return {inherited("PATH"),
            inherited("DISPLAY"),
            inherited("XAUTHORITY"),
            "LANG=C.UTF-8",
            "NO_AT_BRIDGE=1",
            "HOME=" + home.string(),
            "XDG_CONFIG_HOME=" + configFolder(home).string(),
            "XDG_CACHE_HOME=" + (home / "cache").string(),
            "XDG_DATA_HOME=" + (home / "data").string(),
            "XDG_STATE_HOME=" + (home / "state").string(),
            "XDG_RUNTIME_DIR=" + runtime.string()};
}

std::vector<char *> pointers(std::vector<std::string> &texts)
{
    std::vector<char *> result;
    result.reserve(texts.size() + 1);
    for (std::string &text : texts)
        result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

} // namespace

fs::path configFolder(const fs::path &home)
{
    return home / "config";
}

Process::Process(const fs::path &program, const fs::path &home)
{
    std::vector<std::string> arguments{program.string()};
    std::vector<std::string> variables = environment(home);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_adddup2(&files, STDOUT_FILENO, STDERR_FILENO);
    m_startTime = Clock::now();
    const int error = posix_spawn(&m_id, program.c_str(), &files, nullptr,
                                  pointers(arguments).data(), pointers(variables).data());
    posix_spawn_file_actions_destroy(&files);
    if (error != 0)
        throw std::runtime_error("cannot start " + program.string());
}

Process::~Process()
{
    kill(m_id, SIGKILL);
    waitpid(m_id, nullptr, 0);
}

double Process::processorMilliseconds() const
{
    clockid_t clock{};
    timespec time{};
    if (clock_getcpuclockid(m_id, &clock) != 0 || clock_gettime(clock, &time) != 0)
        throw std::runtime_error("the program has ended by itself");
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

double Process::privateMebibytes() const
{
    std::ifstream rollup("/proc/" + std::to_string(m_id) + "/smaps_rollup");
    double kibibytes = 0;
    for (std::string line; std::getline(rollup, line);) {
        if (line.rfind("Private_", 0) == 0 && line.rfind("Private_Hugetlb", 0) != 0)
            kibibytes += std::stod(line.substr(line.find(':') + 1));
    }
    return kibibytes / 1024;
}
