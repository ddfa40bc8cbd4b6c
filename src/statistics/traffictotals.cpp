// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/traffictotals.h"

namespace corva
{

namespace
{

QDate monthOf(QDate day)
{
    return QDate(day.year(), day.month(), 1);
}

} // namespace

void TrafficTotals::add(const TrafficTotals &other)
{
    for (const auto &[day, volumes] : other.m_days)
        addDay(day, volumes);
    for (const auto &[month, volumes] : other.m_months)
        addMonth(month, volumes);
}

void TrafficTotals::addMonth(QDate month, const TrafficVolumes &volumes)
{
    m_months[monthOf(month)] += volumes;
}

void TrafficTotals::foldDaysBefore(QDate day)
{
    const auto end = m_days.lower_bound(day);
    for (auto row = m_days.begin(); row != end; row = m_days.erase(row))
        addMonth(row->first, row->second);
}

TrafficVolumes TrafficTotals::between(QDate first, QDate last) const
{
    TrafficVolumes sum;
    for (auto row = m_days.lower_bound(first); row != m_days.end() && row->first <= last; ++row)
        sum += row->second;
    return sum;
}

TrafficVolumes TrafficTotals::total() const
{
    TrafficVolumes sum;
    for (const Map &map : {std::cref(m_days), std::cref(m_months)})
        for (const auto &row : map)
            sum += row.second;
    return sum;
}

std::vector<DayTotal> TrafficTotals::everyDay(QDate first, QDate last) const
{
    std::vector<DayTotal> rows;
    for (QDate day = first; day <= last; day = day.addDays(1)) {
        const auto known = m_days.find(day);
        rows.push_back({day, known == m_days.end() ? TrafficVolumes() : known->second});
    }
    return rows;
}

std::vector<MonthTotal> TrafficTotals::everyMonth() const
{
    Map months = m_months;
    for (const auto &[day, volumes] : m_days)
        months[monthOf(day)] += volumes;
    std::vector<MonthTotal> rows;
    for (const auto &[month, volumes] : months)
        rows.push_back({month, volumes});
    return rows;
}

} // namespace corva
