// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef BENCH_DESKTOP_BUSYLOOPS_H
#define BENCH_DESKTOP_BUSYLOOPS_H

#include <atomic>
#include <thread>
#include <vector>

/**
 * While it lives, that many loops keep the processor busy, for measuring on a loaded machine. They
 * are threads, so they end with the program at the latest.
 */
class BusyLoops final
{
public:
    explicit BusyLoops(int count)
    {
        for (int i = 0; i < count; ++i)
            m_loops.emplace_back([this] {
                while (!m_isOver)
                    continue;
            });
    }
    ~BusyLoops()
    {
        m_isOver = true;
        for (std::thread &loop : m_loops)
            loop.join();
    }
    BusyLoops(const BusyLoops &) = delete;
    BusyLoops &operator=(const BusyLoops &) = delete;

private:
    std::atomic<bool> m_isOver{false};
    std::vector<std::thread> m_loops;
};

#endif
