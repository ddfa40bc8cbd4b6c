// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/trafficservice.h"

#include "shell/globals.h"
#include "shell/safefile.h"
#include "statistics/runningsession.h"
#include "statistics/statisticsstore.h"
#include "statistics/traffictexts.h"

#include <QLocale>
#include <QTimer>
#include <QUuid>
#include <algorithm>
#include <ctime>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono;

namespace corva
{

namespace
{

constexpr milliseconds readEvery = 1s;
constexpr milliseconds saveEvery = 15s;

/// Since the machine was started, its sleep included.
milliseconds bootTime()
{
    timespec time{};
    ::clock_gettime(CLOCK_BOOTTIME, &time);
    return duration_cast<milliseconds>(seconds(time.tv_sec) + nanoseconds(time.tv_nsec));
}

QString readBootId(const QString &path)
{
    constexpr qint64 longest = 64;
    return QString::fromLatin1(readAtMost(path, longest)).trimmed();
}

/// An interface that the dialler makes for the link: all that its counters say belongs to it.
bool isMadeForLink(const QString &interfaceName)
{
    return interfaceName.startsWith("ppp"_L1);
}

/// A moment that stays the same when the person changes the time zone.
QDateTime withOffset(const QDateTime &local)
{
    return local.toOffsetFromUtc(local.offsetFromUtc());
}

bool endsEarlier(const HistoryRecord &a, const HistoryRecord &b)
{
    return a.end < b.end;
}

} // namespace

TrafficSurroundings TrafficSurroundings::ofProgram()
{
    TrafficSurroundings surroundings;
    surroundings.dataFolder = basePath + u"/Data"_s;
    surroundings.now = [] { return QDateTime::currentDateTime(); };
    surroundings.uptime = bootTime;
    surroundings.settings = readTrafficSettings;
    return surroundings;
}

class TrafficService::Private
{
public:
    Private(TrafficService *service, TrafficSurroundings given);

    void start(const TrafficSession &link);
    void read();
    void end(const QString &how);
    void takeLeftover(RunningSession left);
    void fold(const RunningSession &over);
    void addHistoryRecord(const HistoryRecord &record);
    void bound();

    void checkQuota();
    void warn(const QuotaMark &mark, const AllowanceUse &use);
    QString sentence(const AllowanceUse &use, const BillingPeriod &period) const;
    QDate firstCounted() const;

    void changeHistory(bool isNeeded);
    void save();
    void saved(const QString &error);
    StatisticsChange takeChange();
    bool isDirty() const { return closed || areTotalsDirty || isHistoryDirty; }
    void addProblem(const QString &text);

    TrafficService *q;
    TrafficSurroundings around;
    StatisticsStore store;
    StoredTotals stored; ///< without the running session
    std::vector<HistoryRecord> history;
    std::optional<RunningSession> session;
    CounterMeter meter;
    TrafficVolume lastVolume; ///< of the session that ran last
    seconds lastDuration{0};
    RateTrace rates;
    milliseconds startedAt{0};   ///< by `uptime`
    milliseconds countedUpTo{0}; ///< when the counters were known last
    bool wasEndWanted = false;   ///< in this session

