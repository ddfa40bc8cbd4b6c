// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/historyrecord.h"
#include "statistics/quota.h"
#include "statistics/runningsession.h"
#include "statistics/traffictotals.h"

namespace corva
{

/// "Data/traffic.xml": what was carried by all links that are over.
struct StoredTotals {
    TrafficTotals totals;
    QString counted;              ///< the id of the session that was added last
    std::vector<QuotaMark> given; ///< warnings
    bool operator==(const StoredTotals &) const = default;
};

/// What a file said, as far as it could be read; `problem` says for the log why that is not all.
template <typename Content> struct ParsedStatistics {
    Content content;
    QString problem;
};

QByteArray formatTotals(const StoredTotals &totals);
ParsedStatistics<StoredTotals> parseTotals(const QByteArray &bytes);

/// "Data/historyRecord.xml". Records without an id or an end are refused, two with one id are one.
QByteArray formatHistory(const std::vector<HistoryRecord> &records);
ParsedStatistics<std::vector<HistoryRecord>> parseHistory(const QByteArray &bytes);

/// "Data/traffic-session.xml": the link that is up.
QByteArray formatSession(const RunningSession &session);
ParsedStatistics<RunningSession> parseSession(const QByteArray &bytes);

} // namespace corva
