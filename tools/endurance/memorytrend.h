// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TOOLS_ENDURANCE_MEMORYTREND_H
#define TOOLS_ENDURANCE_MEMORYTREND_H

#include <vector>

/**
 * The memory of this process over a run, in KiB: what is allocated, and what is resident. The
 * latter is more, because freed pieces lie between those in use. A run that leaks has more
 * allocated in its last quarter than in its second. The first quarter fills caches, so it is not
 * compared.
 */
class MemoryTrend
{
public:
    /// Reserves the room for all samples, so that they do not look like a trend themselves.
    MemoryTrend();

    /// Records how much memory the process has now.
    void sample();
    /// Prints the mean of each quarter.
    void print() const;
    /// Whether the mean of what is allocated is more than 2 % higher in the last quarter than in
    /// the second.
    bool isUpward() const;

private:
    std::vector<double> m_allocated;
    std::vector<double> m_resident;
};

#endif