    std::optional<RunningSession> closed; ///< not yet on disk
    bool areTotalsDirty = false;
    bool isHistoryDirty = false;
    bool isSaving = false;
    bool isSaveWanted = false;
    StatisticsChange inFlight;
    QStringList loadProblems;
    QString writeProblem;
    QTimer readTimer;
    QTimer saveTimer;
};

TrafficService::Private::Private(TrafficService *service, TrafficSurroundings given)
    : q(service), around(std::move(given)), store(around.dataFolder)
{
    LoadedStatistics loaded = store.load();
    stored = std::move(loaded.totals);
    history = std::move(loaded.history);
    loadProblems = loaded.problems;
    // What could be read of a broken file is written anew.
    areTotalsDirty = isHistoryDirty = !loadProblems.isEmpty();
    if (loaded.left)
        takeLeftover(std::move(*loaded.left));
    bound();

    readTimer.setInterval(readEvery);
    saveTimer.setInterval(saveEvery);
    connect(&readTimer, &QTimer::timeout, q, &TrafficService::readNow);
    connect(&saveTimer, &QTimer::timeout, q, [this] { save(); });
    connect(&store, &StatisticsStore::sigSaved, q, [this](const QString &error) { saved(error); });
    connect(&store, &StatisticsStore::sigExported, q, &TrafficService::sigExported);
}

/// A session that was not closed: the program was killed, or the machine stopped.
void TrafficService::Private::takeLeftover(RunningSession left)
{
    const bool isSameBoot = !left.boot.isEmpty() && left.boot == readBootId(around.bootIdFile);
    const CounterReading reading = readCounters(left.interfaceName, around.countersFolder);
    if (left.ended.isEmpty() && isSameBoot && reading.index && reading.index == left.counters.index)
        left.carried.add(left.last.date(), CounterMeter(left.counters).advance(reading), left.isRoaming);
    if (left.ended.isEmpty())
        left.ended = historyend::Unexpected;
    fold(left);
}

/// Adds a session that is over to the totals and the history, each unless it stands there already.
void TrafficService::Private::fold(const RunningSession &over)
{
    if (stored.counted != over.id) {
        if (around.settings().countsUsage)
            stored.totals.add(over.carried);
        stored.counted = over.id;
        areTotalsDirty = true;
    }
    addHistoryRecord(recordOf(over));
    closed = over;
}

void TrafficService::Private::addHistoryRecord(const HistoryRecord &record)
{
    if (std::any_of(history.begin(), history.end(), [&](const auto &r) { return r.id == record.id; }))
        return;
    history.insert(std::upper_bound(history.begin(), history.end(), record, endsEarlier), record);
    isHistoryDirty = true;
}

/// Keeps what is kept bounded.
void TrafficService::Private::bound()
{
    const TrafficSettings settings = around.settings();
    // By the last day but one with traffic where that is earlier: a clock that is years ahead for once must
    // not fold everything.
    const auto &days = stored.totals.days();
    const QDate lastButOne = days.size() < 2 ? QDate() : std::prev(days.end(), 2)->first;
    const QDate oldest = std::min(around.now().date(), lastButOne).addDays(-settings.daysKept);
    if (oldest.isValid() && days.begin()->first < oldest) {
        stored.totals.foldDaysBefore(oldest);
        areTotalsDirty = true;
    }
    const auto tooMany = std::ptrdiff_t(history.size()) - settings.recordsKept;
    if (tooMany > 0) {
        history.erase(history.begin(), history.begin() + tooMany);
        isHistoryDirty = true;
    }
}

void TrafficService::Private::start(const TrafficSession &link)
{
    session.emplace();
    session->id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    session->profileName = link.profileName;
    session->interfaceName = link.interfaceName;
    session->boot = readBootId(around.bootIdFile);
    session->start = session->last = withOffset(around.now());
    session->isRoaming = session->hasRoamed = link.isRoaming;
    meter = CounterMeter(isMadeForLink(link.interfaceName));
    startedAt = countedUpTo = around.uptime();
    wasEndWanted = false;
    rates.clear();
    readTimer.start();
    saveTimer.start();
}

void TrafficService::Private::read()
{
    const CounterReading reading = readCounters(session->interfaceName, around.countersFolder);
    const TrafficVolume carried = meter.advance(reading);
    const milliseconds up = around.uptime();
    session->last = withOffset(around.now());
    session->duration = up - startedAt;
    session->counters = meter.last();
    if (carried.total() > 0)
        session->carried.add(session->last.date(), carried, session->isRoaming);

    const milliseconds elapsed = up - countedUpTo;
    if (elapsed > 0ms) {
        const auto perSecond = [&](quint64 bytes) {
            return quint64(double(bytes) * 1000 / double(elapsed.count()));
        };
        rates.add({perSecond(carried.received), perSecond(carried.sent)});
    }
    if (reading.isKnown() || elapsed <= 0ms)
        countedUpTo = up;
}

void TrafficService::Private::end(const QString &how)
{
    read();
    session->ended = how;
    lastVolume = session->carried.total().both();
    lastDuration = duration_cast<seconds>(session->duration);
    fold(*session);
    session.reset();
    readTimer.stop();
    bound();
    save();
}

QDate TrafficService::Private::firstCounted() const
{
    const QDate known = stored.totals.firstDay();
    return known.isValid() || !session ? known : session->carried.firstDay();
}

void TrafficService::Private::checkQuota()
{
    const TrafficSettings settings = around.settings();
    if (!settings.countsUsage)
        return;
    const BillingPeriod period = billingPeriodOf(around.now().date(), settings.billingDay);
    const TrafficVolumes carried = q->carriedBetween(period.first, period.last);
    const AllowanceUse inUse = allowanceInUse(carried, settings, session->isRoaming);
    for (const AllowanceUse &use : allowanceUses(carried, settings))
        if (const auto due = dueWarning(use, settings, period.first, stored.given))
            warn(*due, use);

    // Whoever heard the warning may have ended the session.
    if (!session || !settings.endsConnection || !inUse.isUsedUp() || std::exchange(wasEndWanted, true))
        return;
    Q_EMIT q->sigQuotaReached(tr("%1 The connection is ended, as you set it in the settings, Traffic.")
                                  .arg(sentence(inUse, period)));
}

void TrafficService::Private::warn(const QuotaMark &mark, const AllowanceUse &use)
{
    // Marks of earlier periods are of no use any more.
    std::erase_if(stored.given, [&](const QuotaMark &old) { return old.period != mark.period; });
    stored.given.push_back(mark);
    areTotalsDirty = true;
    save();
    Q_EMIT q->sigQuotaWarning(sentence(use, billingPeriodOf(mark.period, around.settings().billingDay)));
}

QString TrafficService::Private::sentence(const AllowanceUse &use, const BillingPeriod &period) const
{
    const QString quota = volumeText(use.quota);
    const QString until = dayText(period.last);
    if (use.isUsedUp())
        return use.allowance == Allowance::Main
                   ? tr("Your volume of %1 until %2 is used up.").arg(quota, until)
                   : tr("Your volume of %1 for roaming until %2 is used up.").arg(quota, until);
    const QString share = QLocale().toString(use.percent());
    return use.allowance == Allowance::Main
               ? tr("%1 % of your volume of %2 until %3 are used up.").arg(share, quota, until)
               : tr("%1 % of your volume of %2 for roaming until %3 are used up.").arg(share, quota, until);
}

void TrafficService::Private::changeHistory(bool isNeeded)
{
    if (!isNeeded)
        return;
    isHistoryDirty = true;
    save();
    Q_EMIT q->sigHistoryChanged();
}

StatisticsChange TrafficService::Private::takeChange()
{
    StatisticsChange change;
    change.closed = std::exchange(closed, std::nullopt);
    if (std::exchange(areTotalsDirty, false))
        change.totals = stored;
    if (std::exchange(isHistoryDirty, false))
        change.history = history;
    change.running = session;
    return change;
}

void TrafficService::Private::save()
{
    if (std::exchange(isSaving, true)) {
        isSaveWanted = true;
        return;
    }
    isSaveWanted = false;
    inFlight = takeChange();
    store.save(inFlight);
}

void TrafficService::Private::saved(const QString &error)
{
    isSaving = false;
    if (!error.isEmpty()) {
        // Again in a while; what changed meanwhile is newer.
        if (!closed)
            closed = inFlight.closed;
        areTotalsDirty = areTotalsDirty || inFlight.totals;
        isHistoryDirty = isHistoryDirty || inFlight.history;
    }
    if (writeProblem != error) {
        writeProblem = error;
        Q_EMIT q->sigChanged();
        if (!error.isEmpty())
            Q_EMIT q->sigProblem(error);
    }
    if (isSaveWanted && error.isEmpty())
        save();
    else if (session || isDirty())
        saveTimer.start();
    else
        saveTimer.stop();
}

TrafficService::TrafficService(QObject *parent) : TrafficService(TrafficSurroundings::ofProgram(), parent) {}

TrafficService::TrafficService(TrafficSurroundings surroundings, QObject *parent)
    : QObject(parent), d(std::make_unique<Private>(this, std::move(surroundings)))
{
    if (d->isDirty())
        d->save();
    for (const QString &problem : std::as_const(d->loadProblems))
        QMetaObject::invokeMethod(
            this, [this, problem] { Q_EMIT sigProblem(problem); }, Qt::QueuedConnection);
}

TrafficService::~TrafficService()
{
    blockSignals(true);
    if (d->session)
        sessionEnded(historyend::Program);
    // What is on its way may have failed: it is written again, as it is now.
    if (d->isSaving) {
        if (!d->closed)
            d->closed = d->inFlight.closed;
        d->areTotalsDirty = d->areTotalsDirty || d->inFlight.totals;
        d->isHistoryDirty = d->isHistoryDirty || d->inFlight.history;
    }
    if (d->isDirty())
        d->store.saveNow(d->takeChange());
}

void TrafficService::sessionStarted(const TrafficSession &session)
{
    sessionEnded(historyend::Unexpected);
    d->start(session);
    readNow();
    d->save();
}

void TrafficService::setRoaming(bool isRoaming)
{
    if (!d->session || d->session->isRoaming == isRoaming)
        return;
    readNow(); // what was carried up to now was carried where the card was
    if (!d->session)
        return;
    d->session->isRoaming = isRoaming;
    d->session->hasRoamed = d->session->hasRoamed || isRoaming;
    d->checkQuota();
}

void TrafficService::sessionEnded(const QString &how)
{
    if (!d->session)
        return;
    d->end(how);
    Q_EMIT sigHistoryChanged();
    Q_EMIT sigChanged();
}

void TrafficService::readNow()
{
    if (!d->session)
        return;
    d->read();
    d->checkQuota();
    if (!d->rates.rates().empty())
        Q_EMIT sigRate(d->rates.rates().back());
    Q_EMIT sigChanged();
}

bool TrafficService::isSessionUp() const
{
    return d->session.has_value();
}

TrafficVolume TrafficService::sessionVolume() const
{
    return d->session ? d->session->carried.total().both() : d->lastVolume;
}

seconds TrafficService::sessionDuration() const
{
    return d->session ? duration_cast<seconds>(d->session->duration) : d->lastDuration;
}

const RateTrace &TrafficService::rates() const
{
    return d->rates;
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
    TrafficTotals all = d->stored.totals;
    if (d->session && settings().countsUsage)
        all.add(d->session->carried);
    return all;
}

TrafficVolumes TrafficService::carriedBetween(QDate first, QDate last) const
{
    TrafficVolumes sum = d->stored.totals.between(first, last);
    if (d->session && settings().countsUsage)
        sum += d->session->carried.between(first, last);
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
    return d->history;
}

std::vector<HistoryRecord> TrafficService::removeRecords(const QSet<QString> &ids)
{
    const auto gone =
        std::stable_partition(d->history.begin(), d->history.end(),
                              [&](const HistoryRecord &record) { return !ids.contains(record.id); });
    std::vector<HistoryRecord> removed(gone, d->history.end());
    d->history.erase(gone, d->history.end());
    d->changeHistory(!removed.empty());
    return removed;
}

void TrafficService::restoreRecords(const std::vector<HistoryRecord> &records)
{
    QSet<QString> known;
    for (const HistoryRecord &record : d->history)
        known += record.id;
    for (const HistoryRecord &record : records)
        if (!known.contains(record.id))
            d->history.push_back(record);
    std::stable_sort(d->history.begin(), d->history.end(), endsEarlier);
    d->changeHistory(!records.empty());
}

void TrafficService::exportFile(const QString &path, const QByteArray &content)
{
    d->store.exportFile(path, content);
}

QStringList TrafficService::problems() const
{
    QStringList all = d->loadProblems;
    if (!d->writeProblem.isEmpty())
        all += d->writeProblem;
    return all;
}

} // namespace corva
