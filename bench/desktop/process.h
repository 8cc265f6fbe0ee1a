// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef BENCH_DESKTOP_PROCESS_H
#define BENCH_DESKTOP_PROCESS_H

#include "clock.h"

#include <sys/types.h>

#include <filesystem>

/**
 * A running program with a home of its own, which its HOME and XDG folders name. Of the environment
 * it inherits only the display. The destructor kills it, so that it writes nothing.
 */
class Process final
{
public:
    /// Throws std::runtime_error if the program cannot be started.
    Process(const std::filesystem::path &program, const std::filesystem::path &home);
    ~Process();
    Process(const Process &) = delete;
    Process &operator=(const Process &) = delete;

    Clock::time_point startTime() const { return m_startTime; }
    /// User and system time of all threads so far, in ms.
    double processorMilliseconds() const;
    /// Memory that it shares with no other process, in MiB.
    double privateMebibytes() const;

private:
    Clock::time_point m_startTime;
    pid_t m_id = 0;
};

/// Where a program with this home keeps its settings.
std::filesystem::path configFolder(const std::filesystem::path &home);

#endif
