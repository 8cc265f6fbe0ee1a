// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "table.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <ostream>
#include <sstream>

namespace {

/// Without any measurement there is no median.
double median(std::vector<double> values)
{
    if (values.empty())
        return std::nan("");
    std::sort(values.begin(), values.end());
    const size_t half = values.size() / 2;
    return values.size() % 2 == 1 ? values[half] : (values[half - 1] + values[half]) / 2;
}

struct Column
{
    const char *title;
    std::vector<double> (*values)(const Run &run);
    int decimals;
    bool hasRatio;
};

const Column kColumns[] = {
    {"painted ms", [](const Run &run) { return std::vector{run.painted}; }, 0, true},
    {"mapped ms", [](const Run &run) { return std::vector{run.mapped}; }, 0, false},
    {"settled ms", [](const Run &run) { return std::vector{run.settled}; }, 0, false},
    {"processor ms", [](const Run &run) { return std::vector{run.processorTime}; }, 0, true},
    {"private MiB", [](const Run &run) { return std::vector{run.privateMemory}; }, 1, true},
    {"key to last ms", [](const Run &run) { return run.keyLast; }, 2, true},
    {"key to first ms", [](const Run &run) { return run.keyFirst; }, 2, false},
    {"click to page ms", [](const Run &run) { return run.clickLast; }, 1, false},
};

double medianOf(const Column &column, const Row &row)
{
    std::vector<double> all;
    for (const Run &run : row.runs) {
        const std::vector<double> values = column.values(run);
        all.insert(all.end(), values.begin(), values.end());
    }
    return median(std::move(all));
}

std::string text(double value, int decimals)
{
    if (std::isnan(value))
        return "-";
    std::ostringstream stream;
    stream << std::fixed << std::setprecision(decimals) << value;
    return stream.str();
}

} // namespace

void writeTable(std::ostream &out, const std::vector<Row> &rows)
{
    out << "| program |";
    for (const Column &column : kColumns)
        out << ' ' << column.title << (column.hasRatio ? " | ratio |" : " |");
    out << "\n|---|";
    for (const Column &column : kColumns)
        out << (column.hasRatio ? "---:|---:|" : "---:|");
    out << '\n';
    for (const Row &row : rows) {
        out << "| " << row.name << " |";
        for (const Column &column : kColumns) {
            const double value = medianOf(column, row);
            out << ' ' << text(value, column.decimals) << " |";
            if (column.hasRatio)
                out << ' ' << text(value / medianOf(column, rows.front()), 2) << " |";
        }
        out << '\n';
    }
}
