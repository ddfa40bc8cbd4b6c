// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/trafficservice.h"

#include "statistics/quotasentence.h"
#include "statistics/sessioncounter.h"
#include "statistics/statisticssaver.h"
#include "statistics/trafficledger.h"

#include <QTimer>
#include <utility>

using namespace std::chrono;

namespace corva
{

class TrafficService::Private
{
public:
    Private(TrafficService *service, TrafficSurroundings given);

    bool isUp() const { return counter.session().has_value(); }
    void book(const RunningSession &over);
    void changed(bool isHistoryChanged);
    void problemChanged(const QString &problem);

    void checkQuota();
    void warn(const QuotaMark &mark, const AllowanceUse &use);
    QDate firstCounted() const;

    TrafficService *q;
    TrafficSurroundings around;
    StatisticsStore store;
    SessionCounter counter;
    LoadedStatistics loaded; ///< its problems are told; the rest is the ledger's
    TrafficLedger ledger;
    StatisticsSaver saver;
    QTimer readTimer;
    bool wasEndWanted = false; ///< in this session
};

TrafficService::Private::Private(TrafficService *service, TrafficSurroundings given)
    : q(service), around(std::move(given)), store(around.dataFolder), counter(around), loaded(store.load()),
      ledger(std::move(loaded.totals), std::move(loaded.history), !loaded.problems.isEmpty()),
      saver(store, ledger, [this]() -> const std::optional<RunningSession> & { return counter.session(); })
{
    if (loaded.left) {
        counter.close(*loaded.left);
        ledger.add(*loaded.left, around.settings().countsUsage);
    }
    ledger.bound(around.now().date(), around.settings());
    loaded.left.reset();

    readTimer.setInterval(1s);
    connect(&readTimer, &QTimer::timeout, q, &TrafficService::readNow);
    connect(&saver, &StatisticsSaver::sigProblemChanged, q,
            [this](const auto &text) { problemChanged(text); });
    connect(&store, &StatisticsStore::sigExported, q, &TrafficService::sigExported);
}

void TrafficService::Private::book(const RunningSession &over)
{
    ledger.add(over, around.settings().countsUsage);
    ledger.bound(around.now().date(), around.settings());
    saver.save();
}

void TrafficService::Private::changed(bool isHistoryChanged)
{
    if (!isHistoryChanged)
        return;
    saver.save();
    Q_EMIT q->sigHistoryChanged();
}

void TrafficService::Private::problemChanged(const QString &problem)
{
    Q_EMIT q->sigChanged();
    if (!problem.isEmpty())
        Q_EMIT q->sigProblem(problem);
}

QDate TrafficService::Private::firstCounted() const
{
    const QDate known = ledger.totals().firstDay();
    return known.isValid() || !isUp() ? known : counter.session()->carried.firstDay();
}

void TrafficService::Private::checkQuota()
{
    const TrafficSettings settings = around.settings();
    if (!settings.countsUsage)
        return;
    const BillingPeriod period = billingPeriodOf(around.now().date(), settings.billingDay);
    const TrafficVolumes carried = q->carriedBetween(period.first, period.last);
    const AllowanceUse inUse = allowanceInUse(carried, settings, counter.session()->isRoaming);
    for (const AllowanceUse &use : allowanceUses(carried, settings))
        if (const auto due = dueWarning(use, settings, period.first, ledger.marks()))
            warn(*due, use);

    // Whoever heard the warning may have ended the session.
    if (!isUp() || !settings.endsConnection || !inUse.isUsedUp() || std::exchange(wasEndWanted, true))
        return;
    Q_EMIT q->sigQuotaReached(tr("%1 The connection is ended, as you set it in the settings, Traffic.")
                                  .arg(quotaSentence(inUse, period)));
}

void TrafficService::Private::warn(const QuotaMark &mark, const AllowanceUse &use)
{
    ledger.note(mark);
    saver.save();
    Q_EMIT q->sigQuotaWarning(quotaSentence(use, billingPeriodOf(mark.period, around.settings().billingDay)));
}

TrafficService::TrafficService(QObject *parent) : TrafficService(TrafficSurroundings::ofProgram(), parent) {}

TrafficService::TrafficService(TrafficSurroundings surroundings, QObject *parent)
    : QObject(parent), d(std::make_unique<Private>(this, std::move(surroundings)))
{
    if (d->ledger.isDirty())
        d->saver.save();
    for (const QString &problem : std::as_const(d->loaded.problems))
        QMetaObject::invokeMethod(
            this, [this, problem] { Q_EMIT sigProblem(problem); }, Qt::QueuedConnection);
}

TrafficService::~TrafficService()
{
    blockSignals(true);
    sessionEnded(historyend::Program);
    d->saver.finish();
}

void TrafficService::sessionStarted(const TrafficSession &session)
{
    sessionEnded(historyend::Unexpected);
    d->counter.start(session);
    d->wasEndWanted = false;
    d->readTimer.start();
    readNow();
    d->saver.save();
}

void TrafficService::setRoaming(bool isRoaming)
{
    if (!d->isUp() || d->counter.session()->isRoaming == isRoaming)
        return;
    readNow(); // what was carried up to now was carried where the card was
    if (!d->isUp())
        return;
    d->counter.setRoaming(isRoaming);
    d->checkQuota();
}

void TrafficService::sessionEnded(const QString &how)
{
    if (!d->isUp())
        return;
    d->readTimer.stop();
    d->book(d->counter.end(how));
    Q_EMIT sigHistoryChanged();
    Q_EMIT sigChanged();
}

void TrafficService::readNow()
{
    if (!d->isUp())
        return;
    d->counter.read();
    d->checkQuota();
    if (!rates().rates().empty())
        Q_EMIT sigRate(rates().rates().back());
    Q_EMIT sigChanged();
}

bool TrafficService::isSessionUp() const
{
    return d->isUp();
}

TrafficVolumes TrafficService::sessionVolumes() const
{
    return d->counter.volumes();
}

seconds TrafficService::sessionDuration() const
{
    return d->counter.duration();
}

const RateTrace &TrafficService::rates() const
{
    return d->counter.rates();
}

TrafficSettings TrafficService::settings() const
{
    return d->around.settings();
}

QDateTime TrafficService::now() const
{
    return d->around.now();
}

TrafficTotals TrafficService::totals() const
{
    TrafficTotals all = d->ledger.totals();
    if (d->isUp() && settings().countsUsage)
        all.add(d->counter.session()->carried);
    return all;
}

TrafficVolumes TrafficService::carriedBetween(QDate first, QDate last) const
{
    TrafficVolumes sum = d->ledger.totals().between(first, last);
    if (d->isUp() && settings().countsUsage)
        sum += d->counter.session()->carried.between(first, last);
    return sum;
}

PeriodUse TrafficService::periodUse() const
{
    const TrafficSettings settings = this->settings();
    const QDate today = now().date();
    PeriodUse use;
    use.period = billingPeriodOf(today, settings.billingDay);
    use.carried = carriedBetween(use.period.first, use.period.last);
    use.allowances = allowanceUses(use.carried, settings);
    const auto bytesOn = [&](QDate day) {
        return allowanceUses(carriedBetween(day, day), settings).front().used;
    };
    use.forecast = forecastOf(use.period, today, d->firstCounted(), settings.quota, bytesOn);
    return use;
}

const std::vector<HistoryRecord> &TrafficService::history() const
{
    return d->ledger.history();
}

std::vector<HistoryRecord> TrafficService::removeRecords(const QSet<QString> &ids)
{
    std::vector<HistoryRecord> removed = d->ledger.remove(ids);
    d->changed(!removed.empty());
    return removed;
}

void TrafficService::restoreRecords(const std::vector<HistoryRecord> &records)
{
    d->ledger.restore(records);
    d->changed(!records.empty());
}

void TrafficService::exportFile(const QString &path, const QByteArray &content)
{
    d->store.exportFile(path, content);
}

QStringList TrafficService::problems() const
{
    QStringList all = d->loaded.problems;
    if (!d->saver.problem().isEmpty())
        all += d->saver.problem();
    return all;
}

} // namespace corva
