// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/trafficvolume.h"

#include <QByteArray>
#include <QString>
#include <optional>

namespace corva
{

/// What the system's counters of an interface say at one moment. Each is known by itself: an interface may go
/// between two of them.
struct CounterReading {
    std::optional<quint64> received; ///< bytes since the interface was made, wrapping at 32 or 64 bits
    std::optional<quint64> sent;
    std::optional<quint64> index; ///< the interface's number: another one is another interface
    bool isKnown() const { return received || sent; }
    bool operator==(const CounterReading &) const = default;
};

/// A decimal number with at most a line feed behind, as sysfs writes it; anything else is not known.
std::optional<quint64> parseCounter(const QByteArray &content);

/// Reads "<folder>/<interface>/statistics/rx_bytes", ".../tx_bytes" and "<folder>/<interface>/ifindex". A
/// name that no interface can have is read nowhere.
CounterReading readCounters(const QString &interfaceName, const QString &folder);

/// Turns readings into what was carried between them.
class CounterMeter
{
public:
    /// `isNew`: the interface was made for the link, so that what its first reading says belongs to it.
    explicit CounterMeter(bool isNew = false) : m_isNew(isNew) {}
    /// Goes on from a reading of an earlier meter.
    explicit CounterMeter(const CounterReading &last) : m_last(last) {}

    /// What was carried since the reading before. A counter that went back has wrapped, when it stood in the
    /// upper half of its range, or was begun anew.
    TrafficVolume advance(const CounterReading &reading);
    /// The last known value of each counter.
    const CounterReading &last() const { return m_last; }

private:
    quint64 step(std::optional<quint64> &last, std::optional<quint64> now, bool isReplaced) const;

    bool m_isNew = false;
    CounterReading m_last;
};

} // namespace corva
