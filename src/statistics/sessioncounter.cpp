// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/sessioncounter.h"

#include "shell/safefile.h"

#include <QUuid>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono;

namespace corva
{

namespace
{

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

} // namespace

void SessionCounter::start(const TrafficSession &link)
{
    m_session.emplace();
    m_session->id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    m_session->profileName = link.profileName;
    m_session->interfaceName = link.interfaceName;
    m_session->boot = readBootId(m_around.bootIdFile);
    m_session->start = m_session->last = withOffset(m_around.now());
    m_session->isRoaming = m_session->hasRoamed = link.isRoaming;
    m_meter = CounterMeter(isMadeForLink(link.interfaceName));
    m_startedAt = m_countedUpTo = m_around.uptime();
    m_rates.clear();
}

void SessionCounter::read()
{
    const CounterReading reading = readCounters(m_session->interfaceName, m_around.countersFolder);
    const TrafficVolume carried = m_meter.advance(reading);
    const milliseconds up = m_around.uptime();
    m_session->last = withOffset(m_around.now());
    m_session->duration = up - m_startedAt;
    m_session->counters = m_meter.last();
    if (carried.total() > 0)
        m_session->carried.add(m_session->last.date(), carried, m_session->isRoaming);

    const milliseconds elapsed = up - m_countedUpTo;
    if (elapsed > 0ms)
        addRate(carried, elapsed);
    if (reading.isKnown() || elapsed <= 0ms)
        m_countedUpTo = up;
}

void SessionCounter::addRate(const TrafficVolume &carried, milliseconds elapsed)
{
    const auto perSecond = [&](quint64 bytes) {
        return quint64(double(bytes) * 1000 / double(elapsed.count()));
    };
    m_rates.add({perSecond(carried.received), perSecond(carried.sent)});
}

void SessionCounter::setRoaming(bool isRoaming)
{
    m_session->isRoaming = isRoaming;
    m_session->hasRoamed = m_session->hasRoamed || isRoaming;
}

RunningSession SessionCounter::end(const QString &how)
{
    read();
    m_session->ended = how;
    m_lastVolumes = volumes();
    m_lastDuration = duration();
    return *std::exchange(m_session, std::nullopt);
}

void SessionCounter::close(RunningSession &left) const
{
    if (!left.ended.isEmpty())
        return;
    const bool isSameBoot = !left.boot.isEmpty() && left.boot == readBootId(m_around.bootIdFile);
    const CounterReading reading = readCounters(left.interfaceName, m_around.countersFolder);
    if (isSameBoot && reading.index && reading.index == left.counters.index)
        left.carried.add(left.last.date(), CounterMeter(left.counters).advance(reading), left.isRoaming);
    left.ended = historyend::Unexpected;
}

TrafficVolumes SessionCounter::volumes() const
{
    return m_session ? m_session->carried.total() : m_lastVolumes;
}

seconds SessionCounter::duration() const
{
    return m_session ? duration_cast<seconds>(m_session->duration) : m_lastDuration;
}

} // namespace corva
