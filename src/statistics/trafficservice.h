// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/billingperiod.h"
#include "statistics/forecast.h"
#include "statistics/historyrecord.h"
#include "statistics/quota.h"
#include "statistics/ratetrace.h"
#include "statistics/runningsession.h"
#include "statistics/trafficsurroundings.h"

#include <QDateTime>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <memory>

namespace corva
{

/// The billing period that runs.
struct PeriodUse {
    BillingPeriod period;
    TrafficVolumes carried;
    std::vector<AllowanceUse> allowances; ///< see `allowanceUses`
    std::optional<Forecast> forecast;     ///< of the main allowance; none: too few days are known
};

/// Counts what the link carries: rates, the session, days and months, the quota, the history. Lives on the
/// GUI thread; the files are written on a thread of its own. While a link is up its state goes to disk every
/// 5 s: a program that is killed loses the counting of that time at most, and nothing when the link still
/// stands at the next start, since the counters are then read on.
class TrafficService : public QObject
{
    Q_OBJECT

public:
    explicit TrafficService(QObject *parent = nullptr);
    explicit TrafficService(TrafficSurroundings surroundings, QObject *parent = nullptr);
    /// Ends a session that is up with `historyend::Program`, and writes what is not on disk yet.
    ~TrafficService() override;

    /// Ends the session before, where there is one, as unexpected.
    void sessionStarted(const TrafficSession &session);
    /// The card went onto a foreign network, or came home, while the link is up.
    void setRoaming(bool isRoaming);
    /// To be called while the interface is still there, where that is known beforehand. `how` stands in the
    /// history: a word that `historyend` lists. Without a session nothing happens.
    void sessionEnded(const QString &how);
    /// Reads the counters now; the timer does it once a second while a link is up.
    void readNow();

    bool isSessionUp() const;
    /// Of the running session, or of the last one.
    TrafficVolumes sessionVolumes() const;
    std::chrono::seconds sessionDuration() const;
    const RateTrace &rates() const;

    TrafficSettings settings() const;
    QDateTime now() const;
    /// Days and months, with what the running session carried.
    TrafficTotals totals() const;
    TrafficVolumes carriedBetween(QDate first, QDate last) const;
    PeriodUse periodUse() const;

    /// Oldest first.
    const std::vector<HistoryRecord> &history() const;
    /// Returns what was removed, for `restoreRecords`.
    std::vector<HistoryRecord> removeRecords(const QSet<QString> &ids);
    void restoreRecords(const std::vector<HistoryRecord> &records);

    /// Writes a file for the person; `sigExported` says how it went.
    void exportFile(const QString &path, const QByteArray &content);

    /// What is wrong with the files, as sentences; empty when all is well.
    QStringList problems() const;

Q_SIGNALS:
    /// Once a second while a link is up: bytes per second.
    void sigRate(corva::TrafficVolume perSecond);
    /// Totals, session or problems changed: once a second while a link is up, and when it comes and goes.
    void sigChanged();
    void sigHistoryChanged();
    /// A file could not be read or written; `problems` has all of them.
    void sigProblem(const QString &sentence);
    /// `error` is a sentence, empty when it went well.
    void sigExported(const QString &path, const QString &error);
    /// A share of the month's volume is used up, said once for each billing period and share.
    void sigQuotaWarning(const QString &sentence);
    /// The month's volume is used up and the person wants the link ended. Said once for each session.
    void sigQuotaReached(const QString &sentence);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace corva

Q_DECLARE_METATYPE(corva::TrafficVolume)
