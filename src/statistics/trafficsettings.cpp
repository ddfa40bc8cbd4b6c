// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/trafficsettings.h"

#include "shell/commoncfg.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr int fewestDays = 62; ///< the billing period and the seven days before it are read by the day
constexpr int mostDays = 36500;
constexpr int mostRecords = 100'000;

/// A number that is not set, or is no number, gives `otherwise`.
int numberOr(int number, int otherwise)
{
    return number == 0 ? otherwise : number;
}

quint64 megabytes(int number)
{
    return quint64(std::max(number, 0)) * bytesPerMegabyte;
}

} // namespace

TrafficSettings readTrafficSettings()
{
    const TrafficSettings shipped;
    TrafficSettings settings;
    settings.countsUsage = cmcfg.getNumber(u"statistics_widget"_s, u"usage_statistic_enabled"_s) == 1;
    settings.quota = megabytes(cmcfg.getNumber(u"statistics"_s, u"quota_mb"_s));
    settings.roamingQuota = megabytes(cmcfg.getNumber(u"statistics"_s, u"roaming_quota_mb"_s));
    settings.billingDay = std::clamp(cmcfg.getNumber(u"statistics"_s, u"billing_day"_s), 1, 31);
    settings.warningShare = std::clamp(cmcfg.getNumber(u"statistics"_s, u"warning_share"_s), 0, 100);
    settings.endsConnection = cmcfg.getNumber(u"statistics"_s, u"end_at_quota"_s) == 1;
    settings.daysKept = std::clamp(
        numberOr(cmcfg.getNumber(u"statistics"_s, u"days_kept"_s), shipped.daysKept), fewestDays, mostDays);
    settings.recordsKept =
        std::clamp(numberOr(cmcfg.getNumber(u"statistics"_s, u"history_records"_s), shipped.recordsKept), 1,
                   mostRecords);
    return settings;
}

} // namespace corva
