// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/statisticsstore.h"

#include <QObject>
#include <QTimer>
#include <functional>

namespace corva
{

class TrafficLedger;

/// Brings the statistics to disk, one writing at a time: when told, every 5 s while a session carries
/// something, and again what could not be written.
class StatisticsSaver final : public QObject
{
    Q_OBJECT

public:
    using Running = std::function<const std::optional<RunningSession> &()>;

    /// Store and ledger outlive this. `running` gives the session that is up.
    StatisticsSaver(StatisticsStore &store, TrafficLedger &ledger, Running running);

    /// Begins to write what changed; after the writing that runs, where one does.
    void save();
    /// Writes at once what is not known to be on disk.
    void finish();
    /// Why the last writing failed, as a sentence; empty when it went well.
    const QString &problem() const { return m_problem; }

Q_SIGNALS:
    void sigProblemChanged(const QString &problem);

private:
    bool isWorthSaving() const;
    StatisticsChange takeChange();
    void saved(const QString &error);

    StatisticsStore &m_store;
    TrafficLedger &m_ledger;
    Running m_running;
    QTimer m_timer;
    StatisticsChange m_inFlight; ///< stays as what is on disk
    bool m_isSaving = false;
    bool m_isSaveWanted = false;
    QString m_problem;
};

} // namespace corva
