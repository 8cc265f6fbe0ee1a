// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "memorytrend.h"

#include <QByteArray>
#include <QFile>

#include <cstdio>
#include <malloc.h>
#include <numeric>
#include <unistd.h>

namespace {

constexpr double kKibibyte = 1024.0;
constexpr size_t kMostSamples = 10000;

/// What the C++ and C allocators have given out, small blocks and those with pages of their own.
double allocated()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks + info.hblkhd) / kKibibyte;
}

double resident()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0.0;
    // pages in all, pages in memory, ...
    const double pages = file.readAll().split(' ').value(1).toDouble();
    return pages * double(sysconf(_SC_PAGESIZE)) / kKibibyte;
}

double quarter(const std::vector<double> &samples, int number)
{
    const auto length = std::ptrdiff_t(samples.size() / 4);
    const auto first = samples.cbegin() + number * length;
    return length == 0 ? 0.0 : std::accumulate(first, first + length, 0.0) / double(length);
}

void printQuarters(const char *what, const std::vector<double> &samples)
{
    std::printf("%s, KiB by quarters:", what);
    for (int number = 0; number < 4; ++number)
        std::printf(" %.0f", quarter(samples, number));
    std::printf(" (%zu samples)\n", samples.size());
}

} // namespace

MemoryTrend::MemoryTrend()
{
    m_allocated.reserve(kMostSamples);
    m_resident.reserve(kMostSamples);
}

void MemoryTrend::sample()
{
    m_allocated.push_back(allocated());
    m_resident.push_back(resident());
}

void MemoryTrend::print() const
{
    printQuarters("allocated", m_allocated);
    printQuarters("resident", m_resident);
}

bool MemoryTrend::isUpward() const
{
    return quarter(m_allocated, 3) > quarter(m_allocated, 1) * 1.02;
}
