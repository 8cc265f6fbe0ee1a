// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef BENCH_DESKTOP_TABLE_H
#define BENCH_DESKTOP_TABLE_H

#include "run.h"

#include <iosfwd>
#include <string>
#include <vector>

/// All runs of one program.
struct Row
{
    std::string name;
    std::vector<Run> runs;
};

/// Writes the medians as a table in Markdown, with the ratios to the first row.
void writeTable(std::ostream &out, const std::vector<Row> &rows);

#endif
