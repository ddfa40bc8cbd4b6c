// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/trafficsettings.h"
#include "statistics/trafficvolume.h"

#include <QDate>
#include <optional>
#include <vector>

namespace corva
{

/// A volume that the person pays for. With a roaming quota, foreign networks use that one; without, there is
/// only the main one.
enum class Allowance { Main, Roaming };

/// How much of an allowance a billing period has used.
struct AllowanceUse {
    Allowance allowance = Allowance::Main;
    quint64 used = 0;
    quint64 quota = 0; ///< bytes; 0: none was set

    /// Whole percent, rounded down, 999 at most; 0 without a quota.
    int percent() const;
    bool isUsedUp() const { return quota > 0 && used >= quota; }
    bool operator==(const AllowanceUse &) const = default;
};

/// The main allowance first, then the roaming one where it has a quota of its own.
std::vector<AllowanceUse> allowanceUses(const TrafficVolumes &carried, const TrafficSettings &settings);
/// The one that a link uses now.
AllowanceUse allowanceInUse(const TrafficVolumes &carried, const TrafficSettings &settings, bool isRoaming);

/// A warning that was given: it is not given again for the same share of the same quota in the same period.
struct QuotaMark {
    QDate period; ///< its first day
    Allowance allowance = Allowance::Main;
    quint64 quota = 0;
    int percent = 0;
    bool operator==(const QuotaMark &) const = default;
};

/// The warning that is to be given now: at the chosen share, and at 100 %; the higher one when both are due.
std::optional<QuotaMark> dueWarning(const AllowanceUse &use, const TrafficSettings &settings, QDate period,
                                    const std::vector<QuotaMark> &given);

} // namespace corva
