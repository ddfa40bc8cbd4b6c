// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTest>
#include <tuple>
#include <vector>

/// A table of cases: the name of each, and its values.
template <typename... Values> using Rows = std::vector<std::tuple<const char *, Values...>>;

/// For a data function: one test row for each row of the table.
template <typename... Values> void addRows(const Rows<Values...> &table)
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < int(table.size()); ++i)
        QTest::addRow("%s", std::get<0>(table[i])) << i;
}

/// For a test function: the row of the table that it runs on.
template <typename... Values>
const std::tuple<const char *, Values...> &currentRow(const Rows<Values...> &table)
{
    QFETCH(const int, row);
    return table[row];
}
