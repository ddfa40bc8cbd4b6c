// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/historyrecord.h"
#include "statistics/interfacecounters.h"
#include "statistics/traffictotals.h"

namespace corva
{

/// A link that came up.
struct TrafficSession {
    QString profileName;
    QString interfaceName; ///< "ppp0": whose counters are read
    bool isRoaming = false;
};

/// A link that is up, and what it carried so far; on disk what is known of it should the program stop.
struct RunningSession {
    QString id;
    QString profileName;
    QString interfaceName;
    QString boot; ///< which run of the machine: its counters begin anew with the next
    QDateTime start;
    QDateTime last; ///< when the counters were read last
    std::chrono::milliseconds duration{0};
    bool isRoaming = false;  ///< now
    bool hasRoamed = false;  ///< at any time
    TrafficTotals carried;   ///< by day
    CounterReading counters; ///< as they were read last
    QString ended;           ///< a word of `historyend`; empty while the link is up
    bool operator==(const RunningSession &) const = default;
};

/// Its line of the history. Where the clock was set while the link was up, the start is counted back from the
/// end.
HistoryRecord recordOf(const RunningSession &session);

} // namespace corva
