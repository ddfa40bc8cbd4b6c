// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/forecast.h"

#include <algorithm>

namespace corva
{

namespace
{

constexpr int recentDays = 7;

/// Whole days from `first` to `last`, and what they carried. Sums are floating: a forecast is no account.
struct WholeDays {
    int days = 0;
    double bytes = 0;
    double mean() const { return days > 0 ? bytes / days : 0; }
};

WholeDays wholeDays(QDate first, QDate last, const std::function<quint64(QDate)> &bytesOn)
{
    WholeDays sum;
    for (QDate day = first; day <= last; day = day.addDays(1)) {
        ++sum.days;
        sum.bytes += double(bytesOn(day));
    }
    return sum;
}

quint64 rounded(double bytes)
{
    constexpr double most = 9.2e18;
    return quint64(std::clamp(bytes, 0.0, most));
}

/// The day on which the quota is reached when `carried` stands at the end of today.
QDate usedUpDay(const BillingPeriod &period, QDate today, double carried, double perDay, quint64 quota)
{
    if (quota == 0)
        return {};
    for (QDate day = today; day <= period.last; day = day.addDays(1), carried += perDay)
        if (carried >= double(quota))
            return day;
    return {};
}

} // namespace

std::optional<Forecast> forecastOf(const BillingPeriod &period, QDate today, QDate counted, quint64 quota,
                                   const std::function<quint64(QDate)> &bytesOn)
{
    if (!counted.isValid())
        return std::nullopt;
    const QDate yesterday = today.addDays(-1);
    const WholeDays recent = wholeDays(std::max(counted, today.addDays(-recentDays)), yesterday, bytesOn);
    if (recent.days < forecastDays)
        return std::nullopt;
    const WholeDays before = wholeDays(std::max(counted, period.first), yesterday, bytesOn);
    const double perDay = before.days < forecastDays ? recent.mean() : (before.mean() + recent.mean()) / 2;
    const double tonight = before.bytes + std::max(perDay, double(bytesOn(today)));
    return Forecast{rounded(tonight + perDay * double(today.daysTo(period.last))),
                    usedUpDay(period, today, tonight, perDay, quota)};
}

} // namespace corva
