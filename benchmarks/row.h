// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>
#include <chrono>
#include <vector>

using Clock = std::chrono::steady_clock;

constexpr double noBar = -1;

/// What the benchmark came to: one row of the table. `bar` is the most that is good enough.
void setRow(benchmark::State &state, double value, const char *unit, double bar = noBar);

/// Single measurements, in seconds.
class Samples
{
public:
    void add(Clock::duration time) { m_seconds.push_back(std::chrono::duration<double>(time).count()); }
    void add(double seconds) { m_seconds.push_back(seconds); }
    /// The middle one; 0 when there are none.
    double median() const;

private:
    std::vector<double> m_seconds;
};
