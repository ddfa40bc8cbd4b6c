// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/statisticsstore.h"
#include "statistics/trafficsettings.h"

#include <QDate>
#include <QSet>
#include <optional>
#include <vector>

namespace corva
{

/// What is kept of the sessions that are over: days and months, the history, the warnings that were given;
/// and what of it is not on disk yet.
class TrafficLedger
{
public:
    /// As they were read; `isBroken`: not in full, so that what could be read is written anew.
    TrafficLedger(StoredTotals stored, std::vector<HistoryRecord> history, bool isBroken);

    const TrafficTotals &totals() const { return m_stored.totals; }
    const std::vector<QuotaMark> &marks() const { return m_stored.given; }
    /// Oldest first.
    const std::vector<HistoryRecord> &history() const { return m_history; }

    /// Adds a session that is over to the history and, where usage is counted, to the totals; each unless it
    /// stands there already.
    void add(const RunningSession &over, bool countsUsage);
    /// Notes a warning, and forgets those of earlier billing periods.
    void note(const QuotaMark &mark);
    /// Keeps what is kept bounded.
    void bound(QDate today, const TrafficSettings &settings);

    /// Returns what was removed, for `restore`.
    std::vector<HistoryRecord> remove(const QSet<QString> &ids);
    void restore(const std::vector<HistoryRecord> &records);

    bool isDirty() const { return m_closed || m_areTotalsDirty || m_isHistoryDirty; }
    /// What is to be written; it counts as written then.
    StatisticsChange takeChange();
    /// It could not be written. What changed meanwhile is newer.
    void takeBack(const StatisticsChange &failed);

private:
    StoredTotals m_stored;
    std::vector<HistoryRecord> m_history;
    std::optional<RunningSession> m_closed; ///< not yet on disk
    bool m_areTotalsDirty = false;
    bool m_isHistoryDirty = false;
};

} // namespace corva
