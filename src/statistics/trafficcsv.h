// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/historyrecord.h"
#include "statistics/traffictotals.h"

#include <vector>

namespace corva
{

/// The history as CSV: times in ISO 8601 with their offset, durations in seconds, volumes in bytes, those
/// in foreign networks once more by themselves, the end as a word of `historyend`. The columns are named the
/// same in every language, for other programs.
QByteArray historyCsv(const std::vector<HistoryRecord> &records);

/// The days with traffic, and the months of which the days are no longer kept: "2024-05-03" or "2021-05".
QByteArray totalsCsv(const TrafficTotals &totals);

} // namespace corva
