// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/billingperiod.h"

#include <QDate>
#include <functional>
#include <optional>

namespace corva
{

/// What a billing period will come to.
struct Forecast {
    quint64 atEnd = 0; ///< bytes when the period ends
    QDate usedUpOn;    ///< the day on which the quota will be reached; invalid: not in this period
    bool operator==(const Forecast &) const = default;
};

/// The whole days that a forecast needs at least.
constexpr int forecastDays = 3;

/// Expects for each day to come the middle between the mean of the period's whole days and the mean of the
/// last seven whole days; early in a period the latter alone. `bytesOn` says what a day carried, `counted` is
/// the first day that was counted at all. Nothing when fewer than `forecastDays` whole days are known.
/// `quota` 0: none.
std::optional<Forecast> forecastOf(const BillingPeriod &period, QDate today, QDate counted, quint64 quota,
                                   const std::function<quint64(QDate)> &bytesOn);

} // namespace corva
