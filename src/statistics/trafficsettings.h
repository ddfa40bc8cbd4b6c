// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace corva
{

/// What the person set for counting: sections "statistics" and "statistics_widget" of the configuration.
struct TrafficSettings {
    bool countsUsage = true;     ///< days, months and quotas at all
    quint64 quota = 0;           ///< bytes in a billing period, 0 none
    quint64 roamingQuota = 0;    ///< bytes; 0: what is carried in foreign networks counts with the rest
    int billingDay = 1;          ///< 1 to 31
    int warningShare = 80;       ///< percent of the quota, 0 no warning
    bool endsConnection = false; ///< at 100 %
    int daysKept = 1100;         ///< so long single days are known, then their month
    int recordsKept = 5000;      ///< of the history
    bool operator==(const TrafficSettings &) const = default;
};

constexpr quint64 bytesPerMegabyte = 1'000'000; ///< as operators bill

/// Read from `cmcfg`; values that make no sense are brought into their range.
TrafficSettings readTrafficSettings();

} // namespace corva
