// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/statisticssaver.h"

#include "statistics/trafficledger.h"

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace corva
{

StatisticsSaver::StatisticsSaver(StatisticsStore &store, TrafficLedger &ledger, Running running)
    : m_store(store), m_ledger(ledger), m_running(std::move(running))
{
    m_timer.setInterval(5s);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (isWorthSaving())
            save();
    });
    connect(&m_store, &StatisticsStore::sigSaved, this, &StatisticsSaver::saved);
}

/// A link that carries nothing has a new duration alone, each second.
bool StatisticsSaver::isWorthSaving() const
{
    constexpr auto restOfIdleLink = 60s;
    const std::optional<RunningSession> &now = m_running();
    const std::optional<RunningSession> &saved = m_inFlight.running;
    return m_ledger.isDirty() || !now || !saved || now->id != saved->id || now->carried != saved->carried ||
           now->isRoaming != saved->isRoaming || now->duration - saved->duration >= restOfIdleLink;
}

StatisticsChange StatisticsSaver::takeChange()
{
    StatisticsChange change = m_ledger.takeChange();
    change.running = m_running();
    return change;
}

void StatisticsSaver::save()
{
    if (std::exchange(m_isSaving, true)) {
        m_isSaveWanted = true;
        return;
    }
    m_isSaveWanted = false;
    m_inFlight = takeChange();
    m_store.save(m_inFlight);
}

void StatisticsSaver::saved(const QString &error)
{
    m_isSaving = false;
    if (!error.isEmpty()) {
        m_ledger.takeBack(m_inFlight);
        m_inFlight = {};
    }
    if (std::exchange(m_problem, error) != error)
        Q_EMIT sigProblemChanged(error);
    if (m_isSaveWanted && error.isEmpty())
        save();
    else if (m_running() || m_ledger.isDirty())
        m_timer.start();
    else
        m_timer.stop();
}

/// What is on its way may have failed: it is written again, as it is now.
void StatisticsSaver::finish()
{
    if (m_isSaving)
        m_ledger.takeBack(m_inFlight);
    if (m_ledger.isDirty())
        m_store.saveNow(takeChange());
}

} // namespace corva
