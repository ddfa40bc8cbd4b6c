// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/trafficledger.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace corva
{

namespace
{

bool endsEarlier(const HistoryRecord &a, const HistoryRecord &b)
{
    return a.end < b.end;
}

} // namespace

TrafficLedger::TrafficLedger(StoredTotals stored, std::vector<HistoryRecord> history, bool isBroken)
    : m_stored(std::move(stored)), m_history(std::move(history)), m_areTotalsDirty(isBroken),
      m_isHistoryDirty(isBroken)
{
}

void TrafficLedger::add(const RunningSession &over, bool countsUsage)
{
    if (m_stored.counted != over.id) {
        if (countsUsage)
            m_stored.totals.add(over.carried);
        m_stored.counted = over.id;
        m_areTotalsDirty = true;
    }
    const HistoryRecord record = recordOf(over);
    if (std::ranges::find(m_history, record.id, &HistoryRecord::id) == m_history.end()) {
        m_history.insert(std::upper_bound(m_history.begin(), m_history.end(), record, endsEarlier), record);
        m_isHistoryDirty = true;
    }
    m_closed = over;
}

void TrafficLedger::note(const QuotaMark &mark)
{
    std::erase_if(m_stored.given, [&](const QuotaMark &old) { return old.period != mark.period; });
    m_stored.given.push_back(mark);
    m_areTotalsDirty = true;
}

void TrafficLedger::bound(QDate today, const TrafficSettings &settings)
{
    // By the last day but one with traffic where that is earlier: a clock that is years ahead for once must
    // not fold everything.
    const auto &days = m_stored.totals.days();
    const QDate lastButOne = days.size() < 2 ? QDate() : std::prev(days.end(), 2)->first;
    const QDate oldest = std::min(today, lastButOne).addDays(-settings.daysKept);
    if (oldest.isValid() && days.begin()->first < oldest) {
        m_stored.totals.foldDaysBefore(oldest);
        m_areTotalsDirty = true;
    }
    const auto tooMany = std::ptrdiff_t(m_history.size()) - settings.recordsKept;
    if (tooMany > 0) {
        m_history.erase(m_history.begin(), m_history.begin() + tooMany);
        m_isHistoryDirty = true;
    }
}

std::vector<HistoryRecord> TrafficLedger::remove(const QSet<QString> &ids)
{
    const auto gone = std::stable_partition(m_history.begin(), m_history.end(),
                                            [&](const auto &record) { return !ids.contains(record.id); });
    std::vector<HistoryRecord> removed(gone, m_history.end());
    m_history.erase(gone, m_history.end());
    m_isHistoryDirty = m_isHistoryDirty || !removed.empty();
    return removed;
}

void TrafficLedger::restore(const std::vector<HistoryRecord> &records)
{
    QSet<QString> known;
    for (const HistoryRecord &record : m_history)
        known += record.id;
    for (const HistoryRecord &record : records)
        if (!known.contains(record.id))
            m_history.push_back(record);
    std::stable_sort(m_history.begin(), m_history.end(), endsEarlier);
    m_isHistoryDirty = m_isHistoryDirty || !records.empty();
}

StatisticsChange TrafficLedger::takeChange()
{
    StatisticsChange change;
    change.closed = std::exchange(m_closed, std::nullopt);
    if (std::exchange(m_areTotalsDirty, false))
        change.totals = m_stored;
    if (std::exchange(m_isHistoryDirty, false))
        change.history = m_history;
    return change;
}

void TrafficLedger::takeBack(const StatisticsChange &failed)
{
    if (!m_closed)
        m_closed = failed.closed;
    m_areTotalsDirty = m_areTotalsDirty || failed.totals;
    m_isHistoryDirty = m_isHistoryDirty || failed.history;
}

} // namespace corva
