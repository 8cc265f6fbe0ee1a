// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TOOLS_ENDURANCE_MEMORYTREND_H
#define TOOLS_ENDURANCE_MEMORYTREND_H

#include <vector>

/**
 * The memory of this process over a run, in KiB: what is allocated, and what the system has lent
 * for it, which is more, as freed pieces lie between those in use. A run that leaks has more
 * allocated in its last quarter than in its second; the first quarter fills caches.
 */
class MemoryTrend
{
public:
    /// Takes room for all samples at once, so that they are no trend themselves.
    MemoryTrend();

    /// Notes what the process holds now.
    void sample();
    /// Prints the mean of each quarter.
    void print() const;
    /// Whether the last quarter's mean of what is allocated is above the second's by more than a
    /// fiftieth.
    bool isUpward() const;

private:
    std::vector<double> m_allocated;
    std::vector<double> m_resident;
};

#endif
