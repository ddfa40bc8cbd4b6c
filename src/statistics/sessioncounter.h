// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/interfacecounters.h"
#include "statistics/ratetrace.h"
#include "statistics/runningsession.h"
#include "statistics/trafficsurroundings.h"

#include <chrono>
#include <optional>

namespace corva
{

/// Counts what one link after another carries, by the counters of its interface.
class SessionCounter
{
public:
    /// `around` outlives this.
    explicit SessionCounter(const TrafficSurroundings &around) : m_around(around) {}

    /// The session of the link that is up; none between two.
    const std::optional<RunningSession> &session() const { return m_session; }
    void start(const TrafficSession &link);
    void read();
    void setRoaming(bool isRoaming);
    /// Reads for the last time. `how` is a word of `historyend`.
    RunningSession end(const QString &how);

    /// For a session that nobody closed, since the program was killed or the machine stopped: adds what its
    /// link carried meanwhile, where that still stands, and says how it ended.
    void close(RunningSession &left) const;

    /// Of the running session, or of the last one.
    TrafficVolumes volumes() const;
    std::chrono::seconds duration() const;
    const RateTrace &rates() const { return m_rates; }

private:
    void addRate(const TrafficVolume &carried, std::chrono::milliseconds elapsed);

    const TrafficSurroundings &m_around;
    std::optional<RunningSession> m_session;
    CounterMeter m_meter;
    RateTrace m_rates;
    std::chrono::milliseconds m_startedAt{0};   ///< by `uptime`
    std::chrono::milliseconds m_countedUpTo{0}; ///< when the counters were known last
    TrafficVolumes m_lastVolumes;               ///< of the session that ran last
    std::chrono::seconds m_lastDuration{0};
};

} // namespace corva
