// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/quota.h"

#include <algorithm>

namespace corva
{

int AllowanceUse::percent() const
{
    constexpr int most = 999;
    if (quota == 0)
        return 0;
    if (used / quota >= most / 100 + 1)
        return most;
    // Divided first where the product would not fit; a hundredth of such a quota is exact enough.
    const bool fits = used <= ~quint64(0) / 100;
    return int(std::min<quint64>(most, fits ? used * 100 / quota : used / (quota / 100)));
}

std::vector<AllowanceUse> allowanceUses(const TrafficVolumes &carried, const TrafficSettings &settings)
{
    if (settings.roamingQuota == 0)
        return {{Allowance::Main, carried.total(), settings.quota}};
    return {{Allowance::Main, carried.home.total(), settings.quota},
            {Allowance::Roaming, carried.roaming.total(), settings.roamingQuota}};
}

AllowanceUse allowanceInUse(const TrafficVolumes &carried, const TrafficSettings &settings, bool isRoaming)
{
    const auto uses = allowanceUses(carried, settings);
    return isRoaming ? uses.back() : uses.front();
}

std::optional<QuotaMark> dueWarning(const AllowanceUse &use, const TrafficSettings &settings, QDate period,
                                    const std::vector<QuotaMark> &given)
{
    const bool isWarned = settings.warningShare > 0 && use.percent() >= settings.warningShare;
    const int reached = use.isUsedUp() ? 100 : isWarned ? settings.warningShare : 0;
    if (use.quota == 0 || reached == 0)
        return std::nullopt;
    const QuotaMark due{period, use.allowance, use.quota, reached};
    const auto covers = [&](const QuotaMark &mark) {
        return mark.period == due.period && mark.allowance == due.allowance && mark.quota == due.quota &&
               mark.percent >= due.percent;
    };
    return std::any_of(given.begin(), given.end(), covers) ? std::nullopt : std::optional(due);
}

} // namespace corva
