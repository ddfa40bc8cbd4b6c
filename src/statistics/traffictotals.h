// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/trafficvolume.h"

#include <QDate>
#include <map>
#include <vector>

namespace corva
{

struct MonthTotal {
    QDate month; ///< its first day
    TrafficVolumes volumes;
    bool operator==(const MonthTotal &) const = default;
};

struct DayTotal {
    QDate day;
    TrafficVolumes volumes;
    bool operator==(const DayTotal &) const = default;
};

/// What was carried on each local day, and in each month of which the days are no longer kept.
class TrafficTotals
{
public:
    using Map = std::map<QDate, TrafficVolumes>;

    void add(QDate day, const TrafficVolume &volume, bool isRoaming) { m_days[day].of(isRoaming) += volume; }
    void add(const TrafficTotals &other);
    void addDay(QDate day, const TrafficVolumes &volumes) { m_days[day] += volumes; }
    void addMonth(QDate month, const TrafficVolumes &volumes);
    /// Days before `day` are kept as part of their month only.
    void foldDaysBefore(QDate day);

    /// Both days included.
    TrafficVolumes between(QDate first, QDate last) const;
    TrafficVolumes total() const;
    /// One row for each day from `first` to `last`, also for those without traffic.
    std::vector<DayTotal> everyDay(QDate first, QDate last) const;
    /// The months with traffic, oldest first: folded days and kept ones together.
    std::vector<MonthTotal> everyMonth() const;
    /// The first day that is known by itself; invalid when there is none.
    QDate firstDay() const { return m_days.empty() ? QDate() : m_days.begin()->first; }
    QDate lastDay() const { return m_days.empty() ? QDate() : m_days.rbegin()->first; }

    const Map &days() const { return m_days; }
    const Map &foldedMonths() const { return m_months; } ///< by the first day of the month
    bool isEmpty() const { return m_days.empty() && m_months.empty(); }
    bool operator==(const TrafficTotals &) const = default;

private:
    Map m_days;
    Map m_months;
};

} // namespace corva
