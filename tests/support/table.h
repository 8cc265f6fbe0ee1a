// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SUPPORT_TABLE_H
#define TESTS_SUPPORT_TABLE_H

#include <QTest>

#include <array>
#include <cstddef>

/// Begins the table of a test function: columns<QString, int>({"input", "digits"}).
template <typename... Types>
void columns(const std::array<const char *, sizeof...(Types)> &names)
{
    std::size_t next = 0;
    (QTest::addColumn<Types>(names.at(next++)), ...);
}

/// Adds a row to the table, in one line: row("a sentence", "10dBm", 3). Literals become QStrings.
template <typename... Cells>
void row(const char *tag, const Cells &...cells)
{
    (QTest::newRow(tag) << ... << cells);
}

#endif
