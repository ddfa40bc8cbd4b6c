// SPDX-License-Identifier: GPL-3.0-or-later
#include "row.h"

#include <algorithm>

void setRow(benchmark::State &state, double value, const char *unit, double bar)
{
    state.counters["value"] = value;
    state.counters["bar"] = bar;
    state.SetLabel(unit);
}

double Samples::median() const
{
    if (m_seconds.empty())
        return 0;
    std::vector<double> sorted = m_seconds;
    std::ranges::nth_element(sorted, sorted.begin() + sorted.size() / 2);
    return sorted[sorted.size() / 2];
}
